# Sourced by run.sh: selecting, moving, turning, extending, copying and deleting with the real mouse
# and keys.
# shellcheck shell=bash

# The colours of a bed of plain track, of a selected one, and of one in a tunnel.
bed='#D2D2CD'
selected_bed='#B4C8E6'
tunnel_bed='#D8D8D6'

# arc_point CX CY RADIUS DEGREES: a world point, in whole millimetres.
arc_point() {
  awk -v cx="$1" -v cy="$2" -v r="$3" -v a="$4" 'BEGIN {
    a *= atan2(0, -1) / 180; printf "%d %d\n", cx + r * cos(a), cy + r * sin(a) }'
}

# Double clicks on the last curve, five times: six curves of 30 degrees around (CX, CY), the first
# of which begins at the angle FROM.
half_circle() {
  local i
  for i in 0 1 2 3 4; do
    # shellcheck disable=SC2046
    at $(arc_point "$1" "$2" 360 $(($3 + 15 + 30 * i)))
    double_click
  done
}

# double_clicks N SECONDS: at the pointer, each beginning so long after the one before. One run of
# xdotool, which takes the 120 ms of its two clicks.
double_clicks() {
  local clicks=() pause
  pause=$(awk -v period="$2" 'BEGIN { print period - 0.12 }')
  for _ in $(seq "$1"); do clicks+=(click --repeat 2 --delay 60 1 sleep "$pause"); done
  xdotool "${clicks[@]}"
  settle
}

# row_of_seven SECONDS: one straight from the palette and six double clicks there, at that pace.
row_of_seven() {
  local plan="$store/Row $1.vtl"
  # The 24188 is the sixth straight. Canvas (60, 300) is (0, 600).
  # shellcheck disable=SC2046
  drag_from $(cell "" 5) 60 300
  drop
  # shellcheck disable=SC2046
  move $(cell "" 5)
  double_clicks 6 "$1"
  save_as "Row $1" || return 1
  expect "pieces, $1 s apart" 7 "$(piece_count "$plan")" || return 1
  # Six joins, and each is written at both of its ends.
  expect "slots joined, $1 s apart" 12 "$(grep -c '<joint' "$plan")" || return 1
  # 6 * 188.3 = 1129.8
  expect "end of the row, $1 s apart" 1129.8000 "$(attribute x '<piece id="7"' "$plan")"
}

test_quick_double_clicks_in_the_palette_add_a_piece_each() {
  find_palette || return 1
  row_of_seven 0.6 || return 1
  key ctrl+n
  row_of_seven 0.3
}

test_two_quick_double_clicks_on_a_piece_extend_both_its_ends() {
  find_palette || return 1
  # shellcheck disable=SC2046
  drag_from $(cell "" 5) 300 300
  drop
  at 694 600
  double_clicks 2 0.6
  save_as Both || return 1
  # At 600 + 188.3, and at 600 - 188.3.
  expect "pieces" '600.0000 788.3000 411.7000 ' \
    "$(attribute x '<piece ' "$store/Both.vtl" 1,3 | tr '\n' ' ')"
}

test_an_oval_is_built_by_double_clicks_and_closed_by_a_drag() {
  local plan="$store/Oval.vtl"
  find_palette || return 1
  # The 24130 is the first curve, the 24188 the sixth straight. Canvas (300, 220) is (600, 400).
  # shellcheck disable=SC2046
  drag_from $(cell "9" 0) 300 220
  drop
  half_circle 600 760 -90
  # shellcheck disable=SC2046
  move $(cell "" 5)
  double_click
  # shellcheck disable=SC2046
  move $(cell "9" 0)
  double_click
  half_circle 412 760 90
  # shellcheck disable=SC2046
  move $(cell "" 5)
  double_click
  save_as Oval || return 1
  expect "pieces" 14 "$(piece_count "$plan")" || return 1
  # The last straight is joined at one end only, though both meet.
  expect "slots joined" 26 "$(grep -c '<joint' "$plan")" || return 1

  # The press after an extension does nothing: this one is for it.
  at 506 600
  click
  at 506 400
  press
  at 506 250
  picture oval_open
  at 506 392
  release
  settle
  key ctrl+s
  picture oval_closed
  expect "slots joined by the drop" 28 "$(grep -c '<joint' "$plan")" || return 1
  expect "last x" 411.7000 "$(attribute x '<piece id="14"' "$plan")" || return 1
  expect "last y" 400.0000 "$(attribute y '<piece id="14"' "$plan")" || return 1
  key ctrl+z
  key ctrl+s
  expect "slots joined after Undo" 26 "$(grep -c '<joint' "$plan")" || return 1
}

