#!/usr/bin/env bash
# Installs what is missing, builds, and runs all tests: the windowless rooms and what draws once more
# under the sanitizers, the windows on a virtual display.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$root/scripts/lib.sh"

need_packages "${build_packages[@]}" "${display_packages[@]}" "${test_packages[@]}"
wish_packages "${quick_packages[@]}"

echo "== Sanitizers: the windowless rooms, and what draws"
build asan
(cd "$root" && ctest --preset asan -j "$(nproc)" --output-on-failure --no-tests=error)

echo "== The program and all tests"
build release
# A real window manager, because focus and activation depend on one. Three times as many tests as cores
# at a time: those that drive the program wait for it more than they work.
(cd "$root" && "$root/scripts/on_virtual_display.sh" \
  ctest --preset release -j "$((3 * $(nproc)))" --output-on-failure --no-tests=error)
