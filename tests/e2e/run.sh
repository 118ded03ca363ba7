#!/usr/bin/env bash
# End-to-end tests: the built program under a virtual display of its own, driven from outside by real
# mouse and key events, its files read afterwards.
# usage: run.sh PROGRAM OUTPUT-FOLDER [TEST|FILE...]    a FILE of this folder stands for its tests
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
for file in "$here"/*_tests.sh; do
  # shellcheck source=/dev/null
  . "$file"
done

# tests_of NAME...: the tests of each file named, and every other name as it is.
tests_of() {
  local name
  for name in "$@"; do
    if [ -f "$here/$name" ]; then
      sed -n 's/^\(test_[a-z0-9_]*\)().*/\1/p' "$here/$name"
    else
      echo "$name"
    fi
  done
}

[ $# -gt 0 ] || set -- $(cd "$here" && ls -- *_tests.sh)
passed=0
failed=0
# shellcheck disable=SC2046
for test in $(tests_of "$@"); do
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
