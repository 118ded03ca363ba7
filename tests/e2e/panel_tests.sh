# Sourced by run.sh: the properties panel with the real mouse and keys: grades, heights, colours,
# labels, and the way to the store.
# shellcheck shell=bash

# The panel's controls have no colour of their own to be found by. What is sure: the panel begins at
# the canvas's height with the field of "Add Label", above the left end of the green Buy Track
# button, and Tab goes from there through whatever can be used. So fonts and themes may move them.
store_green='#146E14'

# buy_button: sets green_x, green_y to the left end of the Buy Track button, halfway down. It stays
# where it is as long as the program runs.
green_of=
buy_button() {
  local green
  [ "$green_of" = "$pid" ] && return 0
  green=$(pixels "$store_green")
  [ -n "$green" ] || { problem="no green button"; return 1; }
  green_x=$(awk '{print $1}' <<<"$green" | sort -n | head -n 1)
  green_y=$(awk '{print $2}' <<<"$green" | sort -n | awk '{y[NR] = $1} END {print int((y[1] + y[NR]) / 2)}')
  green_of=$pid
}

# The number of Tabs from the label's field, while a piece is shown and no grade is in force (End
# Grade is passed over then). The two directions are one stop.
tabs_to_level=2
tabs_to_colour=3
tabs_to_apply=4
tabs_to_height=5
tabs_to_direction=6
tabs_to_degrees=7
tabs_to_start=8
tabs_to_recalc=9
# While a grade is in force.
tabs_to_end=9

# focus_label: into the field of "Add Label".
focus_label() {
  buy_button || return 1
  move $((green_x + 20)) $((canvas_y + 36))
  click
  settle
}

# focus_control TABS
focus_control() {
  focus_label || return 1
  for _ in $(seq "$1"); do key Tab; done
}

# press_panel_button TABS: by the space bar.
press_panel_button() {
  focus_control "$1" || return 1
  key space
}

# type_number TABS TEXT: instead of what the field holds.
type_number() {
  focus_control "$1" || return 1
  key ctrl+a
  xdotool type --delay 20 "$2"
}

# set_height TEXT
set_height() {
  type_number $tabs_to_height "$1" || return 1
  key Return
}

# choose_row TABS N: the Nth entry below the present one of a drop-down list.
choose_row() {
  press_panel_button "$1" || return 1
  for _ in $(seq "$2"); do key Down; done
  key Return
}

# heights FILE: z of every piece, in the file's order.
heights() { sed -n 's/.*<piece .* z="\([^"]*\)".*/\1/p' "$1" | tr '\n' ' '; }
# slopes FILE: grade of every piece.
slopes() { sed -n 's/.*<piece .* grade="\([^"]*\)".*/\1/p' "$1" | tr '\n' ' '; }
# runs FILE: "degrees at anchor" of every grade in force.
runs() { sed -n 's/.*<run deg="\([^"]*\)" anchor="\([^"]*\)".*/\1 at \2/p' "$1"; }

# select_straight N: the Nth 24188 of a row that begins at (150, 600), by a click on its middle. A
# click on empty canvas goes before, for the press that an extension swallows.
select_straight() {
  at 600 1000
  click
  at $((244 + 1883 * ($1 - 1) / 10)) 600
  click
  settle
}

# extend_straight N: by a double click on the Nth of that row, which the next one then follows. The
# row must end in view, or the view would follow it.
extend_straight() {
  at $((244 + 1883 * ($1 - 1) / 10)) 600
  double_click
}

first_straight() {
  find_palette || return 1
  # shellcheck disable=SC2046
  drag_from $(cell "" 5) 120 300
  drop
  key Escape
  select_straight 1
}

