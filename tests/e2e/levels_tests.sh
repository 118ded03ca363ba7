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

test_a_shape_is_chosen_and_mended_by_keys_alone() {
  local plan="$store/Shape.vtl"
  open_shape_dialog || return 1
  # Down chooses; space opens the list, in which Enter only chooses.
  key Down
  key space
  key Down
  key Return
  picture shape_u
  key Tab
  key ctrl+a
  # More than the field takes: told, and nothing applied.
  xdotool type --delay 20 999999
  key Return
  answer_box 'Layout Shape' Return || return 1
  window '^Layout Baseboard$' >/dev/null || return 1
  key ctrl+a
  xdotool type --delay 20 3000
  key Tab Tab
  key ctrl+a
  key BackSpace
  # Emptied, and left for the button by the mouse.
  press_button '^Layout Baseboard$' 145
  answer_box 'Layout Shape' Return || return 1
  key ctrl+a
  xdotool type --delay 20 1000
  key Return
  window_gone '^Layout Baseboard$' || return 1
  save_as Shape || return 1
  expect "vertices" "$(printf '%s.0000,%s.0000 ' 0 0 3000 0 3000 2400 2000 2400 2000 1200 \
    1000 1200 1000 2400 0 2400)" "$(vertices "$plan")" || return 1
}

# press_button TITLE FROM-RIGHT: clicks in the row of buttons at the bottom of a dialog.
press_button() {
  local id WIDTH HEIGHT
  id=$(window "$1") || return 1
  eval "$(xdotool getwindowgeometry --shell "$id" | grep -E '^(WIDTH|HEIGHT)=')"
  xdotool mousemove --window "$id" $((WIDTH - $2)) $((HEIGHT - 28))
  click
  settle
}

# type_lines LINE...: with Enter between them.
type_lines() {
  local line first=yes
  for line in "$@"; do
    [ "$first" = yes ] || key Return
    first=
    [ -z "$line" ] || xdotool type --delay 20 "$line"
  done
}

test_custom_vertices_are_typed_and_mended() {
  local plan="$store/Custom.vtl"
  open_shape_dialog || return 1
  key Down Down Down Down
  key Tab
  key ctrl+a
  type_lines 0,0 '10 mm,0' ''
  key Tab
  key Return
  answer_box 'Layout Shape' Return || return 1
  picture shape_custom_refused
  key ctrl+a
  type_lines 0,0 1000.5,0 0,700
  key Tab
  key Return
  window_gone '^Layout Baseboard$' || return 1
  save_as Custom || return 1
  expect "vertices" '0.0000,0.0000 1000.5000,0.0000 0.0000,700.0000 ' "$(vertices "$plan")" ||
    return 1
  # And away with it.
  open_shape_dialog || return 1
  key End
  key Tab
  key Return
  window_gone '^Layout Baseboard$' || return 1
  key ctrl+s
  expect "vertices after Clear" '' "$(vertices "$plan")" || return 1
}

# press_levels: the Levels tool, the first whose name is black: without a history Undo and Redo are
# grey.
press_levels() {
  local left x
  left=$(xdotool getwindowgeometry --shell "$main" | sed -n 's/^X=//p')
  import -window root "$store/screen.png"
  x=$(convert "$store/screen.png" -crop "600x20+$((left + 4))+$((canvas_y - 32))" +repage \
    -threshold 40% txt:- | awk -F'[,:]' '/#000000/ {print $1}' | sort -n | head -n 1)
  [ -n "$x" ] || { problem="no tool on the screen"; return 1; }
  glide $((left + 4 + x + 15)) $((canvas_y - 22))
  click
  window '^Manage Levels$' >/dev/null && settle
}

# level ATTRIBUTE FILE N: of the Nth level.
level() { attribute "$1" '<level ' "$2" "$3"; }

# Level 2 holds a straight and a tree, level 1 a straight.
two_decks='<levels active="1">
<level id="1" name="Ground" visible="1" height="0.0000" trackcolor="0" r="180" g="200" b="220"/>
<level id="2" name="Upper" visible="1" height="0.0000" trackcolor="0" r="220" g="180" b="180"/>
</levels>
<pieces>
<piece id="1" cat="24188" x="0.0000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
</piece>
<piece id="2" cat="24188" x="0.0000" y="300.0000" heading="0.0000" z="0.0000" grade="0.0000" level="2" sel="0">
</piece>
</pieces>
<scenery>
<sceneryitem id="3" item="tree" x="500.0000" y="300.0000" heading="0.0000" level="2"/>
</scenery>'

