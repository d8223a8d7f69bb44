#!/usr/bin/env bash
# Runs each fuzzer of a build folder for some seconds, with the seeds and the inputs that earlier runs have collected
# in corpus/ there. Exits with status 1 if a fuzzer has found a bug. The input is then in findings/.
#   run.sh BUILD_FOLDER SECONDS
set -euo pipefail

build=$1 seconds=$2
tests=$(dirname "${BASH_SOURCE[0]}")
findings=$build/findings
status=0
# A fixed seed in CI, so the result depends only on the change.
[ -n "${CI:-}" ] && seed=1 || seed=0
# Temporary files are in memory if possible, because nearly every input is a file.
memory=/dev/shm
[ -w "$memory" ] || memory=${TMPDIR:-/tmp}
TMPDIR=$(mktemp -d "$memory/zkstrings-fuzz-XXXXXX")
export TMPDIR
trap 'rm -rf "$TMPDIR"' EXIT
trap 'exit 1' INT TERM

# Inputs start short and grow up to 16 KB.
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
    echo "$subject: $(sed -n 's/^stat::number_of_executed_units: *//p' "$build/$subject.log") inputs, no bug found"
  else
    status=1
    grep -E '^fuzzer: |^SUMMARY: |^==[0-9]+== ERROR|Test unit written to' "$build/$subject.log" || tail -n 20 "$build/$subject.log"
    echo "$subject: found a bug; see $build/$subject.log, and run $fuzzer FILE to repeat it"
  fi
done
exit "$status"
