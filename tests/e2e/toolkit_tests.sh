# Sourced by run.sh: what the toolkit below has to say on standard error, and what the window manager
# gets to see of the program's windows.
# shellcheck shell=bash

complaints() { grep -aE '(Gtk|Gdk|GLib|GObject|Pango)-(CRITICAL|WARNING)' "$store/stderr"; }

no_complaints() {
  ! complaints >"$store/complaints" || { problem="after $1: $(head -n 2 "$store/complaints")"; return 1; }
}

# seen_and_closed KEYS TITLE: the dialog of these keys comes up, and Escape takes it away.
seen_and_closed() {
  key $1
  window "^$2\$" >/dev/null || return 1
  settle
  key Escape
  window_gone "^$2\$" || return 1
  no_complaints "$2"
}

test_no_window_makes_the_toolkit_complain() {
  no_complaints "the start" || return 1
  seen_and_closed ctrl+o 'Open Layout' || return 1
  seen_and_closed ctrl+shift+s 'Save Layout' || return 1
  seen_and_closed F1 'Vantrel v1.5 Help' || return 1
  seen_and_closed 'alt+h o' 'Choose Your Experience' || return 1
  seen_and_closed 'alt+l s' 'Layout Baseboard' || return 1
  seen_and_closed ctrl+p 'Print Options' || return 1
  key alt+f v
  window '^Print Preview' >/dev/null || return 1
  settle
  no_complaints "the preview" || return 1
}

test_escape_answers_the_first_question_as_the_title_bar_does() {
  kill "$pid" 2>/dev/null
  wait "$pid" 2>/dev/null
  printf 'playful=0\nasked=0\n' >"$store/prefs.cfg"
  start_program KEEP || return 1
  window '^Choose Your Experience$' >/dev/null || return 1
  xdotool windowactivate --sync "$(window '^Choose Your Experience$')"
  settle
  key Escape
  window_gone '^Choose Your Experience$' || return 1
  settle
  expect "preferences" 'playful=0 asked=1 ' "$(tr '\n' ' ' <"$store/prefs.cfg")" || return 1
}
