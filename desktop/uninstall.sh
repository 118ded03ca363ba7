#!/usr/bin/env bash
# uninstall.sh: removes the program that lies beside this script, and what it put into the user's
# desktop. Plans, library blocks and preferences stay; a sample goes only if nobody changed it.
set -euo pipefail
folder=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
own=$folder/share/vantrel
cd "$folder"
[ -f "$own/installed" ] || { echo "Nothing of Vantrel is installed in $folder" >&2; exit 1; }

"$own/integrate.sh" --undo

# remove FILE: the file, and folders that are empty then.
remove() {
  rm -f -- "$1"
  local parent=$1
  while parent=$(dirname "$parent") && [ "$parent" != . ]; do
    rmdir -- "$parent" 2>/dev/null || break
  done
}

while read -r sum sample; do
  [ -f "$sample" ] || continue
  [ "$(sha256sum <"$sample" | cut -d' ' -f1)" = "$sum" ] && remove "$sample"
done <"$own/samples.sha256"
mapfile -t installed <"$own/installed"
for file in "${installed[@]}"; do remove "$file"; done
[ -d library ] && find library -depth -type d -empty -delete

if rmdir -- "$folder" 2>/dev/null; then
  echo "Vantrel is gone."
else
  echo "Vantrel is gone. What is yours stays in $folder"
fi
