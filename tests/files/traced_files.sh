#!/usr/bin/env bash
# Traces the system calls of the module, and checks which files it asks for: none before its first use, none of its
# resources for the app's bundle, its directory only once even if threads race for it, and none outside its resources,
# whatever name is given.
#   traced_files.sh PROGRAM RESOURCES
set -euo pipefail
program=$1 resources=$2
export LC_ALL=C  # in UTF-8, grep would skip paths that are not UTF-8

if ! strace -o /dev/null true 2>/dev/null; then
  printf '%s: Skipped\nstrace is missing, or may not trace programs here\n' "$0"
  exit 77
fi
trace=$(mktemp)
trap 'rm -f "$trace"' EXIT
LC_ALL='../../etc/passwd' LANGUAGE='/etc:../..:..:~:de/../../etc' \
  strace --follow-forks --quiet=all --trace=%file --string-limit=200 --output="$trace" "$program"
perl -i -pe 's/\\([23][0-7]{2})/chr oct $1/ge' "$trace"  # strace writes the bytes of "ü" as \303\274

# The paths that the step asked for.
paths() {
  awk -F '"' -v step="$1" '/"step:/ { now = substr($2, 6); next } NF > 2 && now == step { print $2 }' "$trace"
}

fail() {
  printf '%s:\n%s\n' "$1" "$2" >&2
  exit 1
}

# Before the first step, and while only the app's bundle is used.
early=$(paths '' | grep -F -e ZKStrings -e .lproj -e countries.json -e /proc/ || true)
[ -z "$early" ] || fail "Asked for before the first use" "$early"
early=$(paths main | grep -F "$resources" || true)
[ -z "$early" ] || fail "Asked for by the app's bundle" "$early"

opened=$(grep -c "openat([^\"]*\"$resources\".*O_DIRECTORY" "$trace" || true)
[ "$opened" -eq 1 ] || fail "The resources were listed" "$opened times"

inherited=$(grep -F "\"$resources" "$trace" | grep 'open\(at\)\?(' | grep -v O_CLOEXEC || true)
[ -z "$inherited" ] || fail "Opened without O_CLOEXEC" "$inherited"

[ "$(paths names | wc -l)" -ge 20 ] || fail "The trace is incomplete" "$(paths names)"
outside=$(paths names | grep -v "^$resources/[^/]*\(/[^/]*\)\?$" || true)
outside+=$(paths names | grep -e '/\.\.\?\(/\|$\)' || true)
[ -z "$outside" ] || fail "Asked for outside of $resources" "$(sort <<<"$outside" | uniq -c | head -n 20)"
