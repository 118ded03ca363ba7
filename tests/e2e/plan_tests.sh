# Sourced by run.sh: each test_ function runs on a freshly started program and returns 0 or sets
# `problem`.
# shellcheck shell=bash

# At the start the view shows 0.4 pixels per mm with the origin at (60, 60): canvas point (300, 300)
# is world point (600, 600).

test_drag_two_straights_save_and_open_again() {
  local plan="$store/Two Straights.vtl"
  find_palette || return 1
  # The 24188 is the sixth of the straights. The second one is let go 6.7 mm right of and 7.5 mm
  # below the first one's end at 600 + 188.3 = 788.3: within reach.
  # shellcheck disable=SC2046
  drag_from $(cell "" 5) 300 300
  drop
  # shellcheck disable=SC2046
  drag_from $(cell "" 5) 378 303
  picture snap_preview
  drop
  save_as "Two Straights" || return 1
  [ -f "$plan" ] || { problem="no file was written"; return 1; }
  expect "title" "Vantrel v1.5 by Kelmor - Two Straights" "$(title)" || return 1
  expect "pieces" 2 "$(grep -c '<piece ' "$plan")" || return 1
  expect "first x" 600.0000 "$(attribute x '<piece id="1"' "$plan")" || return 1
  expect "first y" 600.0000 "$(attribute y '<piece id="1"' "$plan")" || return 1
  expect "second x" 788.3000 "$(attribute x '<piece id="2"' "$plan")" || return 1
  expect "second y" 600.0000 "$(attribute y '<piece id="2"' "$plan")" || return 1
  expect "second heading" 0.0000 "$(attribute heading '<piece id="2"' "$plan")" || return 1
  expect "joint of the first" '      <joint conn="1" target="2" tconn="0"/>' \
    "$(grep '<joint' "$plan" | sed -n 1p | tr -d '\r')" || return 1
  expect "joint of the second" '      <joint conn="0" target="1" tconn="1"/>' \
    "$(grep '<joint' "$plan" | sed -n 2p | tr -d '\r')" || return 1

  # What comes back is the same plan but for the level's red, which returns as its track colour flag.
  sed 's/\(<level .*\) r="180"/\1 r="0"/' "$plan" >"$store/first.copy"
  key ctrl+n
  expect "title after New" "Vantrel v1.5 by Kelmor" "$(title)" || return 1
  key ctrl+o
  window '^Open Layout$' >/dev/null || return 1
  key Down
  key Return
  window_gone '^Open Layout$' || return 1
  settle
  expect "title after Open" "Vantrel v1.5 by Kelmor - Two Straights" "$(title)" || return 1
  key ctrl+s
  cmp -s "$plan" "$store/first.copy" || { problem="the plan changed on its way"; return 1; }

  # History reaches back over the opening: first what New removed comes back, then the second piece
  # goes, and Redo brings it back.
  key ctrl+z
  key ctrl+z
  expect "title after Undo" "Vantrel v1.5 by Kelmor - Two Straights *" "$(title)" || return 1
  key ctrl+s
  expect "pieces after Undo" 1 "$(grep -c '<piece ' "$plan")" || return 1
  key ctrl+y
  key ctrl+s
  expect "pieces after Redo" 2 "$(grep -c '<piece ' "$plan")" || return 1
  cmp -s "$plan" "$store/first.copy" || { problem="Redo brought back another plan"; return 1; }
}

