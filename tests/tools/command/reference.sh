#!/usr/bin/env bash
# Checks the manual page as man shows it, and the completion of command lines in bash and zsh. Exits with status 77 if
# one of these programs is missing.
#   reference.sh COMMAND MANUAL SOURCE_DIRECTORY
set -euo pipefail
command=$1 manual=$2 source=$3
for program in man groff zsh; do
  command -v "$program" >/dev/null || { printf '%s: Skipped\nno %s\n' "$0" "$program"; exit 77; }
done
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() { echo "$*" >&2; exit 1; }
export LC_ALL=C.UTF-8
cd "$source"
PATH=$(dirname "$command"):$PATH

warnings=$(man --warnings --local-file "$manual" 2>&1 >"$work/page")
warnings+=$(groff -man -ww -z "$manual" 2>&1)
[ -z "$warnings" ] || fail "the manual page: $warnings"
for subcommand in $(zkstrings reference complete '' | cut -f1); do
  grep -q "Example: zkstrings $subcommand" "$work/page" || fail "the manual page has no example of $subcommand"
  zkstrings "$subcommand" --help | grep "^Example: zkstrings $subcommand" >/dev/null ||
    fail "zkstrings $subcommand --help has no example"
done
for word in --root "\\\\n is a line break" unknown-placeholder "'%{gifts} gifts' --one '%{gifts} gift'"; do
  grep -q -e "$word" "$work/page" || fail "the manual page lacks $word"
done

in_bash() {  # in_bash WORD...: prints the candidates for the last word
  bash --norc -c 'source "$0/tools/reference/zkstrings.bash"; COMP_WORDS=(zkstrings "$@"); COMP_CWORD=$#
    compopt() { COMPOPT="$*"; }
    _zkstrings zkstrings "${!#}"; echo ${COMPREPLY+"${COMPREPLY[@]}"} ${COMPOPT-}' "$source" "$@"
}
expect() {  # expect CANDIDATES WORD...
  local answer
  answer=$(in_bash "${@:2}" 2>&1)
  [ "$answer" = "$1" ] || fail "zkstrings ${*:2} becomes in bash: $answer"
}
expect "change check" ch
expect "--strict" check --s
expect "" nonsense ''
expect "" template ''
expect "da de" check d
expect "same-plurals same-text" check --off same
expect "same-plurals same-text" check --off = same
expect "text json" check --format ''
expect "About" remove About
expect "-o default" --root ''
cd "$work"
expect "" check d
expect "de" --root "$source" update de
cd "$source"

# zsh completes in a terminal only.
cat >"$work/terminal.zsh" <<'END'
zmodload zsh/zpty
zpty shell zsh -f -i
zpty -w shell "PS1= PS2=; fpath=(${(q)1} \$fpath); autoload -Uz compinit; compinit -D -u; print READY"
zpty -r -m shell shown '*READY*READY*'
zpty -w -n shell "$2"$'\t'
zpty -r -m shell shown "*$3*"
END
expect_in_zsh() {  # expect_in_zsh LINE BEGINNING: TAB completes BEGINNING to LINE
  TERM=dumb timeout 20 zsh -f "$work/terminal.zsh" "$source/tools/reference" "$2" "$1" ||
    fail "in zsh, $2 does not become $1"
}
expect_in_zsh "zkstrings coverage" "zkstrings cov"
expect_in_zsh "zkstrings check --off same-text" "zkstrings check --off same-t"
expect_in_zsh "zkstrings check ko" "zkstrings check k"
