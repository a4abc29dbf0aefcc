#!/usr/bin/env bash
# Compares the names that a library exports, or that a .def file lists, with those of the header, and
# the libraries that it needs with the C library, on Windows the system's kernel as well. On Linux each
# name is of the version VELKORD_1. A static library has the names of its inside, in C++, as well.
# Usage: check_symbols.sh LIBRARY OBJDUMP, beside which there is an nm
set -euo pipefail
export LC_ALL=C

header=$(dirname "${BASH_SOURCE[0]}")/../include/Velkord.h
needed='' allowed=''
case $1 in
  *.dll)
    headers=$("$2" -p "$1")
    names=$(sed -n '/^\[Ordinal\/Name Pointer\] Table/,/^$/s/^\t\[ *[0-9]*\] //p' <<<"$headers")
    needed=$(sed -n 's/^\tDLL Name: //p' <<<"$headers")
    allowed=$'KERNEL32\.dll\nmsvcrt\.dll'
    ;;
  *.def)
    names=$(sed -nE 's/^ *(\w+) @[0-9]+.*/\1/p' "$1")
    ;;
  *.a)
    names=$("${2/objdump/nm}" -g --defined-only --format=posix "$1" |
      sed -nE '/^_ZNK?(7velkord8internal|St)/d; s/ [A-Z] .*//p')
    ;;
  *)
    names=$("${2/objdump/nm}" -D --defined-only --format=posix "$1" | sed '/^VELKORD_1/d; s/@@VELKORD_1 .*//')
    headers=$("$2" -p "$1")
    needed=$(sed -n 's/.*NEEDED *//p' <<<"$headers")
    if [[ $headers == *GLIBC_2.33* ]]; then
      echo "$1 does not load with a C library of before 2.33." >&2
      exit 1
    fi
    allowed='libc\.(so\.6|so|musl-.*\.so\.1)'
    ;;
esac
declared=$(tr -s '\n ' ' ' <"$header" | grep -oE 'VELKORD_CALL [A-Za-z0-9_]+\(' | sed 's/.* //; s/(//')
diff <(sort <<<"$declared") <(sort <<<"$names") || {
  echo "The names of $1 (>) are not those of the header (<)." >&2
  exit 1
}
[[ $needed =~ ^($allowed)$ ]] || {
  echo "$1 needs more than the C library: $needed" >&2
  exit 1
}
