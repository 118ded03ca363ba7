#!/usr/bin/env bash
# readable_names.sh TEST-PROGRAM...: fails where a parameter of a test is shown as bytes, of which nobody
# could tell what is being tried.
set -uo pipefail
status=0
for program in "$@"; do
  listed=$("$program" --gtest_list_tests) || { echo "$program lists nothing" >&2; exit 1; }
  if grep 'GetParam() = .*-byte object <' <<<"$listed"; then
    echo "FAILED  ${program##*/} shows the bytes of these: they want a PrintTo" >&2
    status=1
  fi
done
exit "$status"
