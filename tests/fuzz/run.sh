#!/usr/bin/env bash
# Lets each fuzzer of a build folder invent inputs for some seconds, from the seeds and what earlier runs have collected
# in corpus/ there. Ends with status 1 when one has found something; findings/ has the input then.
#   run.sh BUILD_FOLDER SECONDS
set -euo pipefail

build=$1 seconds=$2
tests=$(dirname "${BASH_SOURCE[0]}")
findings=$build/findings
status=0
# In CI a change is to be judged, and not the luck of a draw.
[ -n "${CI:-}" ] && seed=1 || seed=0
# In memory, if it can be: nearly every input is a file.
memory=/dev/shm
[ -w "$memory" ] || memory=${TMPDIR:-/tmp}
TMPDIR=$(mktemp -d "$memory/zkstrings-fuzz-XXXXXX")
export TMPDIR
trap 'rm -rf "$TMPDIR"' EXIT
trap 'exit 1' INT TERM

# Inputs are up to 16 KB long, from short ones on.
fuzz() {
  local corpus=$build/corpus/$1
  mkdir -p "$corpus"
  "$build/bin/fuzz_$1" -seed="$seed" -max_total_time="$seconds" -max_len=16384 -len_control=100 -timeout=60 -report_slow_units=60 \
    -rss_limit_mb=2048 -print_final_stats=1 -dict="$tests/dictionaries/$1.dict" -artifact_prefix="$findings/$1-" \
    "$corpus" "$tests/seeds/$1" >"$build/$1.log" 2>&1
}

mkdir -p "$findings"
for fuzzer in "$build"/bin/fuzz_*; do
  subject=${fuzzer##*/fuzz_}
  if fuzz "$subject"; then
    echo "$subject: $(sed -n 's/^stat::number_of_executed_units: *//p' "$build/$subject.log") inputs, nothing found"
  else
    status=1
    grep -E '^fuzzer: |^SUMMARY: |^==[0-9]+== ERROR|Test unit written to' "$build/$subject.log" || tail -n 20 "$build/$subject.log"
    echo "$subject: found something; $build/$subject.log tells more, and $fuzzer FILE tries a file again"
  fi
done
exit "$status"
