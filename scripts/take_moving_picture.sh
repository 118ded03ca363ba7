#!/usr/bin/env bash
# take_moving_picture.sh PROGRAM PICTURE.gif: films how an oval is laid and its ring closes, with the
# real program and a real mouse, for the README. It wants a display of its own and ffmpeg:
#   scripts/on_virtual_display.sh scripts/take_moving_picture.sh build/release/bin/vantrel \
#     docs/first-oval.gif
# Look at single frames of it afterwards: ffmpeg -i docs/first-oval.gif -r 1 frame%02d.png
set -e
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$root/scripts/lib.sh"
need_packages ffmpeg
program=$(realpath "$1")
picture=$(realpath "$2")
. "$root/tests/e2e/driver.sh"

# Wide enough for the oval: the view follows what lies outside of it.
size=1340x740
film=$(mktemp --suffix=.mkv)
camera=
cleanup() {
  [ -n "$camera" ] && kill "$camera" 2>/dev/null
  stop_program || true
  rm -f "$film"
}
trap cleanup EXIT

# stroll X Y: moves the pointer there as a hand does.
stroll() {
  local i X=0 Y=0 steps=${3:-9} way=()
  eval "$(xdotool getmouselocation --shell | grep '^[XY]=')"
  for i in $(seq "$steps"); do
    way+=(mousemove $((X + ($1 - X) * i / steps)) $((Y + ($2 - Y) * i / steps)) sleep 0.03)
  done
  xdotool "${way[@]}"
}

# add INDEX SECTIONS TIMES: double clicks on a part of the palette.
add() {
  # shellcheck disable=SC2046
  stroll $(cell "$2" "$1")
  for _ in $(seq "$3"); do
    xdotool click --repeat 2 --delay 30 1
    sleep 0.2
  done
}

start_program
xdotool windowsize --sync "$main" "${size%x*}" "${size#*x}"
settle long
find_canvas
find_palette
corner=$(xwininfo -id "$main" | awk '/Absolute upper-left/ {printf "%s%s", sep, $NF; sep = ","}')
xdotool mousemove $((canvas_x + 420)) $((canvas_y + 330))
ffmpeg -loglevel error -y -f x11grab -draw_mouse 1 -framerate 12 -video_size "$size" \
  -i "$DISPLAY+$corner" -c:v ffv1 -flush_packets 1 "$film" &
camera=$!
until [ -s "$film" ]; do sleep 0.05; done

# The straight hangs at the pointer until the next click. Canvas (300, 180) is (600 mm, 300 mm).
straight=5
curve=0
before_curves=9
# shellcheck disable=SC2046
stroll $(cell "" "$straight")
xdotool mousedown 1
stroll $((canvas_x + 300)) $((canvas_y + 180)) 14
xdotool mouseup 1
sleep 0.3
xdotool click 1
sleep 0.5
add "$straight" "" 1
add "$curve" "$before_curves" 6
add "$straight" "" 2
add "$curve" "$before_curves" 6
# The last curve is pulled off a little, and snaps to both ends.
stroll $((canvas_x + 263)) $((canvas_y + 185)) 12
xdotool mousedown 1
stroll $((canvas_x + 256)) $((canvas_y + 171)) 6
sleep 0.2
stroll $((canvas_x + 263)) $((canvas_y + 181)) 6
xdotool mouseup 1
sleep 0.3
stroll $((canvas_x + 400)) $((canvas_y + 300))
sleep 1.2
kill -INT "$camera"
wait "$camera" || true
camera=

# However long it took: shown in ten seconds.
length=$(ffprobe -loglevel error -show_entries packet=pts_time -of csv=p=0 "$film" | tail -n 1)
mkdir -p "$(dirname "$picture")"
ffmpeg -loglevel error -y -i "$film" -vf "setpts=PTS*10/${length%,},fps=12,scale=960:-1:flags=lanczos,split[a][b];\
[a]palettegen=max_colors=96:stats_mode=diff[p];[b][p]paletteuse=dither=none:diff_mode=rectangle" \
  "$picture"
ls -l "$picture"
