#!/usr/bin/env bash
# on_virtual_display.sh COMMAND...: runs a command on a virtual display of its own with a window
# manager, and takes both down again. The exit status is the command's. VIRTUAL_DISPLAY_SIZE=800x600
# makes it a small one.
set -uo pipefail

numbers=$(mktemp)
Xvfb -displayfd 3 -screen 0 "${VIRTUAL_DISPLAY_SIZE:-1600x1100}x24" -nolisten tcp 3>"$numbers" 2>/dev/null &
server=$!
window_manager=
cleanup() {
  [ -n "$window_manager" ] && kill "$window_manager" 2>/dev/null
  kill "$server" 2>/dev/null
  wait 2>/dev/null
  rm -f "$numbers"
}
trap cleanup EXIT
for _ in $(seq 100); do
  [ -s "$numbers" ] && break
  sleep 0.1
done
[ -s "$numbers" ] || { echo "The virtual display did not start" >&2; exit 1; }

unset WAYLAND_DISPLAY
DISPLAY=:$(tr -d '\n' <"$numbers")
export DISPLAY
# No accessibility or session bus on a bare display: the toolkit would wait for one.
export NO_AT_BRIDGE=1 GDK_BACKEND=x11 LIBGL_ALWAYS_SOFTWARE=1
# By its whole path: of another it takes no notice, and keeps Alt with a drag for itself.
openbox --config-file "$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)/openbox.xml" >/dev/null 2>&1 &
window_manager=$!
# For commands that want to know when the display has nothing left to do.
export VANTREL_DISPLAY_PROCESSES="$server $window_manager"
"$@"
