# Sourced by run.sh: library blocks, from the selection to the file and back, with the real mouse and
# keys.
# shellcheck shell=bash

# library NAME: a file of the library of C-Track.
library() { echo "$store/library/Marklin_C-Track/$1"; }

# save_block NAME: File, Save as Library Block by keys.
save_block() {
  key alt+f
  key l
  window '^Save Library Block$' >/dev/null || return 1
  settle
  xdotool type --delay 20 "$1"
  xdotool key Return
  answer_box 'Save Block' Return
}

# open_library: the palette's second page. Its tab stands above the list, behind "Track".
open_library() {
  move $((palette_x + 108)) $((palette_y - 27))
  click
  settle
}

# on_row N: moves to the Nth row of the library, from 0.
on_row() { glide $((palette_x + 30)) $((palette_y + 10 + $1 * 24)); }

# listed_yard: a straight at (600, 600), saved as the only block that the library shows.
listed_yard() {
  find_palette || return 1
  # shellcheck disable=SC2046
  drag_from $(cell "" 5) 300 300
  drop
  save_block Yard || return 1
  [ -f "$(library Yard.xml)" ] || { problem="no block file"; return 1; }
  mv "$(library Yard.xml)" "$(library Yard.vtl)"
  # Saving another one lists the folder anew.
  save_block Other || return 1
  open_library
}

test_a_selection_is_saved_as_a_block_placed_and_deleted() {
  local plan="$store/Placed.vtl"
  listed_yard || return 1
  expect "block's first line" '<block name="Yard" version="1">' "$(sed -n 2p "$(library Yard.vtl)")" || return 1
  expect "saved where it stood" 600.0000 "$(attribute x '<piece ' "$(library Yard.vtl)")" || return 1
  picture library_page
  on_row 0
  double_click
  picture block_placed
  save_as Placed || return 1
  expect "pieces" 2 "$(piece_count "$plan")" || return 1
  expect "x" 0.0000 "$(attribute x '<piece id="2"' "$plan")" || return 1
  expect "y" 0.0000 "$(attribute y '<piece id="2"' "$plan")" || return 1
  expect "selected" 0 "$(attribute sel '<piece id="2"' "$plan")" || return 1
  # One step back takes the whole block away.
  key ctrl+z
  key ctrl+s
  expect "pieces after Undo" 1 "$(piece_count "$plan")" || return 1

  on_row 0
  choose_entry 1
  answer_box 'Delete Library Block' alt+n || return 1
  [ -f "$(library Yard.vtl)" ] || { problem="No has deleted the block"; return 1; }
  on_row 0
  choose_entry 1
  answer_box 'Delete Library Block' alt+y || return 1
  [ ! -e "$(library Yard.vtl)" ] || { problem="the block is still there"; return 1; }
  # Its row has gone with it.
  on_row 0
  double_click
  key ctrl+s
  expect "pieces after the deletion" 1 "$(piece_count "$plan")" || return 1
}

test_a_block_is_deleted_by_keys_alone() {
  listed_yard || return 1
  on_row 0
  click
  pop_up key Menu
  key Down
  key Return
  answer_box 'Delete Library Block' alt+y || return 1
  [ ! -e "$(library Yard.vtl)" ] || { problem="the block is still there"; return 1; }
}

test_empty_and_vanished_block_files_cost_nothing() {
  local plan="$store/Kept.vtl"
  listed_yard || return 1
  : >"$(library Yard.vtl)"
  on_row 0
  double_click
  rm "$(library Yard.vtl)"
  double_click
  answer_box 'Load Block Failed' Return || return 1
  save_as Kept || return 1
  expect "pieces" 1 "$(piece_count "$plan")" || return 1
}

test_a_broken_block_is_named_and_the_plan_is_rescued() {
  local status=0
  listed_yard || return 1
  printf '<block name="Yard" version="1">\n<piece id="1" cat="24188" x="oops" y="0" heading="0">\n' \
    >"$(library Yard.vtl)"
  on_row 0
  double_click
  window '^Vantrel$' >/dev/null || return 1
  settle
  picture broken_block_message
  key Return
  has_ended || { problem="the program still runs"; return 1; }
  wait "$pid" || status=$?
  expect "exit code" 1 "$status" || return 1
  grep -rqs 'Yard.vtl, line 2: invalid stod argument' "$store/home" || { problem="the log doesn't say why"; return 1; }
  expect "pieces rescued" 1 "$(cat "$store"/*rescued*.vtl | grep -c '<piece ')" || return 1
}
