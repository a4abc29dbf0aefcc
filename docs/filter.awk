# Turns the headers and the Markdown pages into what Doxygen makes one site of.

# The id of a page, from its path; and of a heading, as links on the pages have it.
function page(path) {
  sub(/.*\//, "", path)
  sub(/\.md$/, "", path)
  return tolower(path)
}
function anchor(title) {
  title = tolower(title)
  gsub(/[^a-z0-9 _-]/, "", title)
  gsub(/ /, "-", title)
  return title
}

# Links the names of functions, codes and records, which stand between backticks. What Doxygen links
# by itself would be the words of a sentence too, such as "Certificate".
function linkNames(line,  done, name, link) {
  while (match(line, /`[A-Za-z0-9_]+`/)) {
    name = substr(line, RSTART + 1, RLENGTH - 2)
    link = name in isKnown ? "<tt>@ref " name " \"" name "\"</tt>" : "`" name "`"
    done = done substr(line, 1, RSTART - 1) link
    line = substr(line, RSTART + RLENGTH)
  }
  return done line
}

# Links of Markdown: those to pages and headings go to their ids, those to pictures to their names.
function turnLinks(line,  done, target, parts) {
  while (match(line, /\]\([^)]*\)/)) {
    target = substr(line, RSTART + 2, RLENGTH - 3)
    if (target ~ /^#/ || target ~ /\.md(#|$)/) {
      split(target, parts, "#")
      target = "#" page(parts[1] == "" ? FILENAME : parts[1]) (parts[2] == "" ? "" : "-" parts[2])
    } else if (target !~ /:/) {
      sub(/.*\//, "", target)
    }
    done = done substr(line, 1, RSTART - 1) "](" target ")"
    line = substr(line, RSTART + RLENGTH)
  }
  return done line
}

BEGIN {
  while ((getline line < "include/Velkord.h") > 0) {
    if (match(line, /^  VELKORD_[A-Z_]+ =/)) isKnown[substr(line, 3, RLENGTH - 4)]
    if (line ~ /^typedef struct /) isKnown[substr(line, 16, length(line) - 17)]
    if (line ~ /^VELKORD_API / && match(line, /[A-Za-z0-9_]+\(/)) {
      isKnown[substr(line, RSTART, RLENGTH - 1)]
    }
  }
  # What the pages tell of a group of the reference.
  count = split("codes:pitfalls-functions-that-report-nothing nodes:guide-nodes " \
    "strings:pitfalls-unused-bits integers:pitfalls-numbers sequences:guide-chains tags:guide-tags " \
    "time:pitfalls-local-time names:guide-chinese-names " \
    "key_info:pitfalls-the-identifier-of-an-algorithm extensions:pitfalls-extensions-have-two-forms " \
    "certificates:guide-read-a-certificate inspection:pitfalls-names-and-text " \
    "lists:guide-a-revocation-list requests:guide-a-request messages:pitfalls-ber " \
    "rsa_keys:guide-rsa-keys ec_keys:guide-sm2-signatures-and-keys " \
    "sm2:guide-sm2-signatures-and-keys base64:guide-pem character_sets:guide-chinese-names", pairs, " ")
  for (at = 1; at <= count; ++at) {
    split(pairs[at], pair, ":")
    told[pair[1]] = pair[2]
  }
}

FILENAME ~ /\.md$/ {
  if (/^```/) inCode = !inCode
  if (!inCode && /^# /) $0 = $0 " {#" page(FILENAME) "}"
  if (!inCode && match($0, /^##+ /)) $0 = $0 " {#" page(FILENAME) "-" anchor(substr($0, RLENGTH + 1)) "}"
  print inCode ? $0 : linkNames(turnLinks($0))
  next
}

# What is told of the C++ header stands on the page of its namespace.
sub(/@file velkord\.hpp/, "@namespace velkord") { }

# The braces that Doxygen asks for, around each group and around functions that share a comment.
/^(\/\/|$)/ && inComment { print "/// @}"; inComment = 0 }
/^(\/\/ -|#ifdef)/ && inGroup { print "/// @}"; inGroup = 0 }
/^VELKORD_API / && !inComment { print "/// @{"; inComment = 1 }
/^$/ && group {
  if (group in told) print "/// @see @ref " told[group]
  print "/// @{"
  group = ""
  inGroup = 1
}
/^\/\/\/ @defgroup / { group = $3 }
{ print /^\/\/\// ? linkNames($0) : $0 }
