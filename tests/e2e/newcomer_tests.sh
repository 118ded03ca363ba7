# Sourced by run.sh: the plan that the manual's first steps tell of, laid, saved, opened again,
# previewed and closed with the real mouse and keys, as somebody does who has read no more than that.
# shellcheck shell=bash

# The parts of the palette's first eight sections that stand before the ones needed here.
before_curves='9'
before_switches='9 14'
before_other='9 14 5 3 2 4 2'

# lay SECTIONS INDEX TIMES: double-clicks a part in the palette, at a steady hand's pace.
lay() {
  # shellcheck disable=SC2046
  move $(cell "$1" "$2")
  double_clicks "$3" 0.3
}

# to_palette_top: undoes what scroll_palette_to has done.
to_palette_top() {
  move $((palette_x + 40)) $((palette_y + 200))
  xdotool click --repeat 40 --delay 10 4
  settle
}

# close_ring X Y: drags the piece there a little way down and lets it snap back.
close_ring() {
  at "$1" "$2"
  press
  at "$1" $(($2 + 18))
  release
  settle
}

# lay_first_plan: steps 2 to 5.
lay_first_plan() {
  find_palette || return 1
  # The inner oval. Canvas (300, 180) is (600, 300); the ring closes there from the left.
  # shellcheck disable=SC2046
  drag_from $(cell "" 5) 300 180
  drop
  lay "" 5 1
  lay "$before_curves" 0 6
  lay "" 5 2
  lay "$before_curves" 0 6
  close_ring 505 308

  # The outer one, from the turnout 77.5 mm further up: canvas y 60 + 222.5 * 0.4.
  # shellcheck disable=SC2046
  scroll_palette_to $(cell "$before_switches" 0) || return 1
  drag_from "$point_x" "$point_y" 300 149
  drop
  to_palette_top
  lay "" 5 1
  lay "$before_curves" 3 6
  lay "" 5 2
  lay "$before_curves" 3 6
  close_ring 480 238

  # The siding on a grade.
  at 690 222
  click
  settle
  lay "$before_curves" 5 1
  type_number "$tabs_to_degrees" 2 || return 1
  press_panel_button "$tabs_to_start" || return 1
  lay "" 5 3
  # shellcheck disable=SC2046
  scroll_palette_to $(cell "$before_other" 1) || return 1
  move "$point_x" "$point_y"
  double_click
  press_panel_button "$tabs_to_end"
}

# preview_by_menu: File, Print Preview..., the fourth entry from the menu's end.
preview_by_menu() {
  key alt+f
  xdotool key Up Up Up Up
  settle
  xdotool key Return
  window '^Print Preview -- Vantrel$' >/dev/null && settle
}

test_a_newcomer_lays_saves_reopens_previews_and_closes_the_first_plan() {
  local plan="$store/First.vtl"
  lay_first_plan || return 1
  # The table as it is offered, and everything in view.
  open_shape_dialog || return 1
  key Tab
  key Return
  window_gone '^Layout Baseboard$' || return 1
  key ctrl+0
  picture newcomer_plan
  save_as First || return 1

  expect "title" 'Vantrel v1.5 by Kelmor - First' "$(title)" || return 1
  # Each ring is 16 pieces, and the siding 5.
  expect "pieces" 37 "$(piece_count "$plan")" || return 1
  # Two slots a piece, one more at the turnout's branch, one less at the bumper: no end is open.
  expect "slots joined" 74 "$(grep -c '<joint ' "$plan")" || return 1
  # The siding climbs by sin 2 deg = 0.0348995 of each piece's reach: 437.5 sin 24.3 deg = 180.0375
  # of the curve, then three straights of 188.3, in all 744.9375 * 0.0348995.
  expect "height of the bumper" 25.9979 "$(attribute z 'cat="24977"' "$plan")" || return 1
  expect "grade of the last straight" 2.0000 "$(attribute grade '<piece id="36"' "$plan")" ||
    return 1
  expect "table" '0.0000,0.0000 2400.0000,0.0000 2400.0000,1200.0000 0.0000,1200.0000 ' \
    "$(vertices "$plan")" || return 1

  # Closed and opened again it is the same plan, but for a level's red, which no file brings back.
  grep -v '<level ' "$plan" >"$store/saved"
  key ctrl+w
  expect "title of a new plan" 'Vantrel v1.5 by Kelmor' "$(title)" || return 1
  open_plan || return 1
  expect "title again" 'Vantrel v1.5 by Kelmor - First' "$(title)" || return 1
  key ctrl+s
  grep -v '<level ' "$plan" | cmp -s - "$store/saved" ||
    { problem="the plan opened and saved differs"; return 1; }

  preview_by_menu || return 1
  picture newcomer_preview
  close_by_title_bar 'Print Preview -- Vantrel' || return 1

  # Nothing is left to save, so the program ends without a question.
  key alt+f
  key Up
  key Return
  has_ended || { problem="the program doesn't end"; return 1; }
  wait "$pid" || { problem="the program ended with status $?"; return 1; }
}
