#!/usr/bin/env bash
# Compares the names that a library exports with a list of names, and the libraries that it needs with
# the C library. Usage: check_symbols.sh LIBRARY NAMES
set -euo pipefail
export LC_ALL=C

diff <(sort "$2") <(nm -D --defined-only --format=posix "$1" | cut -d ' ' -f 1 | sort) || {
  echo "The exported names (>) are not those of $2 (<)." >&2
  exit 1
}
needed=$(readelf -d "$1" | sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p')
[ "$needed" = libc.so.6 ] || {
  echo "The library needs more than the C library: $needed" >&2
  exit 1
}
