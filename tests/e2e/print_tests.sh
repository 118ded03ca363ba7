# Sourced by run.sh: print options and print preview, with the real mouse and keys.
# shellcheck shell=bash

# two_level_plan: a saved plan with a hidden second level, opened and saved again as the program
# writes it.
two_level_plan() {
  write_plan Printed '  <levels active="1">
    <level id="1" name="Ground" visible="1" height="0.0000"></level>
    <level id="2" name="Upper" visible="0" height="100.0000"></level>
  </levels>
  <pieces>
    <piece id="1" cat="24188" x="100.0000" y="100.0000" heading="0.0000" level="1"></piece>
    <piece id="2" cat="24188" x="2300.0000" y="1100.0000" heading="0.0000" level="1"></piece>
    <piece id="3" cat="24188" x="100.0000" y="300.0000" heading="0.0000" level="2"></piece>
  </pieces>'
  open_plan || return 1
  key ctrl+s
  cp "$store/Printed.vtl" "$store/before"
  saved_title=$(title)
}

# plan_is_untouched: the title has no star, and what is saved now is what was saved before.
plan_is_untouched() {
  expect "title" "$saved_title" "$(title)" || return 1
  key ctrl+s
  cmp -s "$store/before" "$store/Printed.vtl" || { problem="the saved plan differs"; return 1; }
}

# choose_percentage PERCENT: in the open print options, by keys: the arrows go from button to button,
# the blank chooses, and Tab leads into the number beside it.
choose_percentage() {
  xdotool key Down
  xdotool key Down
  xdotool key space
  settle
  xdotool key Tab
  xdotool key ctrl+a
  xdotool type --delay 20 "$1"
  settle
}

# set_percentage PERCENT: sets the print options and cancels the printer's own dialog.
set_percentage() {
  key ctrl+p
  window '^Print Options$' >/dev/null || return 1
  settle
  choose_percentage "$1"
  picture print_options
  xdotool key Return
  window_gone '^Print Options$' || return 1
  answer_box Print Escape
}

# open_preview: opens it from the menu and sets preview to its window.
open_preview() {
  xdotool key --clearmodifiers alt+f
  settle
  xdotool key v
  preview=$(window '^Print Preview -- Vantrel$') || return 1
  settle long
}

# press_in_preview X: clicks into the row of buttons, X pixels from the window's left edge.
press_in_preview() {
  xdotool mousemove --window "$preview" "$1" 23
  settle
  click
  settle long
}
preview_print=28
preview_first=89
preview_previous=140
preview_next=290
preview_last=340
preview_close=848

# page_picture: a fingerprint of the page that the preview shows; the pointer is kept off it.
page_picture() {
  import -window "$preview" "$store/preview.png"
  convert "$store/preview.png" -crop '900x560+0+60' +repage rgb:- | md5sum
}

# press_close_button WINDOW: the window manager's own, at the right of the title bar.
press_close_button() {
  local X Y WIDTH
  eval "$(xdotool getwindowgeometry --shell "$1" | grep -E '^(X|Y|WIDTH)=')"
  xdotool mousemove $((X + WIDTH - 11)) $((Y - 10))
  settle
  click
  settle long
}

main_is_usable() {
  xdotool windowactivate --sync "$main"
  settle
  key ctrl+o
  window '^Open Layout$' >/dev/null || return 1
  key Escape
  window_gone '^Open Layout$'
}

test_preview_shows_every_sheet_and_turns_them() {
  two_level_plan || return 1
  set_percentage 200 || return 1
  open_preview || return 1
  local first second last
  # 2,388 by 1,000 mm at twice the fitting size are two sheets across and two down. The pieces lie in
  # two corners: the second sheet and the third are empty.
  first=$(page_picture)
  picture preview_first_page
  press_in_preview $preview_next
  second=$(page_picture)
  press_in_preview $preview_next
  expect "third sheet" "$second" "$(page_picture)" || return 1
  press_in_preview $preview_next
  last=$(page_picture)
  picture preview_last_page
  [ "$first" != "$second" ] && [ "$second" != "$last" ] && [ "$first" != "$last" ] ||
    { problem="the pages look alike"; return 1; }
  press_in_preview $preview_first
  expect "first sheet again" "$first" "$(page_picture)" || return 1
  press_in_preview $preview_last
  expect "last sheet again" "$last" "$(page_picture)" || return 1
  press_in_preview $preview_previous
  expect "sheet before the last" "$second" "$(page_picture)" || return 1
  press_in_preview $preview_close
  window_gone '^Print Preview -- Vantrel$' || return 1
  main_is_usable && plan_is_untouched
}

