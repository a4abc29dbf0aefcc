# Adds to the header, for Doxygen alone, the braces that it asks for: around each group, and around
# the functions that share a comment.
/^(\/\/|$)/ && inComment { print "/// @}"; inComment = 0 }
/^(\/\/ -|#ifdef)/ && inGroup { print "/// @}"; inGroup = 0 }
/^VELKORD_API / && !inComment { print "/// @{"; inComment = 1 }
/^$/ && startsGroup { print "/// @{"; startsGroup = 0; inGroup = 1 }
/^\/\/\/ @defgroup / { startsGroup = 1 }
{ print }
