# Sourced by run.sh: filling a gap, laying a tunnel and placing a helix with the real mouse and keys.
# shellcheck shell=bash

k_track_bed='#D7C8AF'

# write_two_straights NAME GAP: two 24188, the second that far behind the first one's end.
write_two_straights() {
  local x
  x=$(awk -v gap="$2" 'BEGIN {printf "%.4f", 188.3 + gap}')
  write_plan "$1" "<pieces>
<piece id=\"1\" cat=\"24188\" x=\"0.0000\" y=\"0.0000\" heading=\"0.0000\" z=\"0.0000\" grade=\"0.0000\" level=\"1\" sel=\"0\">
</piece>
<piece id=\"2\" cat=\"24188\" x=\"$x\" y=\"0.0000\" heading=\"0.0000\" z=\"0.0000\" grade=\"0.0000\" level=\"1\" sel=\"0\">
</piece>
</pieces>"
}

# point_of_bed PART: a point of the track on the canvas that has this share of it to its left.
point_of_bed() {
  (pixels "$bed"; pixels "$selected_bed"; pixels "$k_track_bed") | awk -v left="$canvas_x" '$1 > left && $1 < left + 700' | sort -n |
    awk -v part="$1" '{line[NR] = $0} END {print line[int(NR * part) + 1]}'
}

# select_both: the left piece by a click, the right one by Ctrl and a click, where the pointer stays.
select_both() {
  local left right
  left=$(point_of_bed 0.1)
  right=$(point_of_bed 0.9)
  [ -n "$left" ] || { problem="no track on the screen"; return 1; }
  # shellcheck disable=SC2086
  glide $left
  click
  # shellcheck disable=SC2086
  glide $right
  xdotool keydown ctrl
  click
  xdotool keyup ctrl
  settle
}

# open_fill_dialog: from the context menu of the two selected pieces; sets dialog.
open_fill_dialog() {
  choose_entry 1
  dialog=$(window '^Autofill Gap$') || return 1
  settle
}

# row_of_straights FILE: "part x" of each piece, in the order of the file.
row_of_straights() {
  sed -n 's/.*<piece .*cat="\([^"]*\)" x="\([^"]*\)".*/\1 \2/p' "$1" | paste -sd,
}

# joints FILE: "conn target tconn" of each slot, in the order of the file.
joints() {
  sed -n 's/.*<joint conn="\([^"]*\)" target="\([^"]*\)" tconn="\([^"]*\)".*/\1 \2 \3/p' "$1" |
    paste -sd,
}

# press_place, double_click_row N: in that dialog, at its bottom right and on the Nth line of its list.
press_place() {
  local WIDTH HEIGHT X Y
  eval "$(xdotool getwindowgeometry --shell "$dialog" | grep -E '^(X|Y|WIDTH|HEIGHT)=')"
  move $((X + WIDTH - 145)) $((Y + HEIGHT - 45))
  click
}
double_click_row() {
  local X Y
  eval "$(xdotool getwindowgeometry --shell "$dialog" | grep -E '^(X|Y)=')"
  move $((X + 100)) $((Y + 3 + 23 * $1))
  double_click
}

# The rows for a gap of 400 mm, from the longest pieces on and within 1.5 mm: 229.3 + 171.7 = 401.0;
# 229.3 + 94.2 + 77.5 = 401.0; 236.1 + 94.2 + 70.8 = 401.1; 188.3 + 3 * 70.8 = 400.7 and so on.

test_a_gap_is_filled_by_the_button_and_joined_at_both_sides() {
  local plan="$store/Gap.vtl"
  write_two_straights Gap 400
  open_plan || return 1
  select_both || return 1
  open_fill_dialog || return 1
  picture fill_dialog
  press_place
  window_gone '^Autofill Gap$' || return 1
  expect "title" "Vantrel v1.5 by Kelmor - Gap *" "$(title)" || return 1
  picture gap_filled
  key ctrl+s
  # Behind the first one's end at 188.3, and at 188.3 + 229.3.
  expect "row" "24188 0.0000,24188 588.3000,24229 188.3000,24172 417.6000" \
    "$(row_of_straights "$plan")" || return 1
  expect "joints" "1 3 0,0 4 1,0 1 1,1 4 0,0 3 1,1 2 0" "$(joints "$plan")" || return 1
  expect "selected" 1,2 "$(sed -n 's/.*<piece id="\([0-9]*\)".* sel="1".*/\1/p' "$plan" |
    paste -sd,)" || return 1
  key ctrl+z
  key ctrl+s
  expect "pieces after Undo" 2 "$(piece_count "$plan")" || return 1
  expect "joints after Undo" "" "$(joints "$plan")" || return 1
}