test_a_band_selects_and_the_menus_copy_and_paste() {
  local plan="$store/Copies.vtl"
  find_palette || return 1
  # shellcheck disable=SC2046
  drag_from $(cell "" 5) 300 300
  drop
  # The second one is joined by a double click.
  at 690 600
  double_click
  # For the press that does nothing.
  at 300 300
  click
  at 500 500
  press
  at 1100 700
  picture rubber_band
  release
  settle
  at 690 600
  # Behind "Autofill Gap...", which two pieces offer first.
  choose_entry 2
  at 1000 1200
  choose_entry 1
  save_as Copies || return 1
  expect "pieces" 4 "$(piece_count "$plan")" || return 1
  expect "slots joined" 4 "$(grep -c '<joint' "$plan")" || return 1
  expect "copies selected" 2 "$(grep '<piece ' "$plan" | sed -n 3,4p | grep -c 'sel="1"')" || return 1
  # The two origins lie 188.3 apart: their middle, not the row's, lands on the press.
  expect "first copy's x" 905.8500 "$(attribute x '<piece id="3"' "$plan")" || return 1
  expect "first copy's y" 1200.0000 "$(attribute y '<piece id="3"' "$plan")" || return 1
}

test_alt_turns_to_a_right_angle_and_flashes_green() {
  local plan="$store/Turned.vtl" green
  find_palette || return 1
  # shellcheck disable=SC2046
  drag_from $(cell "" 5) 300 300
  drop
  at 900 600
  xdotool keydown alt
  press
  at 900 900
  # It flashes for less than half a second: one look at the screen, and where that came too late,
  # back and once more.
  for _ in 1 2 3 4 5; do
    at 607 1000
    picture right_angle
    green=$(pixels '#00FF64' "$output/right_angle.png")
    [ -z "$green" ] || break
    at 900 900
  done
  [ -n "$green" ] || problem="no green angle"
  release
  xdotool keyup alt
  settle
  save_as Turned || return 1
  expect "heading" 90.0000 "$(attribute heading '<piece id="1"' "$plan")" || return 1
  expect "x" 600.0000 "$(attribute x '<piece id="1"' "$plan")" || return 1
  [ -z "$problem" ]
}

test_ctrl_with_the_wheel_turns_the_selection_and_alone_it_zooms() {
  local plan="$store/Wheeled.vtl" marks
  find_palette || return 1
  # shellcheck disable=SC2046
  drag_from $(cell "" 5) 300 300
  drop
  marks=$(pixels '#C85050')
  xdotool keydown ctrl
  click 4
  click 4
  xdotool keydown shift
  click 5
  xdotool keyup shift
  xdotool keyup ctrl
  settle
  expect "the view" "$marks" "$(pixels '#C85050')" || return 1
  save_as Wheeled || return 1
  # Twice 15 degrees forward, then 5 back.
  expect "heading" 25.0000 "$(attribute heading '<piece id="1"' "$plan")" || return 1
  key Escape
  xdotool keydown ctrl
  click 4
  xdotool keyup ctrl
  settle
  [ "$marks" != "$(pixels '#C85050')" ] || { problem="the wheel doesn't zoom"; return 1; }
}

test_a_turntable_is_deleted_with_its_spokes() {
  local plan="$store/Gone.vtl"
  find_palette || return 1
  # shellcheck disable=SC2046
  scroll_palette_to $(cell "9 14 5 3 2 4 2" 3) || return 1
  drag_from "$point_x" "$point_y" 300 300
  drop
  save_as Gone || return 1
  expect "pieces" 7 "$(piece_count "$plan")" || return 1
  key Escape
  at 600 600
  click
  key Delete
  key ctrl+s
  expect "pieces after Delete" 0 "$(piece_count "$plan")" || return 1
  key ctrl+z
  key ctrl+s
  expect "pieces after Undo" 7 "$(piece_count "$plan")" || return 1
  # The undone plan remembers its selection; Backspace does the same as Delete.
  key Escape
  at 600 600
  click
  key BackSpace
  key ctrl+s
  expect "pieces after Backspace" 0 "$(piece_count "$plan")" || return 1
}

one_straight='<pieces>
<piece id="1" cat="24188" x="0.0000" y="0.0000" heading="0.0000" z="0.0000" grade="%s" level="1" sel="0">
</piece>
</pieces>'

