# Sourced by run.sh: the first minutes with the real mouse and keys: the greeting, the question, the
# manual.
# shellcheck shell=bash

# start_greeted [PREFS]: the program started anew in its folder with these preferences, or with
# none, and left alone with what it shows.
start_greeted() {
  kill "$pid" 2>/dev/null
  wait "$pid" 2>/dev/null
  rm -f "$store/prefs.cfg"
  [ -n "${1:-}" ] && printf '%b' "$1" >"$store/prefs.cfg"
  HOME=$store/home XDG_DATA_HOME=$store/home LC_ALL=C.UTF-8 "$store/vantrel" \
    >"$store/stdout" 2>"$store/stderr" &
  pid=$!
}

# greetings: how many windows carry the program's bare title. The greeting has the main window's.
greetings() { xdotool search --onlyvisible --name '^Vantrel v1.5 by Kelmor$' 2>/dev/null | wc -l; }

are_greetings() { [ "$(greetings)" = "$1" ]; }

# until_greetings N
until_greetings() {
  until_true 60 are_greetings "$1" && { settle; return 0; }
  problem="expected $1 windows with the program's title, got $(greetings)"
  return 1
}

# close_by_title_bar TITLE: by the button that the window manager has put there.
close_by_title_bar() {
  local id width
  id=$(window "^$1\$") || return 1
  settle
  width=$(xdotool getwindowgeometry --shell "$id" | sed -n 's/^WIDTH=//p')
  xdotool mousemove --window "$id" -- $((width - 10)) -10
  settle
  click
  window_gone "^$1\$" && settle
}

# text_of WINDOW: a sum of what the left part of the window shows; a scroll bar at its right comes and
# goes by itself.
text_of() { import -window "$1" -crop 520x600+0+0 rgb:- 2>/dev/null | cksum; }

test_the_first_start_greets_asks_and_remembers() {
  start_greeted
  until_greetings 2 || return 1
  picture splash
  [ -z "$(xdotool search --onlyvisible --name '^Choose Your Experience$' 2>/dev/null)" ] ||
    { problem="the question came over the greeting"; return 1; }
  [ ! -e "$store/prefs.cfg" ] || { problem="preferences before the answer"; return 1; }
  key Return
  window '^Choose Your Experience$' >/dev/null || return 1
  until_greetings 1 || return 1
  picture experience_question
  key space
  window_gone '^Choose Your Experience$' || return 1
  settle
  expect "preferences" 'playful=1 asked=1 ' "$(tr '\n' ' ' <"$store/prefs.cfg")" || return 1

  # The next start greets and asks nothing more.
  start_greeted 'playful=1\nasked=1\n'
  until_greetings 2 || return 1
  key Escape
  until_greetings 1 || return 1
  settle long
  [ -z "$(xdotool search --onlyvisible --name '^Choose Your Experience$' 2>/dev/null)" ] ||
    { problem="the question came again"; return 1; }
}

test_the_question_closed_by_its_title_bar_means_business() {
  start_greeted
  until_greetings 2 || return 1
  key Escape
  close_by_title_bar 'Choose Your Experience' || return 1
  expect "preferences" 'playful=0 asked=1 ' "$(tr '\n' ' ' <"$store/prefs.cfg")" || return 1
  # From then on the program comes up bare.
  start_greeted 'playful=0\nasked=1\n'
  until_greetings 1 || return 1
  settle long
  expect "windows with the title" 1 "$(greetings)" || return 1
}

test_the_manual_opens_by_its_key_scrolls_to_its_end_and_closes() {
  local help top end
  key F1
  help=$(window '^Vantrel v1.5 Help$') || return 1
  settle long
  picture help_top
  top=$(text_of "$help")
  key End
  picture help_bottom
  end=$(text_of "$help")
  [ "$top" != "$end" ] || { problem="the manual doesn't scroll"; return 1; }
  key Next
  expect "the end" "$end" "$(text_of "$help")" || return 1
  key Home
  expect "the top again" "$top" "$(text_of "$help")" || return 1
  # The wheel over the text.
  move $((canvas_x + 300)) $((canvas_y + 300))
  click 5
  settle
  [ "$top" != "$(text_of "$help")" ] || { problem="the wheel doesn't scroll"; return 1; }
  key Escape
  window_gone '^Vantrel v1.5 Help$' || return 1
  # By the menu, and closed by its button, which Enter presses.
  key alt+h
  key Return
  window '^Vantrel v1.5 Help$' >/dev/null || return 1
  key Return
  window_gone '^Vantrel v1.5 Help$' || return 1
}
