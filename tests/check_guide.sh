#!/usr/bin/env bash
# Compares the C code in the guide with the programs that are built. Usage: check_guide.sh SOURCE
# In a program a line "// [name]" opens a region and "// [/name]" closes it; what indents these
# lines comes off the region. In a page "<!-- examples/FILE: name -->" stands on the line before a
# block. Each region must have one block, and each block a region.
set -euo pipefail

cd "$1"
found=$(mktemp -d)
trap 'rm -rf "$found"' EXIT
mkdir "$found/programs" "$found/pages"

awk -v out="$found/programs" '
  function fail(text) {
    print FILENAME ":" FNR ": " text > "/dev/stderr"
    failed = 1
    exit 1
  }
  FNR == 1 {
    if (name != "") fail("the file before ends inside the region " name)
    file = FILENAME
    sub(".*/", "", file)
  }
  /^ *\/\/ \[[a-z0-9_]+\]$/ {
    if (name != "") fail("a region inside the region " name)
    indent = index($0, "/") - 1
    name = substr($0, indent + 5, length($0) - indent - 5)
    path = out "/" file ": " name
    if (path in opened) fail("a second region " name)
    opened[path] = 1
    printf "" > path
    next
  }
  /^ *\/\/ \[\/[a-z0-9_]+\]$/ {
    if ($0 !~ "^ *// \\[/" name "\\]$") fail("this does not close the region " name)
    close(path)
    name = ""
    next
  }
  name != "" { print substr($0, indent + 1) > path }
  END { if (!failed && name != "") fail("the file ends inside the region " name) }
' examples/guide_*.[ch]

awk -v out="$found/pages" '
  function fail(text) {
    print FILENAME ":" FNR ": " text > "/dev/stderr"
    failed = 1
    exit 1
  }
  FNR == 1 && (inside || marked) { fail("the page before ends inside a block") }
  inside && /^```$/ {
    close(path)
    inside = 0
    next
  }
  inside {
    print > path
    next
  }
  /^```c/ {
    if (!marked || $0 != "```c") fail("a block of code without its region")
    if (path in opened) fail("a second block of a region")
    opened[path] = 1
    printf "" > path
    inside = 1
    marked = 0
    next
  }
  marked { fail("the name of a region without a block") }
  /^<!-- examples\/[a-z0-9_.]+: [a-z0-9_]+ -->$/ {
    path = substr($0, length("<!-- examples/") + 1)
    path = out "/" substr(path, 1, length(path) - length(" -->"))
    marked = 1
  }
  END { if (!failed && (inside || marked)) fail("the page ends inside a block") }
' docs/guide.md docs/pitfalls.md

diff -ru "$found/pages" "$found/programs" || {
  echo "The blocks of docs/guide.md and docs/pitfalls.md (-) are not the regions of the programs (+)." >&2
  exit 1
}
