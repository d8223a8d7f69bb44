#!/bin/sh
# Prints a header for Doxygen with the English texts in its comments as code, so Doxygen does not read them as markup.
# The first text becomes the summary of its entry.
sed -E '
  /^ *\/\/\/ (- [^"]*: )?"/s/"(.*)"$/`"\1"`/
  s/^( *\/\/\/) (`.*)/\1 \\brief \2/
' "$1"
