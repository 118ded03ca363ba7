# Sourced by run.sh: starts the program in a scratch folder, finds things on its screen, drives it.
# shellcheck shell=bash

# start_program [KEEP]: a fresh folder (or the current one) with the first questions answered.
start_program() {
  if [ "${1:-}" != KEEP ]; then
    store=$(mktemp -d)
    cp "$program" "$store/vantrel"
    printf 'playful=0\nasked=1\n' >"$store/prefs.cfg"
  fi
  # HOME: the logs and anything else personal go to the scratch folder.
  HOME=$store/home XDG_DATA_HOME=$store/home LC_ALL=C.UTF-8 "$store/vantrel" \
    >"$store/stdout" 2>"$store/stderr" &
  pid=$!
  main=$(window '^Vantrel v') || return 1
  xdotool windowmove "$main" 20 30 windowactivate --sync "$main"
  settle
  find_canvas
}

stop_program() {
  kill "$pid" 2>/dev/null
  wait "$pid" 2>/dev/null
  rm -rf "$store"
}

# The time the program needs to answer an event and paint.
settle() { sleep "${1:-0.4}"; }

# window TITLE-PATTERN: the id of a visible window with such a title, waiting for it.
window() {
  local id
  for _ in $(seq 100); do
    id=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | tail -n 1)
    [ -n "$id" ] && { echo "$id"; return 0; }
    sleep 0.1
  done
  problem="no window titled $1"
  return 1
}

window_gone() {
  for _ in $(seq 100); do
    [ -z "$(xdotool search --onlyvisible --name "$1" 2>/dev/null)" ] && return 0
    sleep 0.1
  done
  problem="the window titled $1 stays"
  return 1
}

title() { xdotool getwindowname "$main"; }

# picture NAME: what the screen shows now, kept in the output folder.
picture() { import -window root "$output/$1.png" 2>/dev/null; }

# pixels COLOUR: every pixel of that colour on the screen, as "x y" lines.
pixels() {
  import -window root "$store/screen.png"
  convert "$store/screen.png" -fill black +opaque "$1" -fill white -opaque "$1" \
    -threshold 50% txt:- | awk -F'[,:]' '/#FFFFFF/ {print $1, $2}'
}

# find_canvas: sets canvas_x, canvas_y to the canvas's top left corner on the screen. At the start
# the world's origin lies at (60, 60) and both rulers mark it with a red line.
find_canvas() {
  local marks
  marks=$(pixels '#C85050')
  canvas_x=$(awk '{print $1}' <<<"$marks" | sort -n | uniq -c | sort -rn | awk 'NR==1 {print $2 - 60}')
  canvas_y=$(awk '{print $2}' <<<"$marks" | sort -n | uniq -c | sort -rn | awk 'NR==1 {print $2 - 60}')
  [ -n "$canvas_x" ] && [ -n "$canvas_y" ]
}

# find_palette: sets palette_x, palette_y to the first header row of the track page (its top left).
find_palette() {
  read -r palette_x palette_y < <(pixels '#4B5564' | sort -k2,2n -k1,1n | head -n 1)
  [ -n "${palette_y:-}" ] || problem="no section header in the palette"
  [ -n "${palette_y:-}" ]
}

# cell ROW COLUMN: the screen point in the middle of an icon of the palette's first section (from 0).
# A header is 22 pixels high, an icon line 102, an icon 80; icons begin 6 pixels in.
cell() {
  local pitch=${palette_pitch:?}
  echo $((palette_x + 6 + $2 * pitch + 40)) $((palette_y + 22 + $1 * 102 + 40))
}

move() { xdotool mousemove "$1" "$2"; sleep 0.05; }

# glide X Y: moves there in steps, so that the program sees motion and not a jump.
glide() {
  local x y steps=8
  eval "$(xdotool getmouselocation --shell | sed -n 's/^X=/x=/p;s/^Y=/y=/p')"
  for i in $(seq $steps); do
    xdotool mousemove $((x + ($1 - x) * i / steps)) $((y + ($2 - y) * i / steps))
    sleep 0.03
  done
}

press() { xdotool mousedown "${1:-1}"; sleep 0.08; }
release() { xdotool mouseup "${1:-1}"; sleep 0.08; }
click() { press "$@"; release "$@"; }

# drag_from_palette ROW COLUMN X Y: presses on an icon, pulls the piece to a point of the canvas,
# lets the button go and drops it with the next press.
drag_from_palette() {
  # shellcheck disable=SC2046
  move $(cell "$1" "$2")
  press
  glide $((canvas_x + $3)) $((canvas_y + $4))
  release
  glide $((canvas_x + $3 + 1)) $((canvas_y + $4))
  glide $((canvas_x + $3)) $((canvas_y + $4))
  settle
}
drop() { click; settle; }

key() { xdotool key --clearmodifiers "$@"; settle; }

# save_as NAME: Ctrl+S with a name typed into its dialog.
save_as() {
  xdotool key --clearmodifiers ctrl+s
  window '^Save Layout$' >/dev/null || return 1
  settle
  xdotool key --clearmodifiers ctrl+a
  xdotool type --delay 20 "$1"
  xdotool key Return
  window_gone '^Save Layout$' && settle
}

# attribute NAME LINE-PATTERN FILE [N]: an attribute of the Nth line that matches.
attribute() {
  grep -- "$2" "$3" | sed -n "${4:-1}p" | sed -n "s/.* $1=\"\([^\"]*\)\".*/\1/p"
}

# expect WHAT EXPECTED ACTUAL
expect() {
  [ "$2" = "$3" ] && return 0
  problem="$1: expected '$2', got '$3'"
  return 1
}
