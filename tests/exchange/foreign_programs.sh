#!/usr/bin/env bash
# Converts the texts of each language with translate-toolkit and Qt's lconvert, and imports the results: nothing may be
# lost, neither in a table that has the texts nor in one with empty texts.
#   foreign_programs.sh ZKSTRINGS PROJECT [LANGUAGE...]
set -euo pipefail

zkstrings=$1 project=$2
shift 2
languages=("$@")
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
lconvert=$(command -v lconvert || echo /usr/lib/qt5/bin/lconvert)

cp -r "$project/catalogue" "$project/resources" "$folder"
cd "$folder"
[ ${#languages[@]} -gt 0 ] ||
  mapfile -t languages < <(basename --suffix=.lproj --multiple resources/*.lproj | grep --invert-match Base)

translate_toolkit() {
  "$1" --progress=none "$2" "$3" >programs.log 2>&1 || { cat programs.log; exit 1; }
}

qt() {
  "$lconvert" -i "$1" -o "$2" >programs.log 2>&1 || { cat programs.log; exit 1; }
}

fail() {
  echo "$language: $1" >&2
  exit 1
}

import() {
  "$zkstrings" import --language "$language" "$@" >import.log 2>&1 || { cat import.log; fail "$1 is refused"; }
}

# Imports a file, which is named after its conversions, and compares the texts with the exported ones.
compare() {
  import "$1"
  cmp --silent "$table" sent.strings || fail "$1 changes the table: $(diff "$table" sent.strings | head -n 3)"
  sed 's/ = ".*";$/ = "";/' sent.strings >"$table"
  import "$1" --force
  "$zkstrings" export "$language" -o back.xlf >/dev/null
  cmp --silent back.xlf sent.xlf || fail "$1 has lost something: $(diff back.xlf sent.xlf | head -n 3)"
  cp sent.strings "$table"
}

# Prints the table with the first texts of several words marked for review, and without the next ones.
with_marks() {
  awk -F' = ' '
    /^".* .* .*;$/ && reviewed < 3 { print "/* state: needs-review; was \"Old\" */"; ++reviewed; print; next }
    /^".* .* .*;$/ && left < 3 { ++left; next }
    { print }' "$1"
}

for language in "${languages[@]}"; do
  table=resources/$language.lproj/Localizable.strings
  with_marks "$table" >sent.strings
  cp sent.strings "$table"
  "$zkstrings" export "$language" -o sent.xlf >/dev/null
  "$zkstrings" export "$language" -o sent2.xlf --xliff 2.0 >/dev/null
  "$zkstrings" export "$language" -o sent.po >/dev/null
  "$zkstrings" export "$language" -o sent.csv >/dev/null
  translate_toolkit xliff2po sent.xlf xliff2po.po
  translate_toolkit po2xliff xliff2po.po xliff2po-po2xliff.xlf
  translate_toolkit po2xliff sent.po po2xliff.xlf
  qt sent.xlf lconvert.xlf
  qt sent.xlf lconvert-xliff.po
  qt sent.po lconvert.po
  qt sent.po lconvert-po.xlf
  for file in sent.xlf sent2.xlf sent.po sent.csv xliff2po.po xliff2po-po2xliff.xlf po2xliff.xlf \
    lconvert.xlf lconvert-xliff.po lconvert.po lconvert-po.xlf; do
    compare "$file"
  done
  # pofilter keeps only the texts in which it finds an error.
  translate_toolkit pofilter sent.po pofilter.po
  if [ -e pofilter.po ]; then
    import pofilter.po
    cmp --silent "$table" sent.strings || fail "pofilter.po changes the table"
    rm pofilter.po
  fi
  echo "$language: nothing lost"
done
