#!/usr/bin/env bash
# Installs a build into scratch folders and uninstalls it again; the user's own home is never touched.
# usage: run.sh BUILD-FOLDER [TEST...]
set -uo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
source_folder=$(cd "$here/../.." && pwd)
build=$(realpath "$1")
shift

# An empty home and desktop for each test.
fresh_home() {
  scratch=$(mktemp -d)
  export HOME=$scratch/home XDG_DATA_HOME=$scratch/data
  unset DESTDIR
  mkdir "$HOME"
  folder=$HOME/.local/opt/vantrel
}

install_it() { cmake --install "$build" --prefix "${1:-$folder}" >/dev/null; }
integrate() { "$folder/share/vantrel/integrate.sh"; }
uninstall() { "$folder/uninstall.sh" >/dev/null; }

fail() {
  problem=$1
  return 1
}
there() { [ -e "$1" ] || fail "$1 is missing"; }
gone() { [ ! -e "$1" ] || fail "$1 is still there"; }
same() { [ "$2" = "$3" ] || fail "$1: expected '$2', got '$3'"; }
files_in() { (cd "$1" && find . -type f | sort); }
have() { command -v "$1" >/dev/null && return 0; skipped+=" ($1 is not here)"; return 1; }

test_everything_lands_in_the_prefix() {
  install_it || return 1
  there "$folder/vantrel" && there "$folder/uninstall.sh" && there "$folder/TRIX Viaduct.vtl" &&
    there "$folder/library/Marklin_C-Track/Passing Loop.vtl" &&
    there "$folder/library/Marklin_Z-Track/Oval with Siding.vtl" || return 1
  there "$folder/share/applications/vantrel.desktop" &&
    there "$folder/share/mime/packages/vantrel.xml" &&
    there "$folder/share/metainfo/example.kelmor.vantrel.metainfo.xml" || return 1
  gone "$XDG_DATA_HOME" && gone "$HOME/.local/share" || return 1
  local size
  for size in 16x16 22x22 24x24 32x32 48x48 64x64 128x128 256x256; do
    there "$folder/share/icons/hicolor/$size/apps/vantrel.png" &&
      there "$folder/share/icons/hicolor/$size/mimetypes/application-x-vantrel-layout.png" || return 1
    have identify || continue
    same "size of the icon" "$size" \
      "$(identify -format %wx%h "$folder/share/icons/hicolor/$size/apps/vantrel.png")" || return 1
  done
  there "$folder/share/icons/hicolor/scalable/apps/vantrel.svg" &&
    there "$folder/share/icons/hicolor/scalable/mimetypes/application-x-vantrel-layout.svg"
}

test_the_list_of_what_is_installed_is_complete() {
  install_it || return 1
  (cd "$folder" && { cat share/vantrel/installed; cut -c67- share/vantrel/samples.sha256; } |
    sed 's,^,./,' | sort) >"$scratch/listed"
  same "files that uninstalling would forget" "" "$(files_in "$folder" | comm -23 - "$scratch/listed")" &&
    same "files that are listed only" "" "$(files_in "$folder" | comm -13 - "$scratch/listed")"
}

test_a_staged_install_stays_below_its_root() {
  DESTDIR=$scratch/root install_it /opt/vantrel || return 1
  there "$scratch/root/opt/vantrel/vantrel" && there "$scratch/root/opt/vantrel/Exhibition Yard.vtl" &&
    there "$scratch/root/opt/vantrel/library/TRIX_C-Track/Crossover.vtl" || return 1
  same "what lies beside it" opt "$(ls "$scratch/root")" || return 1
  same "command" 'Exec="/opt/vantrel/vantrel"' \
    "$(grep ^Exec= "$scratch/root/opt/vantrel/share/applications/vantrel.desktop")"
}

