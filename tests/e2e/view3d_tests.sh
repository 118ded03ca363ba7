# Sourced by run.sh: the 3D window with the real mouse and keys, beside the canvas and alone.
# shellcheck shell=bash

# The tool "3D View" stands above the canvas, 344 pixels from the window's left edge.
click_view_tool() {
  local X=0
  eval "$(xdotool getwindowgeometry --shell "$main" | grep '^X=')"
  move $((X + 344)) $((canvas_y - 22))
  click
}

# open_view: a click on the tool; sets view, and puts it into the lower right corner, beside
# palette and canvas.
open_view() {
  click_view_tool
  view=$(window '^3D View - Vantrel$') || { problem="no 3D window"; return 1; }
  xdotool windowsize --sync "$view" 420 320
  xdotool windowmove --sync "$view" 1100 700
  settle long
}

# view_shot NAME: what the 3D window shows, kept in the output folder; prints a checksum of it.
view_shot() {
  xdotool windowraise "$view"
  settle long
  import -window "$view" "$output/$1.png" 2>/dev/null
  convert "$output/$1.png" rgb:- | md5sum | cut -d' ' -f1
}

# in_view X Y: moves the pointer to a point of the 3D window, counted from its frame.
in_view() {
  glide $((1100 + $1)) $((700 + $2))
}

# drag_in_view BUTTON X Y TO-X TO-Y
drag_in_view() {
  in_view "$2" "$3"
  press "$1"
  in_view "$4" "$5"
  release "$1"
  settle
}

# close_view: by the button of its frame, as a user does.
close_view() {
  xdotool windowraise "$view"
  in_view 411 10
  click
  window_gone '^3D View - Vantrel$'
}

# differs WHAT ONE OTHER
differs() {
  [ "$2" != "$3" ] && return 0
  problem="$1: the 3D window looks the same"
  return 1
}

# complaints: what the program has said of failed checks of the toolkit and of the display.
complaints() { grep -E 'assert "|X Error|GLX|terminate' "$store/stderr"; }

alive() {
  kill -0 "$pid" 2>/dev/null && [ -z "$(complaints)" ] && return 0
  problem="the program has ended or complained: $(complaints)"
  return 1
}

three_straights='<pieces>
<piece id="1" cat="24188" x="0.0000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
</piece>
<piece id="2" cat="24188" x="188.3000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
</piece>
<piece id="3" cat="24188" x="0.0000" y="200.0000" heading="0.0000" z="60.0000" grade="0.0000" level="1" sel="0">
</piece>
</pieces>'

test_the_3d_view_turns_pans_zooms_and_closes() {
  local start zoomed
  write_plan Straights "$three_straights"
  open_plan || return 1
  open_view || return 1
  start=$(view_shot view3d_start)
  drag_in_view 1 150 150 230 100
  differs "turned" "$start" "$(view_shot view3d_turned)" || return 1
  key r
  expect "after R" "$start" "$(view_shot view3d_reset)" || return 1
  drag_in_view 3 150 150 230 180
  differs "panned" "$start" "$(view_shot view3d_panned)" || return 1
  key shift+r
  expect "after R in capitals" "$start" "$(view_shot view3d_reset)" || return 1
  in_view 150 150
  click 4
  settle
  zoomed=$(view_shot view3d_zoomed)
  differs "zoomed" "$start" "$zoomed" || return 1
  key r
  expect "zoom after R" "$zoomed" "$(view_shot view3d_zoomed)" || return 1
  xdotool click --repeat 50 --delay 10 5
  settle
  differs "zoomed out" "$zoomed" "$(view_shot view3d_far)" || return 1
  close_view || return 1
  alive || return 1
  # Once more: it begins as the first one did.
  open_view || return 1
  expect "opened again" "$start" "$(view_shot view3d_again)" || return 1
  alive
}

test_the_3d_view_is_one_and_comes_to_the_front() {
  open_view || return 1
  xdotool windowraise "$main"
  settle
  click_view_tool
  settle long
  expect "windows" 1 "$(xdotool search --onlyvisible --name '^3D View - Vantrel$' | wc -l)" || return 1
  # The window manager lists windows from the bottom to the top.
  expect "front window" "$view" "$(xprop -root _NET_CLIENT_LIST_STACKING | tr -d ' ' | tr ',#' '\n' |
    tail -n 1 | xargs printf '%d')" || return 1
  alive
}

test_edits_show_in_the_open_3d_view() {
  local empty one two dragged new
  find_palette || return 1
  open_view || return 1
  empty=$(view_shot view3d_empty)
  # shellcheck disable=SC2046
  drag_from $(cell "9" 0) 300 220
  drop
  one=$(view_shot view3d_one_piece)
  differs "a piece dropped" "$empty" "$one" || return 1
  # For the press that does nothing, and a second piece by a double click.
  at 1000 900
  click
  at 640 420
  double_click
  two=$(view_shot view3d_two_pieces)
  differs "a piece added" "$one" "$two" || return 1
  xdotool windowactivate --sync "$main"
  key ctrl+z
  expect "undone" "$one" "$(view_shot view3d_undone)" || return 1
  xdotool windowactivate --sync "$main"
  key ctrl+y
  expect "redone" "$two" "$(view_shot view3d_redone)" || return 1
  # A drag on the canvas goes on beside the window, and shows there once it has ended.
  # The press after an extension does nothing: the first one is for it.
  at 1000 900
  click
  at 660 420
  press
  at 800 600
  at 900 700
  picture view3d_beside_a_drag
  release
  settle
  dragged=$(view_shot view3d_dragged)
  differs "a piece dragged" "$two" "$dragged" || return 1
  xdotool windowactivate --sync "$main"
  save_as Two || return 1
  xdotool windowactivate --sync "$main"
  key ctrl+n
  new=$(view_shot view3d_new)
  differs "a new layout" "$dragged" "$new" || return 1
  xdotool windowactivate --sync "$main"
  open_plan || return 1
  differs "a layout opened" "$new" "$(view_shot view3d_opened)" || return 1
  alive
}

test_the_program_ends_with_its_3d_view_open() {
  local status
  open_view || return 1
  xdotool windowactivate --sync "$main"
  key alt+f
  key x
  window_gone '^Vantrel v' || return 1
  window_gone '^3D View - Vantrel$' || return 1
  wait "$pid"
  status=$?
  expect "exit status" 0 "$status" || return 1
  expect "complaints" '' "$(complaints)"
}

check_without_opengl() {
  open_view || return 1
  picture view3d_no_opengl
  expect "black pixels in the window" 0 "$(import -window "$view" txt:- | grep -c '#000000')" || return 1
  key ctrl+n
  close_view || return 1
  open_view || return 1
  alive
}

test_without_opengl_the_window_says_so_and_the_program_goes_on() {
  local numbers server manager result outer=$DISPLAY
  stop_program
  numbers=$(mktemp)
  Xvfb -displayfd 3 -screen 0 1600x1100x24 -nolisten tcp -extension GLX 3>"$numbers" 2>/dev/null &
  server=$!
  until_true 30 test -s "$numbers"
  DISPLAY=:$(tr -d '\n' <"$numbers")
  openbox --config-file "$here/../../scripts/openbox.xml" >/dev/null 2>&1 &
  manager=$!
  local VANTREL_DISPLAY_PROCESSES="$server $manager"
  settle long
  start_program
  check_without_opengl
  result=$?
  stop_program
  kill "$manager" "$server"
  wait "$manager" "$server" 2>/dev/null
  rm -f "$numbers"
  DISPLAY=$outer
  return "$result"
}
