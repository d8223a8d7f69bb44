# Completes zkstrings in bash. The command itself prints the candidates.
# shellcheck shell=bash
_zkstrings() {
  local candidates
  mapfile -t candidates < <("$1" reference complete "${COMP_WORDS[@]:1:COMP_CWORD}" 2>/dev/null)
  if [ "${candidates[0]-}" = :files ]; then
    compopt -o default
    COMPREPLY=()
    return
  fi
  COMPREPLY=("${candidates[@]%%$'\t'*}")
}
complete -F _zkstrings zkstrings