test_plans_and_preferences_of_an_older_install_stay() {
  mkdir -p "$folder/library/Marklin_C-Track"
  echo 'my plan' >"$folder/Attic.vtl"
  echo 'my block' >"$folder/library/Marklin_C-Track/Own.xml"
  printf 'playful=0\nasked=1\n' >"$folder/prefs.cfg"
  install_it && install_it || return 1
  same "plan" 'my plan' "$(cat "$folder/Attic.vtl")" &&
    same "block" 'my block' "$(cat "$folder/library/Marklin_C-Track/Own.xml")" &&
    same "preferences" 'playful=0 asked=1' "$(tr '\n' ' ' <"$folder/prefs.cfg" | sed 's/ $//')"
}

test_a_sample_comes_back_only_if_it_is_missing() {
  install_it || return 1
  local changed="$folder/TRIX Viaduct.vtl" missing="$folder/Z-Track Table Top.vtl"
  local block="$folder/library/TRIX_C-Track/Crossover.vtl"
  echo changed >"$changed"
  echo changed >"$block"
  rm "$missing"
  install_it || return 1
  same "a sample that was changed" changed "$(cat "$changed")" &&
    same "a block that was changed" changed "$(cat "$block")" || return 1
  cmp -s "$missing" "$source_folder/samples/Z-Track Table Top.vtl" || fail "the sample is not restored"
}

test_the_desktop_learns_of_the_program_and_forgets_it() {
  install_it && integrate || return 1
  local png=icons/hicolor/48x48/apps/vantrel.png
  same "command" "Exec=\"$folder/vantrel\"" \
    "$(grep ^Exec= "$XDG_DATA_HOME/applications/vantrel.desktop")" || return 1
  cmp -s "$XDG_DATA_HOME/$png" "$folder/share/$png" || { fail "no icon"; return 1; }
  there "$XDG_DATA_HOME/mime/packages/vantrel.xml" || return 1
  # Somebody else's entry and icon stay.
  echo other >"$XDG_DATA_HOME/applications/other.desktop"
  echo other >"$XDG_DATA_HOME/icons/hicolor/48x48/apps/other.png"
  integrate && uninstall || return 1
  same "what is left of it" "" "$(find "$XDG_DATA_HOME" -name '*vantrel*')" || return 1
  there "$XDG_DATA_HOME/applications/other.desktop" &&
    there "$XDG_DATA_HOME/icons/hicolor/48x48/apps/other.png" &&
    gone "$XDG_DATA_HOME/icons/hicolor/16x16"
}

test_without_a_data_folder_named_the_usual_one_is_taken() {
  unset XDG_DATA_HOME
  install_it && integrate && there "$HOME/.local/share/applications/vantrel.desktop" || return 1
  XDG_DATA_HOME=relative integrate && gone relative || return 1
  # The data folder is another one by now: it is forgotten where it was told.
  XDG_DATA_HOME=$scratch/other uninstall || return 1
  gone "$HOME/.local/share/applications/vantrel.desktop"
}

test_the_file_type_is_known_by_name_and_content() {
  have update-mime-database && have gio || return 0
  install_it && integrate || return 1
  export XDG_DATA_DIRS=/usr/share
  local type='application/x-vantrel-layout'
  type_of() { gio info -a standard::content-type "$1" | sed -n 's/.*content-type: //p'; }
  same "type of a plan" $type "$(type_of "$folder/TRIX Viaduct.vtl")" || return 1
  cp "$folder/TRIX Viaduct.vtl" "$scratch/nameless"
  cp "$folder/library/TRIX_C-Track/Crossover.vtl" "$scratch/block"
  same "type of a plan without extension" $type "$(type_of "$scratch/nameless")" || return 1
  same "type of a block without extension" $type "$(type_of "$scratch/block")" || return 1
  # Nothing offers itself for a double click, neither the program, which would not open the file, nor
  # a text editor, which would spoil it.
  printf '[Desktop Entry]\nType=Application\nName=Editor\nExec=true\n' \
    >"$XDG_DATA_HOME/applications/editor.desktop"
  printf '[MIME Cache]\ntext/plain=editor.desktop;\napplication/xml=editor.desktop;\n' \
    >"$XDG_DATA_HOME/applications/mimeinfo.cache"
  offered() { gio mime "$1" | grep -o '[a-z.]*\.desktop' | sort -u; }
  same "the editor for XML" editor.desktop "$(offered application/xml | grep editor)" || return 1
  same "programs for a plan" "" "$(offered $type)" || return 1
  uninstall || return 1
  same "the type afterwards" "" "$(grep -r vantrel "$XDG_DATA_HOME/mime" 2>/dev/null)"
}

