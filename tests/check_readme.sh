#!/usr/bin/env bash
# Compares the program in a page with the file that is built. Usage: check_readme.sh PAGE PROGRAM
set -euo pipefail

diff <(sed -n '/^```c$/,/^```$/p' "$1" | sed '1d;$d') "$2" || {
  echo "The program in $1 (<) is not $2 (>)." >&2
  exit 1
}
