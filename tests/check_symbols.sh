#!/usr/bin/env bash
# Compares the names that a library exports with a list of names, and the libraries that it needs
# with the C library, on Windows the system's kernel as well. Usage: check_symbols.sh LIBRARY NAMES OBJDUMP
set -euo pipefail
export LC_ALL=C

case $1 in
  *.dll)
    headers=$("$3" -p "$1")
    names=$(sed -n '/^\[Ordinal\/Name Pointer\] Table/,/^$/s/^\t\[ *[0-9]*\] //p' <<<"$headers")
    needed=$(sed -n 's/^\tDLL Name: //p' <<<"$headers")
    allowed=$'KERNEL32.dll\nmsvcrt.dll'
    ;;
  *)
    names=$(nm -D --defined-only --format=posix "$1" | cut -d ' ' -f 1)
    needed=$("$3" -p "$1" | sed -n 's/.*NEEDED *//p')
    allowed=libc.so.6
    ;;
esac
diff <(sort "$2") <(sort <<<"$names") || {
  echo "The exported names (>) are not those of $2 (<)." >&2
  exit 1
}
[ "$needed" = "$allowed" ] || {
  echo "The library needs more than the C library: $needed" >&2
  exit 1
}