test_uninstalling_leaves_what_is_the_users() {
  install_it && integrate || return 1
  echo 'my plan' >"$folder/Attic.vtl"
  echo 'my block' >"$folder/library/Marklin_C-Track/Own.xml"
  printf 'playful=0\nasked=1\n' >"$folder/prefs.cfg"
  echo changed >"$folder/TRIX Viaduct.vtl"
  echo changed >"$folder/library/TRIX_C-Track/Crossover.vtl"
  uninstall || return 1
  same "what stays" "./Attic.vtl ./TRIX Viaduct.vtl ./library/Marklin_C-Track/Own.xml ./library/TRIX_C-Track/Crossover.vtl ./prefs.cfg" \
    "$(files_in "$folder" | tr '\n' ' ' | sed 's/ $//')"
}

test_uninstalling_an_untouched_program_leaves_nothing() {
  install_it && integrate && uninstall || return 1
  gone "$folder"
}

test_a_folder_that_others_use_too_keeps_their_files() {
  mkdir -p "$scratch/shared/share/icons/hicolor/16x16/apps" "$scratch/shared/share/vantrel"
  echo other >"$scratch/shared/share/icons/hicolor/16x16/apps/other.png"
  folder=$scratch/shared
  install_it && integrate && uninstall || return 1
  same "what stays" "./share/icons/hicolor/16x16/apps/other.png" "$(files_in "$folder")"
}

test_a_path_with_blanks_and_signs_is_installed_and_uninstalled() {
  folder="$HOME/My \$ & 100% \"fun\""
  install_it && integrate || return 1
  # Quoted, with a backslash before quotes and the dollar, which is doubled as every one in the file.
  same "command" "Exec=\"$HOME/My \\\\\$ & 100%% \\\\\"fun\\\\\"/vantrel\"" \
    "$(grep ^Exec= "$XDG_DATA_HOME/applications/vantrel.desktop")" || return 1
  if have desktop-file-validate; then
    same "complaints" "" "$(desktop-file-validate "$XDG_DATA_HOME/applications/vantrel.desktop" 2>&1)" || return 1
  fi
  uninstall && gone "$folder" && same "left" "" "$(find "$XDG_DATA_HOME" -name '*vantrel*')"
}

# entry_of: the folder whose program the menu starts.
entry_of() { sed -n 's,^Exec="\(.*\)/vantrel"$,\1,p' "$XDG_DATA_HOME/applications/vantrel.desktop"; }

# two_prefixes: the program in the folders $one and $other, the desktop told of both, $other last.
two_prefixes() {
  one=$HOME/one other=$HOME/other
  install_it "$one" && install_it "$other" && "$one/share/vantrel/integrate.sh" &&
    "$other/share/vantrel/integrate.sh"
}

test_two_prefixes_dont_uninstall_each_others_menu_entry() {
  two_prefixes && same "started" "$other" "$(entry_of)" || return 1
  "$one/uninstall.sh" >/dev/null || return 1
  same "started after the first is gone" "$other" "$(entry_of)" &&
    there "$XDG_DATA_HOME/icons/hicolor/48x48/apps/vantrel.png" &&
    there "$XDG_DATA_HOME/mime/packages/vantrel.xml" || return 1
  "$other/uninstall.sh" >/dev/null || return 1
  same "left" "" "$(find "$XDG_DATA_HOME" -name '*vantrel*')"
}

