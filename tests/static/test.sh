#!/usr/bin/env bash
# Checks the sources with clang-format, shellcheck, cppcheck and clang-tidy. Needs the compile
# commands and the generated sources of a build folder.
#   test.sh BUILD_FOLDER
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
build=$1

echo "Layout"
git ls-files '*.cpp' '*.h' | grep -v '^catalogue/ZKStrings\.' | xargs clang-format --dry-run -Werror

echo "Scripts"
git ls-files -z '*.sh' run test bench package reference .ci/run .ci/release | xargs -0 shellcheck

# Without the accessors and the files that include them: cppcheck does not accept the emoji in their names.
echo "cppcheck"
cppcheck --quiet --std=c++20 --language=c++ -j "$(nproc)" --enable=warning,performance,portability \
  --suppressions-list=tests/static/cppcheck.txt --error-exitcode=1 \
  -I "$build/include" engine region platform tools

echo "clang-tidy"
git ls-files -z 'engine/*.cpp' 'region/*.cpp' 'platform/*.cpp' 'catalogue/[!Z]*.cpp' 'tools/*.cpp' 'examples/*.cpp' \
  ':!*/windows/*' |
  xargs -0 -n 1 -P "$(nproc)" clang-tidy --quiet -p "$build" 2>/dev/null
