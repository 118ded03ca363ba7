# Sourced by run.sh: the table's outline from its dialog to the file, and the levels, with the real
# mouse and keys.
# shellcheck shell=bash

# open_shape_dialog: Layout, Layout Shape by keys.
open_shape_dialog() {
  key alt+l
  key s
  window '^Layout Baseboard$' >/dev/null && settle
}

# vertices FILE: the baseboard's vertices, "x,y" one after the other.
vertices() {
  sed -n 's/.*<vertex x="\([^"]*\)" y="\([^"]*\)".*/\1,\2/p' "$1" | tr '\n' ' '
}

test_a_rectangular_baseboard_from_the_dialog_to_the_file() {
  local plan="$store/Table.vtl"
  open_shape_dialog || return 1
  picture shape_rectangle
  # From the list of shapes to the two numbers; Enter applies.
  key Tab
  key ctrl+a
  xdotool type --delay 20 1500
  key Tab
  key ctrl+a
  xdotool type --delay 20 800
  key Return
  window_gone '^Layout Baseboard$' || return 1
  expect "title" 'Vantrel v1.5 by Kelmor *' "$(title)" || return 1
  save_as Table || return 1
  expect "vertices" '0.0000,0.0000 1500.0000,0.0000 1500.0000,800.0000 0.0000,800.0000 ' \
    "$(vertices "$plan")" || return 1
  expect "last shape" 1500.0000 "$(attribute w_mm '<lastshape' "$plan")" || return 1
  # Escape leaves it, whatever was typed.
  open_shape_dialog || return 1
  key Tab
  key ctrl+a
  xdotool type 77
  key Escape
  window_gone '^Layout Baseboard$' || return 1
  key ctrl+s
  expect "vertices after Escape" \
    '0.0000,0.0000 1500.0000,0.0000 1500.0000,800.0000 0.0000,800.0000 ' \
    "$(vertices "$plan")" || return 1
}