test_graded_track_is_asked_about_and_both_answers_hold() {
  local plan="$store/Graded.vtl"
  # shellcheck disable=SC2059
  write_plan Graded "$(printf "$one_straight" 2.5000)"
  open_plan || return 1
  middle_of_bed || return 1
  press
  glide $((bed_x + 100)) $((bed_y + 60))
  release
  answer_box Move alt+n || return 1
  key ctrl+s
  expect "x after No" 0.0000 "$(attribute x '<piece ' "$plan")" || return 1
  # Nothing is left pressed: the next drag asks again.
  glide "$bed_x" "$bed_y"
  press
  glide $((bed_x + 100)) $((bed_y + 60))
  release
  answer_box Move alt+y || return 1
  middle_of_bed || return 1
  press
  glide $((bed_x + 100)) $((bed_y + 60))
  release
  settle
  key ctrl+s
  [ "$(attribute x '<piece ' "$plan")" != 0.0000 ] || { problem="it didn't move"; return 1; }
  key Delete
  answer_box Delete alt+n || return 1
  key ctrl+s
  expect "pieces after No" 1 "$(piece_count "$plan")" || return 1
  key Delete
  answer_box Delete alt+y || return 1
  key ctrl+s
  expect "pieces after Yes" 0 "$(piece_count "$plan")" || return 1
}

# Sets bed_x, bed_y to a point on the only piece on the canvas, selected or not, off its number, and
# goes there. The icons of the palette and the borders of the panel have the same colours.
middle_of_bed() {
  local box
  box=$( (pixels "$bed"; pixels "$selected_bed"; pixels "$tunnel_bed") | awk -v left="$canvas_x" '
    $1 < left || $1 > left + 700 {next}
    !n++ {x0 = x1 = $1; y0 = y1 = $2}
    {if ($1 < x0) x0 = $1; if ($1 > x1) x1 = $1; if ($2 < y0) y0 = $2; if ($2 > y1) y1 = $2}
    END {if (n) print int(x0 + (x1 - x0) / 4), int((y0 + y1) / 2)}')
  [ -n "$box" ] || { problem="no track on the screen"; return 1; }
  bed_x=${box% *}
  bed_y=${box#* }
  glide "$bed_x" "$bed_y"
}

test_tunnel_track_is_locked_until_the_tunnel_goes() {
  local plan="$store/Tunnel.vtl"
  # shellcheck disable=SC2059
  write_plan Tunnel "$(printf "$one_straight" 0.0000)
<tunnels>
<tunnel id=\"2\" portalA=\"3\" portalB=\"4\" anchorA=\"1\" anchorB=\"1\">
<covers piece=\"1\"/>
</tunnel>
</tunnels>"
  open_plan || return 1
  middle_of_bed || return 1
  press
  glide $((bed_x + 100)) $((bed_y + 60))
  release
  answer_box 'Tunnel is locked' Return || return 1
  glide "$bed_x" "$bed_y"
  click
  key Delete
  answer_box 'Tunnel is locked' Return || return 1
  key ctrl+s
  expect "pieces" 1 "$(piece_count "$plan")" || return 1
  expect "x" 0.0000 "$(attribute x '<piece ' "$plan")" || return 1
}

test_a_helix_goes_by_the_key_but_not_by_the_menu() {
  local plan="$store/Helix.vtl" stubs='' i y
  y=(340 262.5 1060 1137.5)
  for i in 0 1 2 3; do
    stubs+="<piece id=\"$((i + 2))\" cat=\"24188\" x=\"600\" y=\"${y[i]}\" heading=\"0\" z=\"0\" grade=\"0\" level=\"1\" helix=\"1\" sel=\"0\">
</piece>
"
  done
  write_plan Helix "<pieces>
$stubs</pieces>
<helices>
<helix id=\"1\" cx=\"600\" cy=\"700\" heading=\"0\" variant=\"proses_2_5_r1r2\" bottomR1=\"2\" bottomR2=\"3\" topR1=\"4\" topR2=\"5\"/>
</helices>"
  open_plan || return 1
  key ctrl+a
  key alt+e
  key d
  answer_box 'Helix track is locked' Return || return 1
  key ctrl+s
  expect "pieces after Edit, Delete" 4 "$(piece_count "$plan")" || return 1
  # A press on the outermost ring, at its left, takes the helix up and gives the canvas the focus.
  # shellcheck disable=SC2046
  glide $(pixels "$selected_bed" | sort -n | awk -v left="$canvas_x" '$1 > left {print $1 + 4, $2; exit}')
  click
  key Delete
  key ctrl+s
  expect "pieces after the key" 0 "$(piece_count "$plan")" || return 1
  expect "helices" 0 "$(grep -c '<helix ' "$plan")" || return 1
}