test_a_gap_is_filled_by_keys_alone() {
  local plan="$store/Keys.vtl"
  write_two_straights Keys 400
  open_plan || return 1
  select_both || return 1
  open_fill_dialog || return 1
  key Escape
  window_gone '^Autofill Gap$' || return 1
  expect "title after Escape" "Vantrel v1.5 by Kelmor - Keys" "$(title)" || return 1
  key ctrl+s
  expect "pieces after Escape" 2 "$(piece_count "$plan")" || return 1
  expect "selected after Escape" 2 "$(grep -c '<piece .* sel="1"' "$plan")" || return 1
  open_fill_dialog || return 1
  key Down
  key Down
  key Down
  key Up
  picture third_fill
  key Return
  window_gone '^Autofill Gap$' || return 1
  settle
  key ctrl+s
  expect "row" "24188 0.0000,24188 588.3000,24236 188.3000,24094 424.4000,24071 518.6000" \
    "$(row_of_straights "$plan")" || return 1
  expect "slots joined" 8 "$(grep -c '<joint' "$plan")" || return 1
}

test_a_gap_is_filled_by_a_double_click_on_a_row() {
  local plan="$store/Double.vtl"
  write_two_straights Double 400
  open_plan || return 1
  select_both || return 1
  open_fill_dialog || return 1
  double_click_row 4
  window_gone '^Autofill Gap$' || return 1
  settle
  key ctrl+s
  expect "row" "24188 0.0000,24188 588.3000,24188 188.3000,24071 376.6000,24071 447.4000,24071 518.2000" \
    "$(row_of_straights "$plan")" || return 1
}

test_pieces_that_touch_are_told_and_deselected() {
  local plan="$store/Touching.vtl"
  write_two_straights Touching 0.9
  open_plan || return 1
  select_both || return 1
  choose_entry 1
  window '^Autofill$' >/dev/null || return 1
  picture touching_message
  answer_box Autofill Return || return 1
  expect "title" "Vantrel v1.5 by Kelmor - Touching" "$(title)" || return 1
  key ctrl+s
  expect "pieces" 2 "$(piece_count "$plan")" || return 1
  expect "selected" 0 "$(grep -c ' sel="1"' "$plan")" || return 1
}

test_a_gap_that_nothing_fills_is_told_and_deselected() {
  local plan="$store/Short.vtl"
  # The shortest straight is 64.3 mm long.
  write_two_straights Short 30
  open_plan || return 1
  select_both || return 1
  choose_entry 1
  window '^Autofill - No Solution$' >/dev/null || return 1
  picture no_fill_message
  answer_box 'Autofill - No Solution' Return || return 1
  key ctrl+s
  expect "pieces" 2 "$(piece_count "$plan")" || return 1
  expect "selected" 0 "$(grep -c ' sel="1"' "$plan")" || return 1
}

test_a_gap_between_two_systems_is_refused_and_stays_selected() {
  local plan="$store/Mixed.vtl"
  write_two_straights Mixed 400
  sed -i 's/id="2" cat="24188"/id="2" cat="2200"/' "$plan"
  open_plan || return 1
  select_both || return 1
  choose_entry 1
  window '^Autofill - Mixed Track Systems$' >/dev/null || return 1
  picture mixed_message
  answer_box 'Autofill - Mixed Track Systems' Return || return 1
  key ctrl+s
  expect "pieces" 2 "$(piece_count "$plan")" || return 1
  expect "selected" 2 "$(grep -c ' sel="1"' "$plan")" || return 1
}

# toolbar_shot NAME: the tools, right above the canvas; kept in the scratch folder. The title isn't in
# it, wherever the window stands.
toolbar_shot() {
  import -window root -crop "1600x40+0+$((canvas_y - 44))" +repage "$store/$1.png"
}

# changed_tool: the middle of what differs between the shots "before" and "after".
changed_tool() {
  convert "$store/before.png" "$store/after.png" -compose difference -composite -threshold 5% \
    -format '%@' info: | awk -F'[x+]' -v top=$((canvas_y - 44)) '
    {print int($3 + $1 / 2), int($4 + $2 / 2) + top}'
}

