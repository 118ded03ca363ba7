#!/usr/bin/env bash
# Installs what is missing, builds, puts the program into the user's own folder and into the menu of
# the user's desktop, and starts it there.
# Plans and preferences live beside the installed program, so a rebuild never touches them.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$root/scripts/lib.sh"

need_packages "${build_packages[@]}"
build release vantrel
folder="$HOME/.local/opt/vantrel"
cmake --install "$root/build/release" --prefix "$folder" >/dev/null
"$folder/share/vantrel/integrate.sh" || echo "It could not be put into the desktop's menu." >&2
echo "Vantrel is in $folder"

if have_display; then
  exec "$folder/vantrel"
fi

need_packages "${display_packages[@]}"
picture="$root/build/screenshot.png"
echo "There is no display here: showing the program on a virtual one instead."
"$root/scripts/on_virtual_display.sh" "$root/scripts/take_screenshot.sh" "$folder" "$picture"
echo "A picture of it is in $picture"
