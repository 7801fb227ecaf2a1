#!/usr/bin/env bash
# Installs what building, running and testing Pelorium needs from Debian's packages, and only what is missing.
#   tools/setup.sh run    what ./run needs
#   tools/setup.sh test   that, and what ./test needs
#   tools/setup.sh        the same as test
set -euo pipefail

run_packages=(
  build-essential cmake ninja-build            # the compiler and the build
  qt6-base-dev libpng-dev libjpeg-dev       # what the sources include
  libegl-dev libopengl-dev libgl-dev           # and OpenGL
  libegl1 libgl1-mesa-dri                      # OpenGL off the screen, with the software driver behind it
  qt6-qpa-plugins libxcb-cursor0               # Qt on an X server
  fontconfig fonts-dejavu-core                 # a bare system has no fonts at all
)
test_packages=(
  libgtest-dev libbenchmark-dev
  xvfb xauth                                   # the screen that the desktop tests look at
  librsvg2-bin                                 # draws the patterns, to measure them
  locales                                      # the source of a locale with a decimal comma
)

packages=("${run_packages[@]}")
case "${1:-test}" in
  run) ;;
  test) packages+=("${test_packages[@]}") ;;
  *) echo "usage: tools/setup.sh [run|test]" >&2; exit 2 ;;
esac
# A screen without an X server is reached through a plugin of its own.
if [[ -z "${DISPLAY:-}" && -n "${WAYLAND_DISPLAY:-}" ]]; then packages+=(qt6-wayland); fi

if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
  echo "setup: no Debian packages here; these must be there already: ${packages[*]}" >&2
  exit 0
fi

installed() { [[ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" == installed* ]]; }

missing=()
for package in "${packages[@]}"; do
  installed "$package" || missing+=("$package")
done
if ((${#missing[@]} == 0)); then exit 0; fi

as_root=()
if ((EUID != 0)); then
  if ! command -v sudo >/dev/null; then
    echo "setup: these packages are missing, and installing them takes root: ${missing[*]}" >&2
    exit 1
  fi
  as_root=(sudo)
fi

echo "setup: installing ${missing[*]}"
# "env" carries the setting through sudo, which drops the caller's environment.
apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -y -o Dpkg::Use-Pty=0)
"${apt[@]}" update
"${apt[@]}" install --no-install-recommends "${missing[@]}"
