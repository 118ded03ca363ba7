#!/usr/bin/env bash
# mutate.sh ROOM [COUNT [SEED]]: changes the sources of one room in COUNT places (20), one at a time,
# and tells which changes its tests let pass. The same seed (1) makes the same changes of the same
# sources. It works on a copy of the tree under the temporary folder, which goes away at the end,
# also after Ctrl+C; what was told by then stands.
#
# A survivor that a user would notice wants a test. Many wouldn't be noticed by anybody: a limit of
# 1e-9 that is met to the bit, a capacity reserved, a branch that only saves time.
set -uo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# The folder under src/ of each test program that isn't named as its room is.
sources_of() {
  case $1 in
    operations | gestures) echo "canvas/$1" ;;
    scene) echo view3d/scene ;;
    pages) echo print/pages ;;
    app | services) echo app/services ;;
    *) echo "$1" ;;
  esac
}
tests_of() {
  case $1 in
    canvas) echo gestures ;;
    services) echo app ;;
    *) echo "$1" ;;
  esac
}

room=${1:-}
count=${2:-20}
seed=${3:-1}
if [ -z "$room" ] || [ ! -d "$root/src/$(sources_of "$room")" ] ||
  [ ! -d "$root/tests/$(tests_of "$room")" ]; then
  echo "usage: mutate.sh ROOM [COUNT [SEED]]    a room is a folder of src/ that has tests" >&2
  exit 2
fi
folder=src/$(sources_of "$room")
program=$(tests_of "$room")_tests

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
trap 'exit 130' INT TERM HUP
(cd "$root" && git ls-files -z | xargs -0 ls -d 2>/dev/null | tar -cf - -T -) | tar -xf - -C "$scratch" ||
  exit 1
cd "$scratch" || exit 1

build() { cmake --build build --target "$program" >build.log 2>&1; }
run() {
  local display=()
  # A program with windows has its entry point in the tree; the others have that of the library.
  grep -q "vantrel_window_test(${program%_tests}[ )]" tests/CMakeLists.txt &&
    display=(scripts/on_virtual_display.sh)
  # In a shell of its own, which keeps to itself that a program crashed.
  (timeout "$1" "${display[@]}" "build/bin/$program" --gtest_brief=1) >run.log 2>&1
}

echo "Building $program"
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=Debug -DVANTREL_WERROR=OFF >build.log 2>&1 && build ||
  { tail -n 20 build.log; exit 1; }
began=$SECONDS
run 1800 || { tail -n 20 run.log; echo "The tests fail as they are" >&2; exit 1; }
# An endless loop is a change noticed too.
limit=$(((SECONDS - began) * 5 + 30))

# Every change that could be made, as file, line, column, length and new text; then COUNT of them by
# lot. Operators are looked for between blanks, as the formatter sets them, so no template is hit.
candidates() {
  awk -v seed="$seed" '
    function offer(from, to,    start, at, part) {
      start = 1
      while ((at = index(substr(code, start), from)) > 0) {
        at += start - 1
        part = substr(code, 1, at)
        # Not inside a text: an even number of quotes stands before.
        if (gsub(/"/, "", part) % 2 == 0)
          printf "%.9f\t%s\t%d\t%d\t%d\t%s\n", rand(), FILENAME, FNR, at, length(from), to
        start = at + length(from)
      }
    }
    BEGIN { srand(seed) }
    /^ *(\/\/|#)|static_assert|^template|^using|^namespace/ { next }
    {
      code = $0
      sub(/ *\/\/.*/, "", code)
      offer(" < ", " <= "); offer(" <= ", " < "); offer(" > ", " >= "); offer(" >= ", " > ")
      offer(" == ", " != "); offer(" != ", " == ")
      offer(" && ", " || "); offer(" || ", " && ")
      offer(" + ", " - "); offer(" - ", " + "); offer(" * ", " / "); offer(" / ", " * ")
      offer(" += ", " -= "); offer(" -= ", " += "); offer("++", "--")
      offer("true", "false"); offer("false", "true")
      offer("if (!", "if ("); offer("std::min", "std::max"); offer("std::max", "std::min")
      offer("0.5", "0.25"); offer("2.0", "3.0"); offer(" ? ", " && false ? ")
      offer("continue;", ";"); offer("break;", ";")
      # A whole statement that is a call or an assignment.
      if (code ~ /^ +[a-zA-Z_.>-]+(\(| = ).*;$/ && code !~ /^ +(return|const|auto|using|else|if) /) {
        match(code, /[^ ]/)
        printf "%.9f\t%s\t%d\t%d\t%d\t%s\n", rand(), FILENAME, FNR, RSTART, length(code) - RSTART + 1, ";"
      }
    }' "$folder"/*.cpp | sort | head -n "$count" | cut -f2-
}

survived=0
killed=0
unbuilt=0
while IFS=$'\t' read -r file line column length text; do
  cp "$file" original
  awk -v line="$line" -v column="$column" -v len="$length" -v text="$text" '
    NR == line { $0 = substr($0, 1, column - 1) text substr($0, column + len) } { print }' \
    original >"$file"
  if ! build; then
    verdict='no program'
    unbuilt=$((unbuilt + 1))
  elif run "$limit"; then
    verdict=SURVIVED
    survived=$((survived + 1))
  else
    verdict=killed
    killed=$((killed + 1))
  fi
  printf '%-10s %s:%s\n' "$verdict" "$file" "$line"
  [ "$verdict" = SURVIVED ] && diff original "$file" | grep '^[<>]'
  cp original "$file"
done < <(candidates)
echo "$killed killed, $survived survived, $unbuilt did not compile"
