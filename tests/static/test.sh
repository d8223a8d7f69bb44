#!/usr/bin/env bash
# Looks over the sources without running them: their layout, the scripts, and what clang-tidy and cppcheck find. Needs the compile
# commands and the generated sources of a build folder.
#   test.sh BUILD_FOLDER
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
build=$1

echo "Layout"
git ls-files '*.cpp' '*.h' | grep -v '^catalogue/ZKStrings\.' | xargs clang-format --dry-run -Werror

echo "Scripts"
git ls-files -z '*.sh' run test bench package reference .ci/run .ci/release | xargs -0 shellcheck

# Not the accessors, nor what includes them: it takes the emoji in their names for a broken file.
echo "cppcheck"
cppcheck --quiet --std=c++20 --language=c++ -j "$(nproc)" --enable=warning,performance,portability \
  --suppressions-list=tests/static/cppcheck.txt --error-exitcode=1 \
  -I "$build/include" engine region platform tools

echo "clang-tidy"
git ls-files -z 'engine/*.cpp' 'region/*.cpp' 'platform/*.cpp' 'catalogue/[!Z]*.cpp' 'tools/*.cpp' 'examples/*.cpp' |
  xargs -0 -n 1 -P "$(nproc)" clang-tidy --quiet -p "$build" 2>/dev/null
