# Sourced by run.sh: what the toolkit below has to say on standard error, and what the window manager
# gets to see of the program's windows.
# shellcheck shell=bash

toolkit_complaints() { grep -aE '(Gtk|Gdk|GLib|GObject|Pango)-(CRITICAL|WARNING)' "$store/stderr"; }

restart_as_it_is() {
  kill "$pid" 2>/dev/null
  wait "$pid" 2>/dev/null
  start_program KEEP
}

no_toolkit_complaints() {
  ! toolkit_complaints >"$store/complaints" || { problem="after $1: $(head -n 2 "$store/complaints")"; return 1; }
}

# closed TITLE: the window is there, and Escape takes it away.
closed() {
  window "^$1\$" >/dev/null || return 1
  settle
  key Escape
  window_gone "^$1\$" || return 1
  no_toolkit_complaints "$1"
}

# seen_and_closed KEYS TITLE: the dialog of these keys comes up, and Escape takes it away.
seen_and_closed() {
  key $1
  closed "$2"
}

# shrunk_to_its_smallest: the main window, at once and twice.
shrunk_to_its_smallest() {
  for _ in 1 2; do
    xdotool windowsize "$main" 200 200
    settle
    xdotool windowsize "$main" 1300 800
    settle
  done
  no_toolkit_complaints "shrinking"
}

# windows_come_up_quietly: from a new start on.
windows_come_up_quietly() {
  # Anew: the first start of a run may have come before the window manager, and it takes both.
  restart_as_it_is || return 1
  no_toolkit_complaints "the start" || return 1
  shrunk_to_its_smallest || return 1
  seen_and_closed ctrl+o 'Open Layout' || return 1
  seen_and_closed ctrl+shift+s 'Save Layout' || return 1
  seen_and_closed F1 'Vantrel v1.5 Help' || return 1
  seen_and_closed 'alt+h o' 'Choose Your Experience' || return 1
  seen_and_closed 'alt+l s' 'Layout Baseboard' || return 1
  seen_and_closed ctrl+p 'Print Options' || return 1
  seen_and_closed 'alt+f i' 'Import Layout' || return 1
  seen_and_closed 'alt+f e' 'Export Layout' || return 1
  press_levels || return 1
  closed 'Manage Levels' || return 1
  click_view_tool
  window '^3D View - Vantrel$' >/dev/null || return 1
  settle
  no_toolkit_complaints "the 3D window" || return 1
  xdotool windowactivate --sync "$main"
  settle
  key alt+f v
  window '^Print Preview' >/dev/null || return 1
  settle
  no_toolkit_complaints "the preview" || return 1
}

test_no_window_makes_the_toolkit_complain() {
  local manager failed=
  for manager in openbox xfwm4 metacity; do
    [ $manager = openbox ] || manage_with $manager || { failed=$problem; break; }
    windows_come_up_quietly || { failed="$manager: $problem"; break; }
  done
  [ $manager = openbox ] || manage_with openbox
  problem=$failed
  [ -z "$problem" ]
}

test_escape_answers_the_first_question_as_the_title_bar_does() {
  printf 'playful=0\nasked=0\n' >"$store/prefs.cfg"
  restart_as_it_is || return 1
  window '^Choose Your Experience$' >/dev/null || return 1
  xdotool windowactivate --sync "$(window '^Choose Your Experience$')"
  settle
  key Escape
  window_gone '^Choose Your Experience$' || return 1
  settle
  expect "preferences" 'playful=0 asked=1 ' "$(tr '\n' ' ' <"$store/prefs.cfg")" || return 1
}
