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

# nap SECONDS: a short rest, without starting a process for it.
exec {nothing}<> <(:)
nap() { read -rt "$1" -u "$nothing" || true; }

# in_time SECONDS: sets `deadline`, for `late`.
in_time() { deadline=$((${EPOCHREALTIME//[!0-9]/} + $1 * 1000000)); }
late() { [ "${EPOCHREALTIME//[!0-9]/}" -gt "$deadline" ]; }

# until_true SECONDS COMMAND...: whether the command succeeds before that time is over.
until_true() {
  local deadline
  in_time "$1"
  shift
  while ! "$@"; do
    late && return 1
    nap 0.03
  done
}

# Sets `activity` to how often each thread of the program, the display and the window manager has
# been put to sleep so far, or to "busy" if one of them is awake.
look_for_activity() {
  local process file lines text
  activity=
  for process in "$pid" $VANTREL_DISPLAY_PROCESSES; do
    for file in /proc/"$process"/task/*/status; do
      lines=()
      mapfile -t lines 2>/dev/null <"$file"
      text=${lines[*]}
      case $text in *State:?[RD]*) activity=busy; return ;; esac
      activity+=${text#*voluntary_ctxt_switches:}
    done
  done
}

# settle [brief|long]: waits until whatever was sent has been answered and painted, that is until all
# that take part sleep, and none of them has woken between one look and the next, five times running,
# or once, or fifteen times. Looks are 20 ms apart; a frame comes at most 17 ms after the one before,
# and a caret blinks every 400 ms, so no while can be as long. Looks are counted and not the time, of
# which a machine may lose any amount. After 30 seconds it goes on all the same: what the test expects
# is then there or isn't.
settle() {
  local looks=5 alike=0 activity before=busy deadline
  [ "${1:-}" != brief ] || looks=1
  [ "${1:-brief}" = brief ] || looks=15
  in_time 30
  until [ "$alike" -ge "$looks" ] || late; do
    nap 0.02
    look_for_activity
    alike=$((alike + 1))
    [ "$activity" != busy ] && [ "$activity" = "$before" ] || alike=0
    before=$activity
  done
}

# window TITLE-PATTERN: the id of a visible window with such a title, waiting for it and for what it
# does at first.
window() {
  if until_true 60 is_shown "$1"; then
    settle
    windows_titled "$1" | tail -n 1
    return 0
  fi
  problem="no window titled $1"
  return 1
}

window_gone() {
  if until_true 60 is_gone "$1"; then
    settle
    return 0
  fi
  problem="the window titled $1 stays"
  return 1
}

windows_titled() { xdotool search --onlyvisible --name "$1" 2>/dev/null; }
is_shown() { [ -n "$(windows_titled "$1")" ]; }
is_gone() { [ -z "$(windows_titled "$1")" ]; }

# has_ended: whether the program ends, waiting for it.
has_ended() { until_true 30 is_over; }
is_over() { ! kill -0 "$pid" 2>/dev/null; }

title() { xdotool getwindowname "$main"; }

# picture NAME: what the screen shows now, kept in the output folder.
picture() { import -window root "$output/$1.png" 2>/dev/null; }

# pixels COLOUR [PICTURE]: every pixel of that colour on the screen, or on a picture, as "x y" lines.
pixels() {
  # Of a picture that is transparent elsewhere this format names only the pixels left.
  convert "${2:-x:root}" -alpha set -channel RGBA -fill none +opaque "$1" sparse-color:- | tr ' ' '\n' |
    awk -F, '/^[0-9]/ {print $1, $2}'
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

# find_palette: sets palette_x, palette_y to the top left corner of the first section header of the
# track page, palette_columns and palette_pitch to the columns that its width gives.
find_palette() {
  local band width
  band=$(pixels '#4B5564')
  [ -n "$band" ] || { problem="no section header in the palette"; return 1; }
  palette_y=$(awk '{print $2}' <<<"$band" | sort -n | head -n 1)
  palette_x=$(awk '{print $1}' <<<"$band" | sort -n | head -n 1)
  width=$(($(awk '{print $1}' <<<"$band" | sort -n | tail -n 1) - palette_x + 1))
  palette_columns=1
  [ "$width" -ge 156 ] && palette_columns=2
  [ "$width" -ge 228 ] && palette_columns=3
  palette_pitch=$(((width - 6) / palette_columns))
}

# cell SECTION-SIZES INDEX: the screen point in the middle of the icon number INDEX (from 0) of the
# section behind sections of these sizes ("9 14" or ""), with the palette scrolled to its top.
# A header is 22 pixels high, an icon line 102, an icon 80; icons begin 6 pixels in.
cell() {
  local y=0 size
  for size in $1; do
    y=$((y + 22 + (size + palette_columns - 1) / palette_columns * 102))
  done
  y=$((y + 22 + $2 / palette_columns * 102 + 40))
  echo $((palette_x + 6 + $2 % palette_columns * palette_pitch + 40)) $((palette_y + y))
}

# scroll_palette_to X Y: scrolls the palette until that point, given as if nothing were scrolled, is
# in view, and sets point_x, point_y to where it is then.
scroll_palette_to() {
  local before after step clicks
  before=$(pixels '#4B5564' | awk '{print $2}' | sort -n | tail -n 1)
  move $((palette_x + 40)) $((palette_y + 200))
  click 5
  settle
  after=$(pixels '#4B5564' | awk '{print $2}' | sort -n | tail -n 1)
  step=$((before - after))
  [ "$step" -gt 0 ] || { problem="the palette doesn't scroll"; return 1; }
  clicks=$((($2 - palette_y - 300) / step + 1))
  [ "$clicks" -lt 1 ] && clicks=1
  [ "$clicks" -gt 1 ] && xdotool click --repeat $((clicks - 1)) --delay 30 5
  settle
  point_x=$1
  point_y=$(($2 - clicks * step))
}

move() {
  xdotool mousemove "$1" "$2"
  settle brief
}

# glide X Y: moves there in steps, so that the program sees motion and not a jump. The last one waits
# until the others are dealt with: of motions that come while the program asks where the pointer is,
# the display tells it no more.
glide() {
  local i X=0 Y=0 steps=4 way=()
  eval "$(xdotool getmouselocation --shell | grep '^[XY]=')"
  for i in $(seq $((steps - 1))); do
    way+=(mousemove $((X + ($1 - X) * i / steps)) $((Y + ($2 - Y) * i / steps)) sleep 0.018)
  done
  xdotool "${way[@]}"
  settle brief
  move "$1" "$2"
}

# single: waits, after a press nearly here, until the next one can't make a double click with it.
single() {
  local X=0 Y=0 dx dy
  eval "$(xdotool getmouselocation --shell | grep '^[XY]=')"
  dx=$((X - pressed_x)) dy=$((Y - pressed_y))
  if [ $((dx * dx + dy * dy)) -lt 400 ]; then
    while [ $((${EPOCHREALTIME//[!0-9]/} - pressed_at)) -lt 600000 ]; do nap 0.02; done
  fi
  pressed_x=$X pressed_y=$Y pressed_at=${EPOCHREALTIME//[!0-9]/}
}
pressed_x=0 pressed_y=0 pressed_at=0

press() {
  [ "${1:-1}" -gt 3 ] || single
  xdotool mousedown "${1:-1}"
}
release() { xdotool mouseup "${1:-1}"; }
click() { press "$@"; release "$@"; }

# drag_from X Y TO-X TO-Y: presses on an icon at a screen point, pulls the piece to a point of the
# canvas, and lets the button go. The piece follows the pointer until the next press.
drag_from() {
  move "$1" "$2"
  press
  glide $((canvas_x + $3)) $((canvas_y + $4))
  release
  glide $((canvas_x + $3 + 2)) $((canvas_y + $4))
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

# at WORLD-X WORLD-Y: moves the pointer there, under the view that the program starts with.
at() {
  glide $((canvas_x + 60 + $1 * 2 / 5)) $((canvas_y + 60 + $2 * 2 / 5))
}

double_click() {
  single
  xdotool click --repeat 2 --delay 60 1
  settle
}

# drag_to SCREEN-X SCREEN-Y: with the left button, from where the pointer is.
drag_to() {
  press
  glide "$1" "$2"
  release
  settle
}

shown_windows() { xdotool search --onlyvisible --class . 2>/dev/null | wc -l; }
more_are_shown() { [ "$(shown_windows)" -gt "$1" ]; }

# pop_up COMMAND...: does what makes a menu pop up, and waits for it: a key that comes before would go
# to the window below.
pop_up() {
  local before
  before=$(shown_windows)
  "$@"
  until_true 30 more_are_shown "$before" || true
  settle
}

# choose_entry N: the Nth entry of the context menu that a right press pops up here.
choose_entry() {
  pop_up click 3
  for _ in $(seq "$1"); do key Down; done
  xdotool key Return
  settle
}

# write_plan NAME BODY: a plan in the program's folder; BODY is what stands inside its layout.
write_plan() {
  printf '<?xml version="1.0" encoding="UTF-8"?>\n<layout name="%s" version="1" units="0">\n%s\n</layout>\n' \
    "$1" "$2" >"$store/$1.vtl"
}

# open_plan: the only plan there is.
open_plan() {
  key ctrl+o
  window '^Open Layout$' >/dev/null || return 1
  key Down
  key Return
  window_gone '^Open Layout$' && settle
}

# answer_box TITLE KEY: presses a key in a message box and waits until it has gone.
answer_box() {
  window "^$1\$" >/dev/null || return 1
  settle
  xdotool key "$2"
  window_gone "^$1\$" && settle
}

piece_count() { grep -c '<piece ' "$1"; }

# managing_window: the window by which the one in charge of the display is known.
managing_window() { xprop -root -notype _NET_SUPPORTING_WM_CHECK 2>/dev/null | awk '{print $NF}'; }

is_managed_by() {
  local name
  name=$(managing_window)
  [ "$name" != "$2" ] && xprop -id "$name" -notype _NET_WM_NAME 2>/dev/null | grep -qi "$1"
}

# manage_with WINDOW-MANAGER: takes the display over from the one that runs.
manage_with() {
  local before
  before=$(managing_window)
  case $1 in
    openbox) openbox --replace --config-file "$here/../../scripts/openbox.xml" >/dev/null 2>&1 & ;;
    metacity) HOME=$output dbus-run-session -- metacity --replace --compositor=none >/dev/null 2>&1 & ;;
    *) HOME=$output dbus-run-session -- "$1" --replace --compositor=off >/dev/null 2>&1 & ;;
  esac
  until_true 60 is_managed_by "$1" "$before" && return 0
  problem="$1 doesn't manage the display"
  return 1
}