# portal N FILE: its id and pose.
portal() {
  local line
  line=$(grep 'item="tunnel_portal_single"' "$2" | sed -n "$1p")
  sed -n 's/.* id="\([^"]*\)".*/\1/p' <<<"$line" | tr '\n' ' '
  sed -n 's/.* x="\([^"]*\)" y="\([^"]*\)" heading="\([^"]*\)".*/\1 \2 \3/p' <<<"$line"
}

# tools_differ A B: whether two such shots differ.
tools_differ() {
  [ "$(compare -metric AE "$store/$1.png" "$store/$2.png" null: 2>&1)" != 0 ]
}

test_a_tunnel_over_three_pieces_is_laid_and_removed_by_its_tool() {
  local plan="$store/Tunnel.vtl" tool
  find_palette || return 1
  # shellcheck disable=SC2046
  drag_from $(cell "" 5) 300 220
  drop
  at 690 400
  double_click
  at 880 400
  double_click
  key Escape
  toolbar_shot before
  key ctrl+a
  # The tool is offered once the chain is selected; no other changes then.
  toolbar_shot after
  tool=$(changed_tool)
  # shellcheck disable=SC2086
  move $tool
  settle
  click
  settle
  move $((canvas_x + 400)) $((canvas_y + 400))
  settle
  picture tunnel_laid
  toolbar_shot removing
  tools_differ after removing || { problem="the tool's label doesn't change"; return 1; }
  [ -n "$(pixels "$selected_bed")" ] || { problem="the track isn't selected any more"; return 1; }
  save_as Tunnel || return 1
  expect "pieces" 3 "$(piece_count "$plan")" || return 1
  expect "tunnels" 1 "$(grep -c '<tunnel ' "$plan")" || return 1
  expect "covers" 1,2,3 "$(sed -n 's/.*<covers piece="\([0-9]*\)".*/\1/p' "$plan" | paste -sd,)" ||
    return 1
  expect "portals" 2 "$(grep -c 'item="tunnel_portal_single"' "$plan")" || return 1
  # Ids: three pieces, the portals, the tunnel. The chain runs from 600 to 600 + 3 * 188.3.
  expect "first portal" "4 600.0000 400.0000 180.0000" "$(portal 1 "$plan")" || return 1
  expect "second portal" "5 1164.9000 400.0000 0.0000" "$(portal 2 "$plan")" || return 1
  expect "record" "6 4 5 1 3" "$(sed -n \
    's/.*<tunnel id="\(.*\)" portalA="\(.*\)" portalB="\(.*\)" anchorA="\(.*\)" anchorB="\([0-9]*\)".*/\1 \2 \3 \4 \5/p' \
    "$plan")" || return 1
  key Escape
  settle
  picture tunnel_unselected
  [ -n "$(pixels "$tunnel_bed")" ] || { problem="no track fades in the tunnel"; return 1; }
  # The portals may be selected too. The tool begins where it was; it is only wider.
  key ctrl+a
  # shellcheck disable=SC2086
  move $tool
  settle
  picture remove_tunnel
  click
  settle
  at 850 850
  # The light behind the tool fades once the pointer has gone.
  for _ in $(seq 10); do
    settle
    toolbar_shot removed
    tools_differ after removed || break
  done
  ! tools_differ after removed || { problem="the tool's label doesn't come back"; return 1; }
  key ctrl+s
  expect "pieces after removing" 3 "$(piece_count "$plan")" || return 1
  expect "tunnels after removing" 0 "$(grep -c '<tunnel ' "$plan")" || return 1
  expect "scenery after removing" 0 "$(grep -c 'tunnel_portal_single' "$plan")" || return 1
  key ctrl+z
  key ctrl+s
  expect "tunnels after Undo" 1 "$(grep -c '<tunnel ' "$plan")" || return 1
  expect "portals after Undo" 2 "$(grep -c 'tunnel_portal_single' "$plan")" || return 1
}

# show_helix_rows: scrolls the palette to its end and sets point_x, point_y to the middle of the
# first line under its last header; the lines are 22 pixels high.
show_helix_rows() {
  find_palette || return 1
  move $((palette_x + 40)) $((palette_y + 200))
  xdotool click --repeat 150 --delay 10 5
  settle long
  point_x=$((palette_x + 60))
  point_y=$(($(pixels '#4B5564' | awk '{print $2}' | sort -n | tail -n 1) + 1 + 11))
}

