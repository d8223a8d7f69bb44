#!/usr/bin/env bash
# Kills each command before each rename of a file. After that, no file may be empty, and running the command again
# must have the same result as if it had not been killed. Exits with status 77 if programs may not be traced.
#   killed.sh COMMAND PROJECT
set -euo pipefail
command=$1 project=$2

if ! strace -o /dev/null true 2>/dev/null; then
  printf '%s: Skipped\nstrace is missing, or may not trace programs here\n' "$0"
  exit 77
fi
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() { printf 'zkstrings %s, killed at file %s: %s\n' "$line" "$killed" "$1" >&2; exit 1; }

cp -R "$project" "$work/start"
cd "$work/start"
"$command" generate
"$command" add --count '%{n} stars' --one '%{n} star' >/dev/null
"$command" template de >/dev/null
sed -i '/state: untranslated/d; s/ = "\(.*\)";/ = "(\1)";/' resources/de.lproj/Localizable.strings
sed -i '/Top_10/d' resources/de.lproj/Localizable.strings
echo '"Gone" = "Weg";' >>resources/de.lproj/Localizable.strings
cd "$work"

while IFS= read -r line; do
  declare -a arguments="($line)"
  rm -rf undisturbed && cp -R start undisturbed
  (cd undisturbed && "$command" "${arguments[@]}" >/dev/null)
  for ((killed = 1; ; ++killed)); do
    rm -rf again && cp -R start again
    cd again
    if { strace -f -o /dev/null -e trace=/^rename -e inject=/^rename:signal=KILL:when="$killed" \
      "$command" "${arguments[@]}"; } >/dev/null 2>&1; then
      ((killed > 1)) || fail "the command put no file in place"
      break
    fi
    [ -z "$(find . -empty ! -name '*.zkstrings-*')" ] || fail "a file is empty"
    "$command" "${arguments[@]}" >/dev/null || fail "the command cannot be repeated"
    cd ..
    diff -r undisturbed again || fail "the repeated command did not finish the work"
  done
  cd "$work"
done <<'END'
add 'Bye, %{name}!'
add --count '%{n} moons' --one '%{n} moon'
change About 'About us'
change n_stars '%{n} suns' --one '%{n} sun'
change n_stars --placeholder n=stars --max 9
change Top_10 'Top ten' --same-meaning --comment 'The currency.'
rename About Info
rename n_stars stars
remove About
remove n_stars
update de --prune
template fr
generate
init own --name Texts
END
