#!/usr/bin/env bash
# Runs under Wine what test.sh has built for Windows, and builds and runs programs that use the installed module.
#   test_windows.sh BUILD_DIRECTORY NATIVE_BUILD_DIRECTORY [GTEST_ARGUMENT...]
set -euo pipefail
build=$(realpath "$1") native=$(realpath "$2")
shift 2
compiler=x86_64-w64-mingw32-g++-posix
export WINEPREFIX=$PWD/build/machines/wine WINEDEBUG=-all
# Without a debugger, which would print each crash that a test expects.
export WINEDLLOVERRIDES="winedbg.exe,mscoree,mshtml=d"
WINEPATH=$(dirname "$("$compiler" -print-file-name=libstdc++-6.dll)")
WINEPATH="Z:$WINEPATH;Z:$(dirname "$("$compiler" -print-file-name=libwinpthread-1.dll)")"
export WINEPATH
# That test would need localedef.
export GTEST_FILTER=-Json.NumbersHaveAPointInEveryLocale
export LC_ALL=C.UTF-8 LANGUAGE=  # Wine names files in it, and it means English
wine() { /usr/lib/wine/wine64 "$@"; }
fail() { echo "$*" >&2; exit 1; }

mkdir -p "$WINEPREFIX"  # newer releases of wineserver do not create it
# Keeps Wine's services running until the end. Otherwise, they start again and again, and what they print could become
# part of a program's output.
/usr/lib/wine/wineserver64 -p
work=$(mktemp -d)
trap '/usr/lib/wine/wineserver64 -k || true; rm -rf "$work"' EXIT

for tests in module tools; do wine "$build/bin/zk_${tests}_tests.exe" --gtest_brief=1 "$@"; done
[ $# -eq 0 ] || exit 0

tests/threads/first_uses.sh /usr/lib/wine/wine64 "$build/bin/zk_soak.exe"
wine "$build/bin/zk_soak.exe" 10

# The command, with the same transcripts as on this system.
command=$build/zkstrings
cat >"$command" <<END
#!/bin/sh
LC_ALL=$LC_ALL exec /usr/lib/wine/wine64 "$build/bin/zkstrings.exe" "\$@"
END
chmod +x "$command"
wine "$build/bin/zkstrings.exe" --root . check --strict
GTEST_FILTER='*Transcript*:-*/posix_*' ZK_COMMAND=$command "$native/bin/zk_tools_tests" --gtest_brief=1

cp -r tests/tools/small-project "$work/project"
mkdir "$work/project/resources/de.lproj"
echo '"About" = "";' >"$work/project/resources/de.lproj/Localizable.strings"
is_coloured() {  # is_coloured NO_COLOR: whether a warning has colours on a terminal
  (cd "$work/project" && NO_COLOR=$1 script --quiet --command "'$command' check" /dev/null) | grep -F $'\e[35m' >/dev/null
}
is_coloured '' || fail "a terminal shows no colours"
! is_coloured 1 || fail "NO_COLOR has no effect"

says() {  # says NAME EXPECTED PROGRAM [ARGUMENT...]: runs the program in another directory
  local output
  output=$(cd / && wine "${@:3}" 2>/dev/null | tr -d '\r') || fail "$1: ended with an error: $output"
  # shellcheck disable=SC2053  # a pattern
  [[ $output == $2 ]] || fail "$1: the program says: $output"
}
says "the tour" "*Über uns*" "$build/bin/tour.exe" de-DE

# The program in README.md, with the installed module.
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
build_program() {  # build_program NAME SOURCES OPTION...
  cmake -G Ninja -S "$2" -B "$work/$1-build" "${toolchain[@]}" "${@:3}" >/dev/null
  cmake --build "$work/$1-build" >"$work/log" || { cat "$work/log"; fail "$1: it does not build"; }
}
build_program found "$work/hello" -DZKStrings_DIR="$moved/lib/cmake/ZKStrings"
cp "$work/found-build/hello.exe" "$moved/bin"
says "the program in README.md" "$hello" "$moved/bin/hello.exe"
ln -sfn "$moved" "$WINEPREFIX/dosdevices/x:"
says "from another drive" "$hello" 'X:\bin\hello.exe'

# Two DLLs that use the module: a service that the program registers is known to the other DLL.
mkdir "$work/services"
cat >"$work/services/CMakeLists.txt" <<'END'
cmake_minimum_required(VERSION 3.25)
project(services LANGUAGES CXX)
find_package(ZKStrings CONFIG REQUIRED)
add_library(other SHARED other.cpp)
add_executable(services services.cpp)
target_link_libraries(other PRIVATE ZKStrings::ZKStrings)
target_link_libraries(services PRIVATE other ZKStrings::ZKStrings)
END
cat >"$work/services/other.cpp" <<'END'
#include <ZKStrings/ZKStrings.h>
[[gnu::dllexport]] int resolved() { return zk::Resolver::resolve<int>(); }
END
cat >"$work/services/services.cpp" <<'END'
#include <ZKStrings/ZKStrings.h>
#include <iostream>
[[gnu::dllimport]] int resolved();
int main() {
  zk::Resolver::register_<int>([] { return 7; });
  std::cout << resolved() << "\n";
}
END
WINEPATH="$WINEPATH;Z:$moved/bin"
build_program services "$work/services" -DZKStrings_DIR="$moved/lib/cmake/ZKStrings"
says "a service of the program" 7 "$work/services-build/services.exe"

# Two catalogues of a program, made by the command of this system.
build_program two "$PWD/tests/package/two-catalogues" -DZKStrings_DIR="$moved/lib/cmake/ZKStrings" \
  -DZKSTRINGS_COMMAND="$native/bin/zkstrings"
two="Auf Sendung gehen, AUF SENDUNG, 12 Abzeichen"
says "two catalogues" "$two" "$work/two-build/two_catalogues.exe"
cmake --install "$work/two-build" --prefix "$work/two" >/dev/null
says "two catalogues, installed" "$two" "$work/two/bin/two_catalogues.exe"

# The same with the module in the program.
{
  sed "s|^find_package.*|add_subdirectory(\"$PWD\" module)|" "$work/hello/CMakeLists.txt"
  echo 'zkstrings_add_resources(hello)'
  echo 'install(TARGETS hello)'
} >"$work/static.txt"
mv "$work/static.txt" "$work/hello/CMakeLists.txt"
build_program static "$work/hello" -DZK_SHARED=OFF
says "the static program" "$hello" "$work/static-build/hello.exe"
cmake --install "$work/static-build" --prefix "$work/static" >/dev/null
says "the static program, installed" "$hello" "$work/static/bin/hello.exe"