# helix_record FILE: centre, heading and kit.
helix_record() {
  sed -n 's/.*<helix id="[0-9]*" cx="\([^"]*\)" cy="\([^"]*\)" heading="\([^"]*\)" variant="\([^"]*\)".*/\1 \2 \3 \4/p' "$1"
}

# stubs FILE: "x y z" of each piece of a helix.
stubs() {
  sed -n 's/.*<piece .* x="\([^"]*\)" y="\([^"]*\)".* z="\([^"]*\)".* helix="[0-9]*".*/\1 \2 \3/p' "$1" |
    paste -sd,
}

test_a_helix_is_dragged_in_moved_by_a_ring_and_deleted() {
  local plan="$store/Spiral.vtl"
  show_helix_rows || return 1
  drag_from "$point_x" "$point_y" 300 300
  picture helix_preview
  [ -n "$(pixels '#0096C8')" ] || { problem="no rings at the pointer"; return 1; }
  # The release dropped nothing, and Esc takes nothing away.
  key Escape
  [ -n "$(pixels '#0096C8')" ] || { problem="Esc took the helix"; return 1; }
  drop
  picture helix_placed
  [ -z "$(pixels '#0096C8')" ] || { problem="the rings still hang at the pointer"; return 1; }
  save_as Spiral || return 1
  # Canvas (300, 300) is world (600, 600); the radii are 360 and 437.5, the climb 260.
  expect "helix" "600.0000 600.0000 0.0000 proses_2_5_r1r2" "$(helix_record "$plan")" || return 1
  expect "stubs" "600.0000 240.0000 0.0000,600.0000 162.5000 0.0000,600.0000 960.0000 260.0000,600.0000 1037.5000 260.0000" \
    "$(stubs "$plan")" || return 1

  # 435 left of the centre the outer ring runs.
  at 165 600
  press
  at 215 650
  at 265 700
  at 270 700
  at 265 700
  picture helix_moving
  release
  settle
  key ctrl+s
  expect "helix moved" "700.0000 700.0000 0.0000 proses_2_5_r1r2" "$(helix_record "$plan")" || return 1
  expect "stubs moved" "700.0000 340.0000 0.0000,700.0000 262.5000 0.0000,700.0000 1060.0000 260.0000,700.0000 1137.5000 260.0000" \
    "$(stubs "$plan")" || return 1
  picture helix_moved

  key alt+e
  key d
  window '^Helix track is locked$' >/dev/null || return 1
  picture helix_locked
  answer_box 'Helix track is locked' Return || return 1
  key ctrl+s
  expect "pieces after Edit, Delete" 4 "$(piece_count "$plan")" || return 1
  # The canvas has the keyboard: its own key deletes the helix whole.
  key Delete
  key ctrl+s
  expect "pieces after the key" 0 "$(piece_count "$plan")" || return 1
  expect "helices after the key" 0 "$(grep -c '<helix ' "$plan")" || return 1
  key ctrl+z
  key ctrl+s
  expect "stubs after Undo" 4 "$(grep -c '<piece .* helix="1"' "$plan")" || return 1
  expect "helices after Undo" 1 "$(grep -c '<helix ' "$plan")" || return 1
}

test_a_helix_is_placed_by_a_double_click_without_a_preview() {
  local plan="$store/Second.vtl"
  show_helix_rows || return 1
  # The second line is the kit of 3.5 turns, of the same radii and 340 mm high.
  move "$point_x" $((point_y + 22))
  double_click
  glide $((canvas_x + 300)) $((canvas_y + 300))
  [ -z "$(pixels '#0096C8')" ] || { problem="a helix hangs at the pointer"; return 1; }
  picture helix_by_double_click
  save_as Second || return 1
  expect "helix" "500.0000 500.0000 0.0000 proses_3_5_r1r2" "$(helix_record "$plan")" || return 1
  expect "stubs" "500.0000 140.0000 0.0000,500.0000 62.5000 0.0000,500.0000 860.0000 340.0000,500.0000 937.5000 340.0000" \
    "$(stubs "$plan")" || return 1
  expect "selected" 0 "$(grep -c ' sel="1"' "$plan")" || return 1
}
