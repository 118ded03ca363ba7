#!/usr/bin/env bash
# Builds the source that carries the pictures: with some, with one file missing, and with none.
# usage: embedding.sh CMAKE COMPILER
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

cat >"$scratch/main.cpp" <<'CPP'
#include <cstdio>

#include "app/services/embedded_pictures.h"

int main() {
  for (const vantrel::EmbeddedPicture& picture : vantrel::EmbeddedPictures()) {
    std::printf("%d:", picture.id);
    for (const unsigned char byte : picture.data) std::printf("%02x", byte);
    std::printf("\n");
  }
}
CPP

# carried PICTURES: what a program that was built with them finds.
carried() {
  "$cmake" "-DOUTPUT=$scratch/pictures.cpp" "-DPICTURES=$1" -P "$root/cmake/EmbedPictures.cmake"
  "$compiler" -std=c++20 -Wall -Wextra -Wpedantic -Werror -I"$root/src" -o "$scratch/main" \
    "$scratch/main.cpp" "$scratch/pictures.cpp"
  "$scratch/main"
}

expect() { [ "$2" = "$3" ] || { echo "$1: expected '$2', got '$3'" >&2; exit 1; }; }

cmake=$1
compiler=$2
# 17 bytes, one more than stand in a line of the source; "00" and a semicolon among them.
printf 'abc\000;[]\\"\n0123456' >"$scratch/one.jpg"
printf '\377' >"$scratch/two.jpg"
expect "two pictures" \
  $'101:616263003b5b5d5c220a30313233343536\n102:ff' \
  "$(carried "101=$scratch/one.jpg,102=$scratch/two.jpg")"
expect "a file that is missing" '102:ff' "$(carried "101=$scratch/none.jpg,102=$scratch/two.jpg")"
expect "no pictures" '' "$(carried '')"
echo "3 passed"