test_preview_closed_by_its_title_bar_leaves_the_plan() {
  two_level_plan || return 1
  open_preview || return 1
  press_close_button "$preview"
  window_gone '^Print Preview -- Vantrel$' || return 1
  main_is_usable && plan_is_untouched
}

test_preview_keeps_the_main_window_from_closing() {
  two_level_plan || return 1
  open_preview || return 1
  press_close_button "$main"
  picture preview_after_closing_main
  window '^Print Preview -- Vantrel$' >/dev/null || return 1
  kill -0 "$pid" || { problem="the program has ended"; return 1; }
  xdotool windowactivate --sync "$preview"
  press_in_preview $preview_close
  window_gone '^Print Preview -- Vantrel$' || return 1
  main_is_usable && plan_is_untouched
}

test_print_from_the_preview_can_be_cancelled() {
  two_level_plan || return 1
  open_preview || return 1
  press_in_preview $preview_print
  answer_box Print Escape || return 1
  window '^Print Preview -- Vantrel$' >/dev/null || return 1
  press_in_preview $preview_close
  window_gone '^Print Preview -- Vantrel$' || return 1
  main_is_usable && plan_is_untouched
}

test_print_options_are_cancelled_by_keys() {
  two_level_plan || return 1
  key ctrl+p
  window '^Print Options$' >/dev/null || return 1
  settle
  choose_percentage 300
  xdotool key Escape
  window_gone '^Print Options$' || return 1
  plan_is_untouched
}

# middle WINDOW: the point in the middle of its contents.
middle() {
  local X Y WIDTH HEIGHT
  eval "$(xdotool getwindowgeometry --shell "$1" | grep -E '^(X|Y|WIDTH|HEIGHT)=')"
  echo $((X + WIDTH / 2)) $((Y + HEIGHT / 2))
}

# is_near "X Y" "X Y": within 20 pixels, which borders and title bars may differ by.
is_near() {
  awk -v a="$1" -v b="$2" 'BEGIN {
    split(a, p); split(b, q)
    dx = p[1] - q[1]; dy = p[2] - q[2]
    exit !(dx * dx <= 400 && dy * dy <= 400) }'
}

# in_the_middle WINDOW: waits until it stands in the middle of the main window.
in_the_middle() {
  for _ in $(seq 50); do
    is_near "$(middle "$1")" "$(middle "$main")" && return 0
    sleep 0.1
  done
  problem="the window is around $(middle "$1"), not $(middle "$main")"
  return 1
}

# has_keyboard WINDOW: waits until the keys go there.
has_keyboard() {
  for _ in $(seq 100); do
    [ "$(xdotool getwindowfocus 2>/dev/null)" = "$1" ] && return 0
    sleep 0.1
  done
  problem="the keyboard is in '$(xdotool getwindowfocus getwindowname)'"
  return 1
}

# preview_by_keys_twice: opened and closed by keys alone, in the middle each time.
preview_by_keys_twice() {
  for _ in 1 2; do
    xdotool windowactivate --sync "$main"
    has_keyboard "$main" || return 1
    open_preview || { problem="no preview opens"; return 1; }
    has_keyboard "$preview" || return 1
    in_the_middle "$preview" || return 1
    xdotool key Escape
    window_gone '^Print Preview -- Vantrel$' || return 1
  done
}

test_preview_has_the_keyboard_and_the_middle_under_each_window_manager() {
  local manager failed=
  for manager in openbox xfwm4 metacity; do
    [ $manager = openbox ] || { manage_with $manager && stop_program && start_program; } ||
      { failed="$manager: $problem"; break; }
    preview_by_keys_twice || { failed="$manager: $problem"; break; }
  done
  [ $manager = openbox ] || manage_with openbox
  problem=$failed
  [ -z "$problem" ] && main_is_usable
}
