# Shared by run.sh and test.sh: what they install, how they build. Sourced, not run.
# shellcheck shell=bash

build_packages=(g++ cmake ninja-build libwxgtk3.2-dev libgtest-dev libgl1-mesa-dri)
# Only the tests of what is installed use them, and do without where they are missing.
test_packages=(desktop-file-utils appstream libxml2-utils)
# Other window managers, which do some things at other times, and the session bus that they want.
test_packages+=(xfwm4 metacity dbus-daemon)
# They make a build shorter; without them it takes the usual way.
quick_packages=(mold ccache)
display_packages=(xvfb xauth x11-utils openbox xdotool imagemagick fonts-dejavu-core
  poppler-utils)

# need_packages PACKAGE...: installs what is missing, and does nothing when nothing is.
need_packages() {
  local package missing=()
  for package in "$@"; do
    if [ "$(dpkg-query -W -f='${Status}' "$package" 2>/dev/null)" != "install ok installed" ]; then
      missing+=("$package")
    fi
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "Please install: ${missing[*]}" >&2; return 1; }
    as_root=(sudo)
  fi
  echo "Installing ${missing[*]}"
  "${as_root[@]}" apt-get update -qq
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# wish_packages PACKAGE...: installs what is missing where that can be done without asking anybody,
# and goes on without it where it can't.
wish_packages() {
  [ "$(id -u)" -eq 0 ] || sudo -n true 2>/dev/null || return 0
  (need_packages "$@") || echo "Going on without some of: $*" >&2
}

# build PRESET [TARGET...]: configures once, then builds what changed.
build() {
  local preset=$1 target=()
  shift
  [ $# -gt 0 ] && target=(--target "$@")
  (
    cd "$root" || exit 1
    [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset" >/dev/null
    cmake --build --preset "$preset" "${target[@]}"
  )
}

# have_display: whether a program started now could open a window.
have_display() {
  [ -n "${WAYLAND_DISPLAY:-}" ] && return 0
  [ -n "${DISPLAY:-}" ] || return 1
  command -v xdpyinfo >/dev/null || return 0
  timeout 5 xdpyinfo >/dev/null 2>&1
}
