#!/usr/bin/env bash
# Tests the first uses of the module on several threads in many processes, since each process has them only once.
#   first_uses.sh COMMAND...
set -euo pipefail
for _ in {1..20}; do "$@" 0; done