test_levels_by_keys_alone() {
  local plan="$store/Decks.vtl"
  write_plan Decks "$two_decks"
  open_plan || return 1
  press_levels || return 1
  # The first Down chooses the first row, the second the second; space hides it.
  key Down
  key Down
  key space
  picture levels_hidden
  # Enter opens the properties: name, height, colour on.
  key Return
  window '^Level Properties: Upper$' >/dev/null || return 1
  settle
  xdotool type --delay 20 ' Station '
  key Tab
  key ctrl+a
  xdotool type --delay 20 75.5
  key Tab
  key space
  picture level_properties
  key Return
  window_gone '^Level Properties' || return 1
  # Add Level is the next stop.
  key Tab
  key space
  window '^Add Level$' >/dev/null || return 1
  settle
  picture level_added
  key Return
  window_gone '^Add Level$' && settle || return 1
  key Escape
  window_gone '^Manage Levels$' || return 1
  expect "title" 'Vantrel v1.5 by Kelmor - Decks *' "$(title)" || return 1
  key ctrl+s
  expect "levels" 3 "$(grep -c '<level ' "$plan")" || return 1
  expect "active" 2 "$(attribute active '<levels' "$plan")" || return 1
  expect "name" Station "$(level name "$plan" 2)" || return 1
  expect "visible" 0 "$(level visible "$plan" 2)" || return 1
  expect "height" 75.5000 "$(level height "$plan" 2)" || return 1
  expect "colour" 1 "$(level trackcolor "$plan" 2)" || return 1
  expect "flat track" 75.5000 "$(attribute z '<piece id="2"' "$plan")" || return 1
  expect "new level" 'Level 3' "$(level name "$plan" 3)" || return 1
  # Remove the second; Escape at the question keeps it.
  press_levels || return 1
  key Down
  key Down
  key Tab Tab
  key space
  window '^Remove Level' >/dev/null || return 1
  settle
  picture level_removal
  key Escape
  window_gone '^Remove Level' && settle || return 1
  key space
  window '^Remove Level' >/dev/null || return 1
  settle
  key Left
  key Return
  window_gone '^Remove Level' && settle || return 1
  picture level_removed
  key Escape
  window_gone '^Manage Levels$' || return 1
  key ctrl+s
  expect "levels left" '1 3' "$(level id "$plan" 1) $(level id "$plan" 2)" || return 1
  expect "pieces left" 1 "$(piece_count "$plan")" || return 1
  expect "scenery left" 0 "$(grep -c '<sceneryitem ' "$plan")" || return 1
  expect "active after the removal" 1 "$(attribute active '<levels' "$plan")" || return 1
}

# level_row N X: moves the pointer into the Nth row of the list of levels. Under three lines of text
# and a header the first row's middle is at 103, and a row is 24 high, in the default font. The
# check box is at X 23.
level_row() {
  local id
  id=$(window '^Manage Levels$') || return 1
  xdotool mousemove --window "$id" "$2" $((103 + ($1 - 1) * 24))
  settle
}

test_levels_by_the_mouse() {
  local plan="$store/Decks.vtl"
  write_plan Decks "$two_decks"
  open_plan || return 1
  press_levels || return 1
  # The check box hides a level and leaves the other one active.
  level_row 2 23 || return 1
  click
  settle
  picture levels_mouse_hidden
  press_button '^Manage Levels$' 50
  window_gone '^Manage Levels$' || return 1
  key ctrl+s
  expect "visible" 0 "$(level visible "$plan" 2)" || return 1
  expect "active" 1 "$(attribute active '<levels' "$plan")" || return 1
  # A double click on a row opens its properties.
  press_levels || return 1
  level_row 2 80 || return 1
  double_click
  window '^Level Properties: Upper$' >/dev/null || return 1
  settle
  key ctrl+a
  xdotool type --delay 20 Bridge
  press_button '^Level Properties' 150
  window_gone '^Level Properties' || return 1
  press_button '^Manage Levels$' 440
  window '^Add Level$' >/dev/null || return 1
  settle
  key ctrl+a
  xdotool type --delay 20 Top
  key Return
  window_gone '^Add Level$' && settle || return 1
  # The first level goes.
  level_row 1 80 || return 1
  click
  settle
  press_button '^Manage Levels$' 320
  window '^Remove Level' >/dev/null || return 1
  settle
  picture levels_mouse_removal
  press_button '^Remove Level' 350
  window_gone '^Remove Level' && settle || return 1
  picture levels_mouse
  press_button '^Manage Levels$' 50
  window_gone '^Manage Levels$' || return 1
  key ctrl+s
  expect "levels left" '2 3' "$(level id "$plan" 1) $(level id "$plan" 2)" || return 1
  expect "names" 'Bridge Top' "$(level name "$plan" 1) $(level name "$plan" 2)" || return 1
  expect "still hidden" 0 "$(level visible "$plan" 1)" || return 1
  expect "active" 2 "$(attribute active '<levels' "$plan")" || return 1
  expect "track left" 2 "$(attribute id '<piece ' "$plan")" || return 1
}

test_a_free_form_baseboard_is_drawn_on_the_canvas() {
  local plan="$store/Free.vtl" i
  open_shape_dialog || return 1
  # The sixth of the list.
  for i in 1 2 3 4 5; do key Down; done
  picture shape_free_form
  key Tab
  key Return
  window_gone '^Layout Baseboard$' || return 1
  at 200 200
  click
  at 1200 200
  click
  at 1200 900
  picture free_form
  click
  at 300 1000
  click
  # Near the first vertex: 10 mm are 4 pixels.
  at 205 210
  click
  settle
  save_as Free || return 1
  expect "vertices" '200.0000,200.0000 1200.0000,200.0000 1200.0000,900.0000 300.0000,1000.0000 ' \
    "$(vertices "$plan")" || return 1
  expect "last shape" 5 "$(attribute id '<lastshape' "$plan")" || return 1
  # Given up by Escape, the old outline stays. The dialog opens on what was chosen last.
  open_shape_dialog || return 1
  key Tab
  key Return
  window_gone '^Layout Baseboard$' || return 1
  at 400 400
  click
  key Escape
  key ctrl+s
  expect "vertices after Escape" 4 "$(grep -c '<vertex' "$plan")" || return 1
}
