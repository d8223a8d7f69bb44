#!/usr/bin/env bash
# Sends the texts of each language through translate-toolkit and Qt's lconvert, and imports what they write: nothing may be
# lost on the way, into a table that has the texts and into one that has none.
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

# Imports a file, named by the way that it took, and compares the texts with those that were exported.
import() {
  "$zkstrings" import --language "$language" "$1" >import.log 2>&1 || { cat import.log; fail "$1 is refused"; }
  cmp --silent "$table" sent.strings || fail "$1 changes the table: $(diff "$table" sent.strings | head -n 3)"
  : >"$table"
  "$zkstrings" import --language "$language" "$1" >import.log 2>&1 || { cat import.log; fail "$1 is refused"; }
  "$zkstrings" export "$language" -o back.xlf >/dev/null
  cmp --silent back.xlf sent.xlf || fail "$1 has lost something: $(diff back.xlf sent.xlf | head -n 3)"
  cp sent.strings "$table"
}

# Prints the table with the first texts of several words marked as in need of review, and the next untranslated.
with_marks() {
  awk -F' = ' '
    /^".* .* .*;$/ && reviewed < 3 { print "/* state: needs-review */"; ++reviewed; print; next }
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
    import "$file"
  done
  # pofilter keeps only the texts that it finds fault with.
  translate_toolkit pofilter sent.po pofilter.po
  [ ! -e pofilter.po ] || "$zkstrings" import "pofilter.po" >import.log 2>&1 || { cat import.log; fail "pofilter.po is refused"; }
  echo "$language: nothing lost"
done
