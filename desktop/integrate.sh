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

# What an earlier run put there, here or into another data folder.
if [ -f "$record" ]; then
  {
    IFS= read -r earlier
    while IFS= read -r file; do take_out "$earlier" "$file"; done
  } <"$record"
  rm -f -- "$record"
  # Also when the last file of its kind has gone, the desktop has to forget it.
  [ -d "$earlier/mime" ] && mkdir -p "$earlier/mime/packages"
  refresh "$earlier"
fi
[ "${1:-}" = --undo ] && exit 0

cd "$share"
files=$(find applications/vantrel.desktop icons mime/packages metainfo -type f \
  \( -name 'vantrel.*' -o -name '*vantrel-layout.*' -o -name '*.vantrel.metainfo.xml' \) | sort)
printf '%s\n' "$data" "$files" >"$record"
while IFS= read -r file; do
  mkdir -p "$data/$(dirname "$file")"
  cp -f -- "$file" "$data/$file"
done <<<"$files"
refresh "$data"
