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

# choose_percentage PERCENT: in the open print options, by keys.
choose_percentage() {
  xdotool key Down
  xdotool key Down
  settle
  xdotool key Tab
  xdotool key ctrl+a
  xdotool type --delay 20 "$1"
  settle
}

test_print_options_are_set_and_cancelled_by_keys() {
  two_level_plan || return 1
  key ctrl+p
  window '^Print Options$' >/dev/null || return 1
  settle
  choose_percentage 300
  picture print_options
  xdotool key Escape
  window_gone '^Print Options$' || return 1
  plan_is_untouched
}
