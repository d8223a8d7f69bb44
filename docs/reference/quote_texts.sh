#!/bin/sh
# Prints a header for Doxygen with the English texts in its comments as code, so that what they hold is no markup. The
# first is the entry's summary.
sed -E '
  /^ *\/\/\/ (- [^"]*: )?"/s/"(.*)"$/`"\1"`/
  s/^( *\/\/\/) (`.*)/\1 \\brief \2/
' "$1"
