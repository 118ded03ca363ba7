#!/usr/bin/env bash
# take_screenshot.sh FOLDER PICTURE [PLAN-ROW]: starts a copy of the program in FOLDER on the current
# display, opens the plan in that row of the Open dialog (the first one if none is given) and saves a
# picture of the window. It works on a copy because a picture must not answer the user's first
# questions or change the user's plans.
set -euo pipefail
folder=$1
picture=$2
row=${3:-1}

copy=$(mktemp -d)
program=
cleanup() {
  [ -n "$program" ] && kill "$program" 2>/dev/null
  rm -rf "$copy"
}
trap cleanup EXIT
cp -r "$folder"/. "$copy"
printf 'playful=0\nasked=1\n' >"$copy/prefs.cfg"
# The logs go to a scratch folder too.
HOME=$copy "$copy/vantrel" >/dev/null 2>&1 &
program=$!

# wait_for_window TITLE-PATTERN: its id, once it is on the screen.
wait_for_window() {
  local id
  for _ in $(seq 150); do
    id=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | head -n 1) || true
    [ -n "$id" ] && { echo "$id"; return 0; }
    sleep 0.2
  done
  echo "No window titled $1 appeared" >&2
  return 1
}

main=$(wait_for_window '^Vantrel v')
xdotool windowactivate --sync "$main"
xdotool key --clearmodifiers ctrl+o
wait_for_window '^Open Layout$' >/dev/null
sleep 0.5
for _ in $(seq "$row"); do xdotool key Down; sleep 0.1; done
xdotool key Return
wait_for_window '^Vantrel v.* - ' >/dev/null
sleep 1
mkdir -p "$(dirname "$picture")"
import -window "$main" "$picture"
