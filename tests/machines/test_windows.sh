#!/usr/bin/env bash
# Runs under Wine what test.sh has built for Windows, and builds and runs programs that use the installed module.
#   test_windows.sh BUILD_DIRECTORY [GTEST_ARGUMENT...]
set -euo pipefail
build=$1
shift
compiler=x86_64-w64-mingw32-g++-posix
export WINEPREFIX=$PWD/build/machines/wine WINEDEBUG=-all
# Without a debugger, which would print each crash that a test expects.
export WINEDLLOVERRIDES="winedbg.exe,mscoree,mshtml=d"
WINEPATH=$(dirname "$("$compiler" -print-file-name=libstdc++-6.dll)")
WINEPATH="Z:$WINEPATH;Z:$(dirname "$("$compiler" -print-file-name=libwinpthread-1.dll)")"
export WINEPATH
wine() { /usr/lib/wine/wine64 "$@"; }
fail() { echo "$*" >&2; exit 1; }

wine "$build/bin/zk_module_tests.exe" --gtest_brief=1 "$@"
[ $# -eq 0 ] || exit 0
output=$(wine "$build/bin/tour.exe" de-DE 2>/dev/null)
grep -q "Über uns" <<<"$output" || fail "the tour says: $output"
