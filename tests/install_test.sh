#!/usr/bin/env bash
# Installs a build into a folder of its own, and builds and runs programs outside against it in every
# way in which they may get the library: install_test.sh SOURCE BUILD
set -euo pipefail

source=$1
build=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# Runs the programs that were built in a folder.
run() {
  LD_LIBRARY_PATH=${2-} "$1/outside"
  LD_LIBRARY_PATH=${2-} "$1/first" | grep -q '^-----BEGIN NAME-----'
}

# By CMake: by_cmake HOW [OPTION...]
by_cmake() {
  local folder
  folder=$(mktemp -d "$work/$1.XXXX")
  cmake -S "$source/tests/outside" -B "$folder" -G Ninja -DHOW="$1" -DVELKORD_SOURCE="$source" \
    -DCMAKE_BUILD_TYPE=Release "${@:2}" >/dev/null
  cmake --build "$folder" >"$folder/log" 2>&1 || { cat "$folder/log"; exit 1; }
  run "$folder"
  echo "CMake, $1: good"
  # Nothing is built that belongs to the library's own development.
  [ ! -e "$folder/velkord/tests" ] && [ ! -e "$folder/velkord/examples" ]
}

# By pkg-config: by_pkg_config PREFIX
by_pkg_config() {
  local folder=$1/programs flags
  mkdir "$folder"
  export PKG_CONFIG_PATH=$1/lib/pkgconfig
  [ "$(pkg-config --modversion velkord)" = "$version" ]
  flags=$(pkg-config --cflags --libs velkord)
  # shellcheck disable=SC2086 # The flags are words.
  gcc -o "$folder/first" "$source/examples/first.c" $flags
  # shellcheck disable=SC2086
  g++ -o "$folder/outside" "$source/tests/outside/outside.cpp" $flags
  run "$folder" "$1/lib"
  echo "pkg-config in $(basename "$1"): good"
}

install_to() {
  cmake --install "$1" --prefix "$2" >/dev/null
}

version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")
libdir=-DCMAKE_INSTALL_LIBDIR=lib

install_to "$build" "$work/shared"
[ -L "$work/shared/lib/libVelkord.so.${version%%.*}" ]
by_cmake package "-DCMAKE_PREFIX_PATH=$work/shared"
by_pkg_config "$work/shared"

# What was installed may be moved.
mv "$work/shared" "$work/moved"
rm -r "$work/moved/programs"
by_pkg_config "$work/moved"

cmake -S "$source" -B "$work/static-build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DVELKORD_STATIC=ON \
  -DVELKORD_BUILD_TESTS=OFF -DVELKORD_BUILD_EXAMPLES=OFF "$libdir" >/dev/null
cmake --build "$work/static-build" >/dev/null
install_to "$work/static-build" "$work/static"
[ ! -e "$work/static/lib/libVelkord.so" ]
by_cmake package "-DCMAKE_PREFIX_PATH=$work/static"
by_pkg_config "$work/static"

by_cmake folder
by_cmake fetched
