#!/usr/bin/env bash
# integrate.sh: tells the user's desktop about the program that this script was installed with: its
# entry in the menu, its icons and its file type go into the user's data folder. uninstall.sh takes
# them out again. Run a second time it brings them up to date.
set -euo pipefail
own=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
share=$(dirname "$own")
record=$own/integrated

data=${XDG_DATA_HOME:-}
[[ $data == /* ]] || data=$HOME/.local/share # a relative path doesn't count
mkdir -p "$data"
data=$(cd "$data" && pwd)
# Installed where the desktop looks anyway.
[ "$data" = "$share" ] && exit 0

# take_out FILE: removes a file from the folder that the record names, and folders that are empty
# then.
take_out() {
  local from=$1 folder=$1/$2
  rm -f -- "$folder"
  while folder=$(dirname "$folder") && [ "$folder" != "$from" ] && [ "$folder" != / ]; do
    rmdir -- "$folder" 2>/dev/null || break
  done
}

# refresh FOLDER: lets the desktop notice what has changed there.
refresh() {
  if command -v update-mime-database >/dev/null && [ -d "$1/mime/packages" ]; then
    update-mime-database "$1/mime" >/dev/null 2>&1 || true
  fi
  [ -d "$1/icons/hicolor" ] || return 0
  touch "$1/icons/hicolor"
  if command -v gtk-update-icon-cache >/dev/null && [ -f "$1/icons/hicolor/icon-theme.cache" ]; then
    gtk-update-icon-cache -q -f -t "$1/icons/hicolor" || true
  fi
}

# The program may be installed in several folders, while the desktop knows one of each name: the last
# that was told counts. The data folder keeps the list of all, in that order, so that the one before
# takes over when the last one goes.
known=vantrel/integrated-from

# others FOLDER: the share folders, without this one, whose program still is in that data folder.
others() {
  local folder told
  [ -f "$1/$known" ] || return 0
  while IFS= read -r folder; do
    [ "$folder" != "$share" ] && [ -f "$folder/vantrel/integrated" ] || continue
    IFS= read -r told <"$folder/vantrel/integrated"
    [ "$told" = "$1" ] && printf '%s\n' "$folder"
  done <"$1/$known"
  return 0
}

# remember FOLDER LIST: keeps the list of share folders there, or no list of none.
remember() {
  if [ -z "$2" ]; then
    take_out "$1" "$known"
    return
  fi
  mkdir -p "$1/$(dirname "$known")"
  printf '%s\n' "$2" >"$1/$known"
}

# tell FROM FILES: copies the files of a share folder into the data folder.
tell() {
  local file
  while IFS= read -r file; do
    mkdir -p "$data/$(dirname "$file")"
    cp -f -- "$1/$file" "$data/$file"
  done <<<"$2"
}

# What an earlier run put there, here or into another data folder.
if [ -f "$record" ]; then
  {
    IFS= read -r earlier
    while IFS= read -r file; do take_out "$earlier" "$file"; done
  } <"$record"
  rm -f -- "$record"
  left=$(others "$earlier")
  remember "$earlier" "$left"
  if [ -n "$left" ]; then
    last=$(tail -n 1 <<<"$left")
    (data=$earlier; tell "$last" "$(tail -n +2 "$last/vantrel/integrated")")
  fi
  # Also when the last file of its kind has gone, the desktop has to forget it.
  [ -d "$earlier/mime" ] && mkdir -p "$earlier/mime/packages"
  refresh "$earlier"
fi
[ "${1:-}" = --undo ] && exit 0

cd "$share"
files=$(find applications/vantrel.desktop icons mime/packages metainfo -type f \
  \( -name 'vantrel.*' -o -name '*vantrel-layout.*' -o -name '*.vantrel.metainfo.xml' \) | sort)
left=$(others "$data")
printf '%s\n' "$data" "$files" >"$record"
remember "$data" "${left:+$left$'\n'}$share"
tell "$share" "$files"
refresh "$data"

# What such a path means in an entry, desktops don't agree on: they pass the entry over.
if [[ $share == *%* ]]; then
  echo "The path ${share%/share} has a \"%\" in it: the desktop takes no menu entry from there." >&2
  echo "Install into a folder without one to have Vantrel in the menu." >&2
fi