test_the_prefix_before_takes_over_when_the_last_one_goes() {
  two_prefixes && "$other/uninstall.sh" >/dev/null || return 1
  same "started" "$one" "$(entry_of)" &&
    there "$XDG_DATA_HOME/icons/hicolor/scalable/apps/vantrel.svg" || return 1
  # Told twice, it still is one.
  "$one/share/vantrel/integrate.sh" && "$one/uninstall.sh" >/dev/null || return 1
  same "left" "" "$(find "$XDG_DATA_HOME" -name '*vantrel*')"
}

test_a_prefix_that_was_deleted_by_hand_takes_nothing_over() {
  two_prefixes && rm -r "$one" && "$other/uninstall.sh" >/dev/null || return 1
  same "left" "" "$(find "$XDG_DATA_HOME" -name '*vantrel*')"
}

test_a_path_with_a_percent_sign_says_that_the_desktop_takes_no_entry() {
  folder="$HOME/100% fun"
  install_it || return 1
  integrate 2>"$scratch/said" || { fail "it failed"; return 1; }
  grep -q 'has a "%" in it: the desktop takes no menu entry from there' "$scratch/said" ||
    { fail "it said: $(cat "$scratch/said")"; return 1; }
  folder=$HOME/fun
  install_it && integrate 2>"$scratch/said" && same "said elsewhere" "" "$(cat "$scratch/said")"
}

test_the_program_is_installed_without_its_symbols() {
  have readelf || return 0
  install_it || return 1
  same "symbol tables" "" "$(readelf -SW "$folder/vantrel" | grep -oE '\.(symtab|strtab|debug_[a-z]+)')"
}

test_a_release_is_hardened() {
  grep -q '^VANTREL_HARDEN:BOOL=ON' "$build/CMakeCache.txt" || return 0
  have readelf || return 0
  install_it || return 1
  local program=$folder/vantrel
  readelf -hW "$program" | grep -q 'Type: *DYN' || { fail "not position independent"; return 1; }
  readelf -dW "$program" | grep -q 'NOW' || { fail "bound as it goes"; return 1; }
  readelf -lW "$program" | grep -q GNU_RELRO || { fail "no read-only relocations"; return 1; }
  [ "$(uname -m)" = x86_64 ] || return 0
  # The mark at the top of each function that may be jumped to. The file's own notes don't tell: what
  # the system adds at linking lacks them.
  [ "$(LC_ALL=C grep -aoP '\xf3\x0f\x1e\xfa' "$program" | wc -l)" -gt 1000 ] ||
    fail "no control-flow protection"
}

test_the_desktop_files_are_valid() {
  install_it || return 1
  local share=$folder/share
  if have desktop-file-validate; then
    same "complaints about the entry" "" \
      "$(desktop-file-validate "$share/applications/vantrel.desktop" 2>&1)" || return 1
  fi
  if have appstreamcli; then
    appstreamcli validate --no-net "$share/metainfo/example.kelmor.vantrel.metainfo.xml" >"$scratch/out" 2>&1 ||
      { fail "$(cat "$scratch/out")"; return 1; }
  fi
  if have xmllint; then
    xmllint --noout "$share/mime/packages/vantrel.xml" "$share"/icons/hicolor/scalable/*/*.svg \
      "$share"/metainfo/*.xml || { fail "not well formed"; return 1; }
  fi
  # The program takes no file from outside, so the entry must not say that it does.
  same "promises to open files" "" "$(grep -E '%[fFuU]|^MimeType' "$share/applications/vantrel.desktop")"
}

[ $# -gt 0 ] || set -- $(sed -n 's/^\(test_[a-z0-9_]*\)().*/\1/p' "${BASH_SOURCE[0]}")
passed=0
failed=0
for test in "$@"; do
  problem=
  skipped=
  if (
    fresh_home
    trap 'rm -rf "$scratch"' EXIT
    "$test" || { echo "FAILED  $test: $problem"; exit 1; }
    echo "ok      $test$skipped"
  ); then
    passed=$((passed + 1))
  else
    failed=$((failed + 1))
  fi
done
echo "$passed passed, $failed failed"
[ "$failed" -eq 0 ]