test_a_turntable_is_seven_pieces_and_one_undo() {
  local plan="$store/Turntable.vtl"
  find_palette || return 1
  # Sections before "Other": straights 9, curves 14, switches 5, crossings 3, double slips 2, slim
  # switches 4, circuit tracks 2. The 74861 is the fourth there.
  # shellcheck disable=SC2046
  scroll_palette_to $(cell "9 14 5 3 2 4 2" 3) || return 1
  drag_from "$point_x" "$point_y" 300 300
  drop
  save_as Turntable || return 1
  expect "pieces" 7 "$(grep -c '<piece ' "$plan")" || return 1
  expect "turntables" 1 "$(grep -c 'cat="74861"' "$plan")" || return 1
  expect "spokes" 6 "$(grep -c 'cat="74871".* free="1"' "$plan")" || return 1
  # Connectors of the turntable in slot order, each to the next id's connector 0 in laying order
  # 29, 0, 1, 14, 15, 16.
  expect "joints" "0 3,1 4,14 5,15 6,16 7,29 2" "$(grep '<joint' "$plan" | sed -n 1,6p |
    sed 's/.*conn="\([0-9]*\)" target="\([0-9]*\)" tconn="0".*/\1 \2/' | paste -sd,)" || return 1
  key ctrl+z
  key ctrl+s
  expect "pieces after one Undo" 0 "$(grep -c '<piece ' "$plan")" || return 1
  key ctrl+y
  key ctrl+s
  expect "pieces after Redo" 7 "$(grep -c '<piece ' "$plan")" || return 1
}

test_two_systems_that_do_not_join_are_refused() {
  local plan="$store/Refused.vtl"
  find_palette || return 1
  # shellcheck disable=SC2046
  drag_from $(cell "" 5) 300 300
  drop
  # The chooser stands at the top of the palette; the next entry is K-Track.
  move $((palette_x + 60)) $((canvas_y + 20))
  click
  settle
  key Down
  key Return
  settle long
  find_palette || return 1
  # The 2200 is the first of the straights: its end within 25 mm of the C-Track end at 788.3.
  # shellcheck disable=SC2046
  drag_from $(cell "" 0) 378 303
  drop
  window '^Incompatible Track Systems$' >/dev/null || return 1
  picture incompatible_message
  key Return
  window_gone '^Incompatible Track Systems$' || return 1
  save_as Refused || return 1
  expect "pieces" 1 "$(grep -c '<piece ' "$plan")" || return 1
  # The refused piece is gone: a further click places nothing.
  move $((canvas_x + 600)) $((canvas_y + 500))
  click
  settle
  key ctrl+s
  expect "pieces after a click" 1 "$(grep -c '<piece ' "$plan")" || return 1
}

test_escape_gives_a_dragged_piece_up() {
  local plan="$store/Escaped.vtl"
  find_palette || return 1
  # shellcheck disable=SC2046
  drag_from $(cell "" 5) 300 300
  key Escape
  drop
  save_as Escaped || return 1
  expect "pieces" 0 "$(grep -c '<piece ' "$plan")" || return 1
}

test_a_broken_file_is_named_and_ends_the_program_in_order() {
  printf '<?xml version="1.0" encoding="UTF-8"?>\n<pieces>\n<piece id="1" cat="24188" x="oops" y="0" heading="0">\n' \
    >"$store/Broken.vtl"
  key ctrl+o
  window '^Open Layout$' >/dev/null || return 1
  key Down
  key Return
  settle long
  picture broken_file_message
  key Return
  local status=0
  has_ended || { problem="the program still runs"; return 1; }
  wait "$pid" || status=$?
  expect "exit code" 1 "$status" || return 1
  grep -rqs 'Broken.vtl' "$store/home" || { problem="the log doesn't name the file"; return 1; }
  grep -rqs 'invalid stod argument' "$store/home" || { problem="the log doesn't say why"; return 1; }
}

test_plus_and_minus_zoom_the_canvas_but_belong_to_a_text_field() {
  local marks_before marks_zoomed
  # A click on empty canvas gives it the focus.
  move $((canvas_x + 300)) $((canvas_y + 300))
  click
  marks_before=$(pixels '#C85050')
  key plus
  marks_zoomed=$(pixels '#C85050')
  [ "$marks_before" != "$marks_zoomed" ] || { problem="plus doesn't zoom in"; return 1; }
  key KP_Subtract
  expect "marks after plus and minus" "$marks_before" "$(pixels '#C85050')" || return 1
  save_as "A+B-C" || return 1
  [ -f "$store/A+B-C.vtl" ] || { problem="the name lost its signs"; return 1; }
  expect "marks after typing a name" "$marks_before" "$(pixels '#C85050')" || return 1
}