# 188.3 mm * sin(2 degrees) = 188.3 * 0.0348995 = 6.57158 mm of climb on each 24188.
test_a_grade_climbs_over_double_clicks_ends_and_is_laid_again() {
  local plan="$store/Climb.vtl" i
  first_straight || return 1
  type_number $tabs_to_degrees 2 || return 1
  press_panel_button $tabs_to_start || return 1
  for i in 1 2 3 4; do extend_straight $i; done
  picture climb
  save_as Climb || return 1
  expect "heights" '0.0000 6.5716 13.1432 19.7147 26.2863 ' "$(heights "$plan")" || return 1
  expect "slopes" '2.0000 2.0000 2.0000 2.0000 2.0000 ' "$(slopes "$plan")" || return 1
  expect "runs" '2.0000 at 5' "$(runs "$plan")" || return 1

  # In mid-chain: the third lies level at the end of the second, 2 * 6.57158 up; the fourth keeps its
  # own slope and height; the run that is found ahead ends.
  select_straight 3
  press_panel_button $tabs_to_end || return 1
  key ctrl+s
  expect "heights after End Grade" '0.0000 6.5716 13.1432 19.7147 26.2863 ' "$(heights "$plan")" ||
    return 1
  expect "slopes after End Grade" '2.0000 2.0000 0.0000 2.0000 2.0000 ' "$(slopes "$plan")" ||
    return 1
  expect "runs after End Grade" '' "$(runs "$plan")" || return 1

  # Behind the end: level track at 5 * 6.57158.
  select_straight 5
  extend_straight 5
  extend_straight 6
  key ctrl+s
  expect "heights of level track" '0.0000 6.5716 13.1432 19.7147 26.2863 32.8579 32.8579 ' \
    "$(heights "$plan")" || return 1
  expect "slopes of level track" '2.0000 2.0000 0.0000 2.0000 2.0000 0.0000 0.0000 ' \
    "$(slopes "$plan")" || return 1

  # The fourth put to 30 mm by hand, no chain is walked; Recalc on the fifth takes 30 + 6.57158 from
  # it and hands 30 + 2 * 6.57158 on to the level track behind.
  select_straight 4
  set_height 30 || return 1
  key ctrl+s
  expect "heights by hand" '0.0000 6.5716 13.1432 30.0000 26.2863 32.8579 32.8579 ' \
    "$(heights "$plan")" || return 1
  select_straight 5
  press_panel_button $tabs_to_recalc || return 1
  key ctrl+s
  expect "heights after Recalc" '0.0000 6.5716 13.1432 30.0000 36.5716 43.1432 43.1432 ' \
    "$(heights "$plan")" || return 1
  key ctrl+z
  key ctrl+s
  expect "heights after Undo" '0.0000 6.5716 13.1432 30.0000 26.2863 32.8579 32.8579 ' \
    "$(heights "$plan")" || return 1
}

test_a_grade_downward_falls() {
  local plan="$store/Fall.vtl"
  first_straight || return 1
  type_number $tabs_to_degrees 2 || return 1
  # From UP to DOWN.
  focus_control $tabs_to_direction || return 1
  key Right
  press_panel_button $tabs_to_start || return 1
  extend_straight 1
  extend_straight 2
  save_as Fall || return 1
  expect "heights" '0.0000 -6.5716 -13.1432 ' "$(heights "$plan")" || return 1
  expect "runs" '-2.0000 at 3' "$(runs "$plan")" || return 1
}

test_a_height_is_entered_in_inches() {
  local plan="$store/Inches.vtl"
  first_straight || return 1
  # Layout, Units of Measure at its top, the third of the submenu's rows.
  key alt+l
  key Home
  key Right
  key Down
  key Down
  picture units_menu
  key Return
  # 2.5 in * 25.4 = 63.5 mm.
  set_height 2.5 || return 1
  picture inches
  save_as Inches || return 1
  expect "units" 2 "$(attribute units '<layout' "$plan")" || return 1
  expect "z" 63.5000 "$(attribute z '<piece ' "$plan")" || return 1
  # What is no number is none of the height's business.
  set_height 'up there' || return 1
  key ctrl+s
  expect "z after a word" 63.5000 "$(attribute z '<piece ' "$plan")" || return 1
}

# colours FILE: the colour of every piece, or "-".
colours() {
  grep '<piece ' "$1" | sed 's/.* color="\([0-9]*\)".*/\1/;t;s/.*/-/' | tr '\n' ' '
}

test_a_run_is_coloured_and_let_go_of() {
  local plan="$store/Coloured.vtl"
  first_straight || return 1
  extend_straight 1
  extend_straight 2
  at 300 300
  click
  # All of the first two, not the third, by a band, which takes what lies in it or touches it.
  at 50 500
  press
  at 450 700
  release
  settle
  picture run_page
  # On a run neither height nor grade can be set, but what comes before them can.
  choose_row $tabs_to_colour 1 || return 1
  press_panel_button $tabs_to_apply || return 1
  save_as Coloured || return 1
  # Red is 220, 60, 60: 220 * 65536 + 60 * 256 + 60 = 14433340.
  expect "colours" '14433340 14433340 - ' "$(colours "$plan")" || return 1
  expect "selected" 0 "$(grep -c 'sel="1"' "$plan")" || return 1
  [ -n "$(pixels '#DC3C3C')" ] || { problem="no red track"; return 1; }
  # Default takes the colour off again; the list still stands on Red, one below it.
  select_straight 2
  press_panel_button $tabs_to_colour || return 1
  xdotool key Home
  key Return
  press_panel_button $tabs_to_apply || return 1
  key ctrl+s
  expect "colours after Default" '14433340 - - ' "$(colours "$plan")" || return 1
}

