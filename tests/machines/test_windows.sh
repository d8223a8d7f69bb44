#!/usr/bin/env bash
# Runs under Wine what test.sh has built for Windows, and builds and runs programs that use the installed module.
#   test_windows.sh BUILD_DIRECTORY [GTEST_ARGUMENT...]
set -euo pipefail
build=$(realpath "$1")
shift
compiler=x86_64-w64-mingw32-g++-posix
export WINEPREFIX=$PWD/build/machines/wine WINEDEBUG=-all
# No debugger, which would print each crash that a test expects.
export WINEDLLOVERRIDES="winedbg.exe,mscoree,mshtml=d"
WINEPATH=$(dirname "$("$compiler" -print-file-name=libstdc++-6.dll)")
WINEPATH="Z:$WINEPATH;Z:$(dirname "$("$compiler" -print-file-name=libwinpthread-1.dll)")"
export WINEPATH
# That test would need localedef.
export GTEST_FILTER=-Json.NumbersHaveAPointInEveryLocale
export LC_ALL=C.UTF-8 LANGUAGE=  # Wine names files in it, and it means English
wine() { /usr/lib/wine/wine64 "$@"; }
fail() { echo "$*" >&2; exit 1; }

wine "$build/bin/zk_module_tests.exe" --gtest_brief=1 "$@"
[ $# -eq 0 ] || exit 0

says() {  # says NAME EXPECTED PROGRAM [ARGUMENT...]: runs the program in another directory
  local output
  output=$(cd / && wine "${@:3}" 2>/dev/null | tr -d '\r') || fail "$1: ended with an error: $output"
  # shellcheck disable=SC2053  # a pattern
  [[ $output == $2 ]] || fail "$1: the program says: $output"
}
says "the tour" "*Über uns*" "$build/bin/tour.exe" de-DE

# The program in README.md, with the installed module.
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
moved="$work/в другом месте"
for component in runtime development; do
  cmake --install "$build" --prefix "$work/first" --component "$component" >/dev/null
done
mv "$work/first" "$moved"
[ -f "$moved/bin/ZKStrings.dll" ] || fail "there is no bin/ZKStrings.dll"
mkdir "$work/hello"
for file in hello.cpp CMakeLists.txt; do
  sed -n "/^\`${file/./\\.}\`:/,/^\`\`\`\$/p" README.md | sed '/^`/d; /^$/{1d}' >"$work/hello/$file"
done
toolchain=()
for variable in CMAKE_TOOLCHAIN_FILE ZK_TARGET ZK_ROOT; do
  toolchain+=("-D$variable=$(sed -n "s/^$variable:[A-Z]*=//p" "$build/CMakeCache.txt")")
done
hello="4 Badges
1 Abzeichen
Möchtest du kim wirklich rauswerfen?"
build_hello() {  # build_hello NAME OPTION...
  cmake -G Ninja -S "$work/hello" -B "$work/$1" "${toolchain[@]}" "${@:2}" >/dev/null
  cmake --build "$work/$1" >"$work/log" || { cat "$work/log"; fail "$1: it does not build"; }
}
build_hello found -DZKStrings_DIR="$moved/lib/cmake/ZKStrings"
cp "$work/found/hello.exe" "$moved/bin"
says "the program in README.md" "$hello" "$moved/bin/hello.exe"

# The same with the module in the program.
{
  sed "s|^find_package.*|add_subdirectory(\"$PWD\" module)|" "$work/hello/CMakeLists.txt"
  echo 'zkstrings_add_resources(hello)'
} >"$work/static.txt"
mv "$work/static.txt" "$work/hello/CMakeLists.txt"
build_hello static -DZK_SHARED=OFF
says "the static program" "$hello" "$work/static/hello.exe"
