#!/usr/bin/env bash
# Demands that a library takes no more memory than it may: check_size.sh LIBRARY KIBIBYTES OBJDUMP
set -euo pipefail

total=0
size=0
# Each section has a line with its number, name and size, then a line with its flags.
while read -r first second third _; do
  if [[ $first =~ ^[0-9]+$ ]]; then
    size=$((16#$third))
  elif [[ "$first $second" == *ALLOC* ]]; then
    total=$((total + size))
  fi
done < <("$3" -h "$1")

echo "$1 takes $total bytes."
[ "$total" -gt 0 ] && [ "$total" -le $(($2 * 1024)) ]
