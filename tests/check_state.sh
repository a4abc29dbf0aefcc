#!/usr/bin/env bash
# Demands that a library has no more writable data, and no more to do when it is loaded, than an empty
# one has by its compiler: check_state.sh LIBRARY EMPTY OBJDUMP
set -euo pipefail

# Prints the sizes of the sections for both, in the order of their names.
sizes() {
  "$2" -h "$1" | sed -nE 's/^ *[0-9]+ (\.(data|bss|init_array|ctors|tdata|tbss)) +([0-9a-f]+) .*/\1 \3/p' | sort
}

library=$(sizes "$1" "$3")
empty=$(sizes "$2" "$3")
[ "$library" = "$empty" ] || {
  printf '%s has\n%s\nan empty library\n%s\n' "$1" "$library" "$empty" >&2
  exit 1
}
