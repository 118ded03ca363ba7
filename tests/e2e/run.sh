#!/usr/bin/env bash
# End-to-end tests: the built program under a virtual display of its own, driven from outside by real
# mouse and key events, its files read afterwards.
# usage: run.sh PROGRAM OUTPUT-FOLDER [TEST...]
set -uo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
program=$(realpath "$1")
output=$2
shift 2
mkdir -p "$output"
if [ "${VANTREL_E2E_DISPLAY:-}" != yes ]; then
  VANTREL_E2E_DISPLAY=yes exec "$here/../../scripts/on_virtual_display.sh" \
    "${BASH_SOURCE[0]}" "$program" "$output" "$@"
fi
. "$here/driver.sh"
. "$here/tests.sh"
. "$here/editing_tests.sh"
. "$here/view3d_tests.sh"
. "$here/levels_tests.sh"
. "$here/panel_tests.sh"
. "$here/annotation_tests.sh"
. "$here/filling_tests.sh"

all_tests=$(declare -F | awk '{print $3}' | grep '^test_')
passed=0
failed=0
for test in ${*:-$all_tests}; do
  start_program
  problem=
  if "$test" && [ -z "$problem" ]; then
    echo "ok      $test"
    passed=$((passed + 1))
  else
    echo "FAILED  $test: $problem"
    failed=$((failed + 1))
  fi
  picture "$test"
  stop_program
done
echo "$passed passed, $failed failed"
[ "$failed" -eq 0 ]
