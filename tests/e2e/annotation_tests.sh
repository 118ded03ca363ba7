# Sourced by run.sh: measuring tapes, polygons, labels, decks, the size of scenery, and the two small
# dialogs, with the real mouse and keys.
# shellcheck shell=bash

# find_tools: sets measure_tool and polygon_tool to the screen points of the toolbar's last two texts.
# Texts are dark; what stands between two of them is wider than any gap inside one.
find_tools() {
  local texts
  import -window root -crop "1300x16+0+$((canvas_y - 30))" +repage "$store/toolbar.png"
  texts=$(convert "$store/toolbar.png" -colorspace Gray -threshold 45% -alpha set -channel RGBA \
    -fill none +opaque black sparse-color:- | tr ' ' '\n' | awk -F, '/^[0-9]/ {print $1}' | sort -nu |
    awk 'NR > 1 && $1 - last > 20 {print int((first + last) / 2); first = $1}
      NR == 1 {first = $1} {last = $1} END {print int((first + last) / 2)}')
  measure_tool="$(tail -n 2 <<<"$texts" | head -n 1) $((canvas_y - 22))"
  polygon_tool="$(tail -n 1 <<<"$texts") $((canvas_y - 22))"
}

# looks X Y WIDTH HEIGHT: what the screen shows around a point, to be compared.
looks() {
  import -window root -crop "$3x$4+$(($1 - $3 / 2))+$(($2 - $4 / 2))" +repage rgba:- | md5sum
}

# is_up X Y: whether the tool there looks as it did at the start; press_tool keeps that look.
is_up() { [ "$(looks "$1" "$2" 60 20)" = "$tool_up" ]; }

# press_tool X Y: clicks on a tool and goes back to the canvas.
press_tool() {
  move $((canvas_x + 300)) $((canvas_y + 300))
  settle
  tool_up=$(looks "$1" "$2" 60 20)
  move "$1" "$2"
  click
  glide $((canvas_x + 300)) $((canvas_y + 300))
  settle
  if is_up "$1" "$2"; then
    problem="the tool doesn't go down"
    return 1
  fi
}

came_up() {
  settle
  is_up "$1" "$2" && return 0
  problem="the tool stays down"
  return 1
}

# on_canvas COLOUR: how many pixels of that colour the canvas shows.
on_canvas() {
  pixels "$1" | awk -v x="$canvas_x" -v y="$canvas_y" \
    '$1 > x + 20 && $1 < x + 870 && $2 > y + 20 && $2 < y + 750' | wc -l
}

# corners "X,Y ...": a click on each of these world points.
corners() {
  local corner
  for corner in $1; do
    at "${corner%,*}" "${corner#*,}"
    click
  done
  settle
}

# outline FILE: the vertices of the first shape.
outline() {
  sed -n '/<shape /,/<\/shape>/s/.*<v x="\([^"]*\)" y="\([^"]*\)".*/\1,\2/p' "$1" | tr '\n' ' '
}

triangle='500.0000,500.0000 1000.0000,500.0000 1000.0000,900.0000 '

# The colours of a draft, of its first vertex and closing, and of a tape.
draft_blue='#2850C8'
draft_green='#28963C'
tape_grey='#3C3C3C'

test_a_polygon_is_drawn_and_closed_by_a_click_near_its_first_vertex() {
  local plan="$store/Hatch.vtl"
  find_tools
  # shellcheck disable=SC2086
  press_tool $polygon_tool || return 1
  corners "500,500 1000,500 1000,900"
  at 800 900
  settle
  picture polygon_draft
  # 20 mm are 8 pixels.
  at 500 520
  settle
  picture polygon_close
  [ "$(on_canvas "$draft_green")" -gt 100 ] || { problem="no closing ring"; return 1; }
  click
  # shellcheck disable=SC2086
  came_up $polygon_tool || return 1
  expect "green left" 0 "$(on_canvas "$draft_green")" || return 1
  save_as Hatch || return 1
  expect "vertices" "$triangle" "$(outline "$plan")" || return 1
  expect "opacity" 140 "$(attribute a '<shape ' "$plan")" || return 1
  expect "shapes" 1 "$(grep -c '<shape ' "$plan")" || return 1
  key ctrl+z
  key ctrl+s
  expect "shapes after Undo" 0 "$(grep -c '<shape ' "$plan")" || return 1
}

test_enter_and_the_numeric_pads_enter_close_a_polygon_of_three_vertices() {
  local plan="$store/Entered.vtl" enter
  find_tools
  for enter in Return KP_Enter; do
    # shellcheck disable=SC2086
    press_tool $polygon_tool || return 1
    corners "500,500 1000,500"
    # Two are too few.
    key "$enter"
    corners "1000,900"
    key "$enter"
    # shellcheck disable=SC2086
    came_up $polygon_tool || return 1
    if [ "$enter" = Return ]; then save_as Entered || return 1; else key ctrl+s; fi
    expect "vertices by $enter" "$triangle" "$(outline "$plan")" || return 1
    expect "shapes by $enter" 1 "$(grep -c '<shape ' "$plan")" || return 1
    key ctrl+z
    settle
  done
}

test_backspace_down_to_no_vertices_leaves_the_polygon_tool_armed() {
  local plan="$store/Taken Back.vtl"
  find_tools
  # shellcheck disable=SC2086
  press_tool $polygon_tool || return 1
  corners "300,300 600,300"
  key BackSpace BackSpace
  expect "blue left" 0 "$(on_canvas "$draft_blue")" || return 1
  # Once too often.
  key BackSpace
  # shellcheck disable=SC2086
  if is_up $polygon_tool; then
    problem="the tool went up"
    return 1
  fi
  corners "500,500 1000,500 1000,900"
  key Return
  save_as "Taken Back" || return 1
  expect "vertices" "$triangle" "$(outline "$plan")" || return 1
}

test_escape_puts_the_tape_and_the_polygon_away_without_a_trace() {
  local tool plan="$store/Nothing.vtl"
  find_tools
  for tool in "$measure_tool" "$polygon_tool"; do
    # shellcheck disable=SC2086
    press_tool $tool || return 1
    corners "500,500"
    at 900 500
    settle
    [ "$(on_canvas "$draft_blue")" -gt 50 ] || { problem="no draft"; return 1; }
    key Escape
    # shellcheck disable=SC2086
    came_up $tool || return 1
    expect "blue left" 0 "$(on_canvas "$draft_blue")" || return 1
    # Before the first click as well, wherever the focus was: here in the field for a new label.
    move $((canvas_x + 1000)) $((canvas_y + 36))
    click
    xdotool type x
    # shellcheck disable=SC2086
    press_tool $tool || return 1
    key Escape
    # shellcheck disable=SC2086
    came_up $tool || return 1
  done
  expect "title" 'Vantrel v1.5 by Kelmor' "$(title)" || return 1
  save_as Nothing || return 1
  expect "shapes" 0 "$(grep -c '<shape ' "$plan")" || return 1
}

# use_centimetres: Layout, Units of Measure, its second entry, by keys.
use_centimetres() {
  key alt+l
  key Right
  key Down
  key Return
}

test_two_tapes_follow_the_units_and_go_one_by_one() {
  local plan="$store/Tapes.vtl" in_mm one two
  find_tools
  # shellcheck disable=SC2086
  press_tool $measure_tool || return 1
  at 300 400
  click
  at 800 400
  settle
  picture tape_draft_mm
  click
  # shellcheck disable=SC2086
  came_up $measure_tool || return 1
  at 1500 1200
  settle
  picture tape_mm
  one=$(on_canvas "$tape_grey")
  # 500 mm are 200 pixels, 2 wide.
  [ "$one" -gt 300 ] || { problem="no tape"; return 1; }
  # The plate in the middle of the line.
  in_mm=$(looks $((canvas_x + 60 + 220)) $((canvas_y + 60 + 160)) 80 24)
  use_centimetres
  at 1500 1200
  settle
  [ "$in_mm" != "$(looks $((canvas_x + 60 + 220)) $((canvas_y + 60 + 160)) 80 24)" ] || {
    problem="the tape keeps its millimetres"
    return 1
  }
  one=$(on_canvas "$tape_grey")
  # shellcheck disable=SC2086
  press_tool $measure_tool || return 1
  at 300 700
  click
  at 900 700
  settle
  picture tape_draft_cm
  click
  at 1500 1200
  settle
  picture tapes_cm
  two=$(on_canvas "$tape_grey")
  [ "$two" -gt $((one + 300)) ] || { problem="no second tape"; return 1; }
  expect "title" 'Vantrel v1.5 by Kelmor *' "$(title)" || return 1
  save_as Tapes || return 1
  expect "what of them is saved" 0 "$(grep -ci 'meas' "$plan")" || return 1
  key ctrl+z
  expect "the first alone" "$one" "$(on_canvas "$tape_grey")" || return 1
  key ctrl+z
  expect "none" 0 "$(on_canvas "$tape_grey")" || return 1
}

test_a_label_follows_the_pointer_and_no_undo_brings_it_back() {
  local plan="$store/Labelled.vtl"
  # Labels alone are no content to be zoomed to: the view is the one of the start.
  write_plan Labelled '<labels>
<label id="1" x="400.0000" y="400.0000" text="Main yard"/>
</labels>'
  open_plan || return 1
  # 4 pixels right of its place, 4 below.
  at 410 410
  press
  at 660 510
  release
  settle
  picture label_dragged
  key ctrl+s
  expect "x" 650.0000 "$(attribute x '<label ' "$plan")" || return 1
  expect "y" 500.0000 "$(attribute y '<label ' "$plan")" || return 1
  key ctrl+z
  key ctrl+s
  expect "x after Undo" 650.0000 "$(attribute x '<label ' "$plan")" || return 1
}

# A plan with Z track opens at one pixel to the millimetre.
z_track='<pieces>
<piece id="1" cat="8500" x="40.0000" y="640.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
</piece>
</pieces>'

# at_mm X Y: moves the pointer there under that view.
at_mm() { glide $((canvas_x + 60 + $1)) $((canvas_y + 60 + $2)); }

test_shift_drags_a_decks_outline() {
  local plan="$store/Deck.vtl"
  write_plan Deck "$z_track
"'<levels active="1">
<level id="1" name="Main" visible="1" height="0.0000" trackcolor="0" r="180" g="200" b="220">
<pt x="200.0000" y="100.0000"/>
<pt x="500.0000" y="100.0000"/>
<pt x="500.0000" y="300.0000"/>
<pt x="200.0000" y="300.0000"/>
</level>
</levels>'
  open_plan || return 1
  # Without Shift a band starts there.
  at_mm 350 100
  drag_to $((canvas_x + 60 + 400)) $((canvas_y + 60 + 150))
  expect "title" 'Vantrel v1.5 by Kelmor - Deck' "$(title)" || return 1
  at_mm 350 100
  xdotool keydown shift
  press
  at_mm 390 180
  release
  xdotool keyup shift
  settle
  picture deck_dragged
  key ctrl+s
  expect "first x" 240.0000 "$(attribute x '<pt ' "$plan" 1)" || return 1
  expect "first y" 180.0000 "$(attribute y '<pt ' "$plan" 1)" || return 1
  expect "third x" 540.0000 "$(attribute x '<pt ' "$plan" 3)" || return 1
  expect "third y" 380.0000 "$(attribute y '<pt ' "$plan" 3)" || return 1
}

# platform_plan NAME: a platform of 230 by 60 mm in the middle of the canvas, opened.
platform_plan() {
  write_plan "$1" "$z_track
"'<scenery>
<sceneryitem id="2" item="platform" x="400.0000" y="300.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
</scenery>'
  open_plan
}

# platform FILE: its two factors and its place.
platform() {
  local name
  for name in scalex scaley x y; do printf '%s ' "$(attribute "$name" '<sceneryitem ' "$1")"; done
}

test_each_of_the_eight_handles_resizes_a_platform() {
  local plan="$store/Sized.vtl" n=0 x y by_x by_y expected
  platform_plan Sized || return 1
  at_mm 420 290
  click
  settle
  picture handles
  # Pulled out by 40 to the side and by 30 up or down: 270 / 230 = 1.1739, 90 / 60 = 1.5, and the
  # middle moves by half as much.
  while read -r x y by_x by_y expected; do
    at_mm "$x" "$y"
    press
    at_mm $((x + by_x)) $((y + by_y))
    release
    settle
    key ctrl+s
    expect "handle $n" "$expected " "$(platform "$plan")" || return 1
    [ "$n" = 4 ] && picture handle_dragged
    key ctrl+z
    n=$((n + 1))
  done <<'END'
285 270 -40 -30 1.1739 1.5000 380.0000 285.0000
400 270 -40 -30 1.0000 1.5000 400.0000 285.0000
515 270 40 -30 1.1739 1.5000 420.0000 285.0000
515 300 40 -30 1.1739 1.0000 420.0000 300.0000
515 330 40 30 1.1739 1.5000 420.0000 315.0000
400 330 40 30 1.0000 1.5000 400.0000 315.0000
285 330 -40 30 1.1739 1.5000 380.0000 315.0000
285 300 -40 30 1.1739 1.0000 380.0000 300.0000
END
  expect "handles tried" 8 "$n" || return 1
}

# open_resize: a double click on the platform, wherever the last size has left its middle.
open_resize() {
  at_mm 410 300
  double_click
  window '^Resize Scenery$' >/dev/null && settle
}

test_a_double_click_on_scenery_asks_for_its_size() {
  local plan="$store/Asked.vtl" unchanged='1.0000 1.0000 400.0000 300.0000 '
  platform_plan Asked || return 1
  open_resize || return 1
  picture resize_scenery
  # Typed, and Enter at once: the locked depth goes along.
  key ctrl+a
  xdotool type --delay 30 2
  key Return
  window_gone '^Resize Scenery$' || return 1
  key ctrl+s
  expect "by Enter" '2.0000 2.0000 400.0000 300.0000 ' "$(platform "$plan")" || return 1
  # Reset by Tab: width, depth, lock, reset.
  open_resize || return 1
  key Tab Tab Tab
  key space
  window_gone '^Resize Scenery$' || return 1
  key ctrl+s
  expect "by Reset" "$unchanged" "$(platform "$plan")" || return 1
  # The depth alone, with OK by Tab and space.
  open_resize || return 1
  key Tab
  key ctrl+a
  xdotool type --delay 30 0.5
  key Tab Tab Tab
  key space
  window_gone '^Resize Scenery$' || return 1
  key ctrl+s
  expect "depth alone" '1.0000 0.5000 400.0000 300.0000 ' "$(platform "$plan")" || return 1
  # Escape and Cancel leave it.
  open_resize || return 1
  key ctrl+a
  xdotool type --delay 30 4
  key Escape
  window_gone '^Resize Scenery$' || return 1
  open_resize || return 1
  key ctrl+a
  xdotool type --delay 30 4
  key Tab Tab Tab Tab Tab
  key space
  window_gone '^Resize Scenery$' || return 1
  key ctrl+s
  expect "by no answer" '1.0000 0.5000 400.0000 300.0000 ' "$(platform "$plan")" || return 1
  # Nothing goes below a tenth.
  open_resize || return 1
  key ctrl+a
  xdotool type --delay 30 0.01
  key Return
  window_gone '^Resize Scenery$' || return 1
  key ctrl+s
  expect "smallest" 0.1000 "$(attribute scalex '<sceneryitem ' "$plan")" || return 1
}

# open_properties: a double click on the shape.
open_properties() {
  at_mm 350 200
  double_click
  window '^Shape Properties$' >/dev/null && settle
}

# shape FILE: what its dialog tells, without the name.
shape() {
  local name
  for name in r g b a outline height; do printf '%s ' "$(attribute "$name" '<shape ' "$1")"; done
}

test_a_double_click_on_a_shape_asks_for_its_properties() {
  local plan="$store/River.vtl"
  write_plan River "$z_track
"'<shapes>
<shape id="2" r="10" g="120" b="200" a="128" outline="1" level="1" height="12.3000" label="River">
<v x="200.0000" y="100.0000"/>
<v x="500.0000" y="100.0000"/>
<v x="500.0000" y="300.0000"/>
<v x="200.0000" y="300.0000"/>
</shape>
</shapes>'
  open_plan || return 1
  # Escape, and Cancel by Tab: name, colour, opacity, height, outline, then the buttons.
  open_properties || return 1
  picture shape_properties
  xdotool type --delay 30 Gone
  key Escape
  window_gone '^Shape Properties$' || return 1
  open_properties || return 1
  xdotool type --delay 30 Gone
  key Tab Tab Tab Tab Tab
  key space
  window_gone '^Shape Properties$' || return 1
  expect "title" 'Vantrel v1.5 by Kelmor - River' "$(title)" || return 1
  # Everything but the colour, and Enter.
  open_properties || return 1
  key ctrl+a
  xdotool type --delay 30 Brook
  key Tab Tab
  key ctrl+a
  xdotool type --delay 30 25
  key Tab
  key ctrl+a
  xdotool type --delay 30 7.5
  key Tab
  key space
  key Return
  window_gone '^Shape Properties$' || return 1
  key ctrl+s
  # 25 * 255 / 100 = 63.75.
  expect "shape" '10 120 200 64 0 7.5000 ' "$(shape "$plan")" || return 1
  expect "name" Brook "$(attribute label '<shape ' "$plan")" || return 1
  key ctrl+z
  key ctrl+s
  expect "shape after Undo" '10 120 200 128 1 12.3000 ' "$(shape "$plan")" || return 1
}