test_a_label_stands_where_the_canvas_was_pressed_with_ctrl() {
  local plan="$store/Labels.vtl"
  # A plain press gives no place, nor does one that is gone with its label: (0, 0) then.
  at 900 800
  click
  focus_label || return 1
  xdotool type --delay 20 'Yard'
  key Return
  at 500 400
  xdotool keydown ctrl
  click
  xdotool keyup ctrl
  settle
  focus_label || return 1
  xdotool type --delay 20 '  North Station '
  picture label_typed
  # The button beside the field.
  key Tab
  key space
  focus_label || return 1
  xdotool type --delay 20 'Depot'
  key Return
  save_as Labels || return 1
  expect "texts" 'Yard,North Station,Depot' \
    "$(sed -n 's/.*<label .*text="\([^"]*\)".*/\1/p' "$plan" | paste -sd,)" || return 1
  expect "places" '0.0000 0.0000,500.0000 400.0000,0.0000 0.0000' \
    "$(sed -n 's/.*<label .*x="\([^"]*\)" y="\([^"]*\)".*/\1 \2/p' "$plan" | paste -sd,)" || return 1
}

# restart_with_stand_in: starts the program anew in its folder, on a desktop whose browser only
# writes down what it was given. Some desktops start the browser by its entry for https, others
# by xdg-open: both lead to the stand-in. $store/opened then has the number of arguments and, line
# by line, the arguments.
restart_with_stand_in() {
  local entries="$store/home/applications"
  mkdir -p "$store/bin" "$entries"
  # shellcheck disable=SC2016
  printf '#!/bin/sh\n{ echo "$#"; printf "%%s\\n" "$@"; } >>"%s/opened"\n' "$store" >"$store/bin/xdg-open"
  chmod +x "$store/bin/xdg-open"
  printf '[Desktop Entry]\nType=Application\nName=Stand-in\nExec=%s/bin/xdg-open %%u\nMimeType=x-scheme-handler/https;\n' \
    "$store" >"$entries/stand-in.desktop"
  printf '[Default Applications]\nx-scheme-handler/https=stand-in.desktop\n' >"$entries/mimeapps.list"
  kill "$pid"
  wait "$pid" 2>/dev/null
  PATH=$store/bin:$PATH XDG_CONFIG_HOME=$store/config start_program KEEP
}

buy_track() {
  buy_button || return 1
  move $((green_x + 15)) "$green_y"
  click
}

# opened: what the browser was given, waiting for it.
opened() {
  until_true 30 test -s "$store/opened"
  settle
  paste -sd' ' "$store/opened" 2>/dev/null
}

# parts NUMBER...: a plan of such pieces, one beside the other.
parts() {
  local part id=0
  echo '<pieces>'
  for part; do
    id=$((id + 1))
    echo "<piece id=\"$id\" cat=\"$part\" x=\"$((200 * id))\" y=\"300\" heading=\"90\" z=\"0\" grade=\"0\" level=\"1\" sel=\"0\">"
    echo '</piece>'
  done
  echo '</pieces>'
}

# The ids that follow are the parts' rows in the table of the store's products.

test_buy_track_opens_the_filled_cart() {
  restart_with_stand_in || return 1
  write_plan Shopping "$(parts 24188 24611 24188 74636 24630)"
  open_plan || return 1
  picture tally
  buy_track || return 1
  # 24188 twice is row 55, 24611 row 70, 24630 row 73, the bridge 74636 without its deck row 141.
  # Then 1 + 2 motors 74492, row 135, and two decoders 74462, row 127.
  expect "opened" "1 https://shop.kelmor.example/cart/00000000000055:2,00000000000070:1,00000000000073:1,00000000000141:1,00000000000135:3,00000000000127:2" \
    "$(opened)" || return 1
}

test_buy_track_warns_of_what_the_store_lacks_and_sells_the_rest() {
  restart_with_stand_in || return 1
  # The store has no 62188; nobody knows a 99999.
  write_plan Mixed "$(parts 24188 62188 99999)"
  open_plan || return 1
  buy_track || return 1
  window '^Some pieces not available$' >/dev/null || return 1
  settle
  picture not_available
  [ ! -e "$store/opened" ] || { problem="the browser didn't wait for the warning"; return 1; }
  answer_box 'Some pieces not available' Return || return 1
  expect "opened" '1 https://shop.kelmor.example/cart/00000000000055:1' "$(opened)" || return 1
}

test_buy_track_has_nothing_to_sell_for_an_empty_plan() {
  restart_with_stand_in || return 1
  buy_track || return 1
  window '^Buy Track$' >/dev/null || return 1
  settle
  picture nothing_to_buy
  answer_box 'Buy Track' Return || return 1
  settle long
  [ ! -e "$store/opened" ] || { problem="a browser came up"; return 1; }
  # The same for a plan of nothing but what the store lacks, without a list of it.
  write_plan Lacking "$(parts 62188)"
  open_plan || return 1
  buy_track || return 1
  answer_box 'Buy Track' Return || return 1
  settle long
  [ ! -e "$store/opened" ] || { problem="a browser came up for nothing"; return 1; }
}
