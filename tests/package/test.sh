#!/usr/bin/env bash
# Installs the module, moves the installation, and uses it from another project in every way:
# found by CMake or pkg-config, shared or static, built as a subdirectory or fetched; by GCC and Clang, as C++20
# and C++23, with either standard library. Also checks what the shared library exports, needs and runs when it is
# loaded, and how it is linked.
#   test.sh CMAKE SOURCE_DIRECTORY BUILD_DIRECTORY CXX_COMPILER
set -euo pipefail
cmake=$1 source=$2 build=$3 compiler=$4
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() { echo "$*" >&2; exit 1; }
expect() {  # expect NAME OUTPUT COMMAND...: runs the command elsewhere
  local output
  output=$(cd / && "${@:3}" 2>&1) || fail "$1: ended with $?: $output"
  [ "$output" = "$2" ] || fail "$1: the program says: $output"
}
text="Über uns, 246 countries"

library=$build/lib/libZKStrings.so
foreign=$(nm -D --defined-only "$library" | awk '{print $3}' | grep -v -E '^_Z(N|NK|TIN|TSN|TVN)2zk' || true)
[ -z "$foreign" ] || fail "exported, but not public: $foreign"
initialisers=$(readelf -W -S "$library" | awk '$2 == ".init_array" || $3 == ".init_array"' | sed 's/.*INIT_ARRAY *//' | awk '{print $3}')
[ "$initialisers" = 000008 ] || fail "the library has dynamic initialisers (.init_array holds 0x$initialisers bytes; the compiler's own are 8)"
needed=$(readelf -d "$library" | sed -n 's/.*(NEEDED).*\[\(lib\|ld-\)\([a-z+_]*\).*/\2/p' | sort | tr '\n' ' ')
for name in $needed; do
  case "$name" in
    c | m | gcc_s | stdc++ | icuuc | icudata | linux) ;;
    *) fail "the library needs $name" ;;
  esac
done
for file in "$library" "$build/bin/zkstrings"; do
  readelf -W -d "$file" | grep 'FLAGS_1.*NOW' >/dev/null || fail "$file: names are bound late"
  readelf -W -l "$file" | grep GNU_RELRO >/dev/null || fail "$file: relocations stay writable"
  nm -D "$file" | grep __stack_chk_fail >/dev/null || fail "$file: the stack is not guarded"
done

configure() { "$cmake" -G Ninja -DCMAKE_CXX_COMPILER="$compiler" "$@" >/dev/null; }
consumer() {  # consumer NAME PREFIX: builds the consumer against the installation
  configure -S "$source/tests/package" -B "$work/$1" -DCMAKE_PREFIX_PATH="$2"
  "$cmake" --build "$work/$1" >/dev/null
  mkdir -p "$2/bin"
  cp "$work/$1/consumer" "$2/bin"
}

# Shared.
"$cmake" --install "$build" --prefix "$work/first" >/dev/null
mv "$work/first" "$work/moved"
moved=$work/moved
consumer shared "$moved"
expect "shared" "$text" "$moved/bin/consumer"
lib=$(dirname "$(cd "$moved" && find lib* -name libZKStrings.so)")
loaded_from() { env LD_LIBRARY_PATH="$1" "$moved/bin/consumer" "${@:2}"; }

with_pkgconfig() {  # with_pkgconfig NAME PREFIX LIBDIR COMPILER: builds the consumer without CMake
  local flags
  mkdir -p "$2/bin"
  flags=$(PKG_CONFIG_PATH="$2/$3/pkgconfig" pkg-config --cflags --libs zkstrings)
  # shellcheck disable=SC2086  # the flags are several words
  "$4" -std=c++20 "$source/tests/package/consumer.cpp" -o "$2/bin/$1" $flags -Wl,-rpath,"$2/$3"
  expect "$1" "$text" "$2/bin/$1"
}
with_pkgconfig pkg-config "$moved" "$lib" "$compiler"
[ "$compiler" = clang++ ] || ! command -v clang++ >/dev/null || with_pkgconfig clang "$moved" "$lib" clang++

refused() {  # refused MESSAGE OPTION...: a program compiled with these options must not build
  local output
  # shellcheck disable=SC2046  # the flags are several words
  output=$("$compiler" "${@:2}" "$source/tests/package/consumer.cpp" -o "$work/refused" \
    $(PKG_CONFIG_PATH="$moved/$lib/pkgconfig" pkg-config --cflags --libs zkstrings) 2>&1) && fail "a program is built with ${*:2}"
  grep -qF -- "$1" <<<"$output" || fail "with ${*:2}, the compiler says: $output"
}
refused ZKStringsMustBeBuiltWith_GLIBCXX_DEBUG_LikeThisProgram -std=c++20 -D_GLIBCXX_DEBUG
refused "needs C++20: compile with -std=c++20" -std=c++17
refused "needs RTTI" -std=c++20 -fno-rtti

mkdir -p "$moved/lib/app" "$work/links/lib" "$work/links/share"
"$compiler" -std=c++20 "$source/tests/package/consumer.cpp" -o "$moved/lib/app/program" -I"$moved/include" -L"$moved/$lib" -lZKStrings \
  -Wl,--enable-new-dtags,-rpath,"\$ORIGIN/../${lib#lib}"
expect "a program in lib/app" "$text" "$moved/lib/app/program"

cp -P "$moved/$lib"/libZKStrings.so* "$moved/lib/app"
expect "a path that ends in /." "$text" loaded_from "$moved/lib/app/."
expect "a path with .." "$text" loaded_from "$moved/lib/app/../app"

ln -s "$moved/$lib/libZKStrings.so.1" "$work/links/lib"
expect "a link from another tree" "$text" loaded_from "$work/links/lib"
touch "$work/links/lib/share" "$work/links/share/ZKStrings"
expect "files that are called like the resources" "$text" loaded_from "$work/links/lib"
rm "$work/links/share/ZKStrings"
cp -r "$moved/share/ZKStrings" "$work/links/share"
echo "[]" >"$work/links/share/ZKStrings/countries.json"
expect "a link with other resources next to it" "Über uns, 0 countries" loaded_from "$work/links/lib"

# Loaded by a relative path, and asked for the first text after the working directory has changed.
relative() { cd "$moved" && loaded_from "$lib" /; }
expect "loaded by a relative path" "$text" relative

mv "$moved/share" "$moved/gone"
expect "without resources" _ZN2zk35baseLprojIsMissingAmongTheResourcesEv "$moved/bin/consumer"

# Static, as a part of the project, in its build folder and installed; then without /proc.
part() {  # part PREFIX OPTION...: builds the consumer with the module as a part of it, as C++23, and installs both
  configure -DCMAKE_CXX_STANDARD=23 -S "$source/tests/package" -B "$work/part" -DZKSTRINGS_SOURCE="$source" -DCMAKE_INSTALL_PREFIX="$1" "${@:2}"
  "$cmake" --build "$work/part" >/dev/null
  "$cmake" --install "$work/part" >/dev/null
}
part "$work/static" -DBUILD_SHARED_LIBS=OFF
expect "static, in the build folder" "$text" "$work/part/consumer"
expect "static, installed deeply" "$text" "$work/static/programs/of/many/kinds/consumer"
configure -S "$source/tests/package" -B "$work/no-shared" -DZKSTRINGS_SOURCE="$source" -DBUILD_SHARED_LIBS=OFF -DCMAKE_EXE_LINKER_FLAGS=-static
! grep 'libicu.*\.so' "$work/no-shared/build.ninja" || fail "a program without shared libraries links a shared ICU"

consumer static-found "$work/static"
expect "static, found, in the build folder" "$text" "$work/static-found/consumer"
expect "static, found" "$text" "$work/static/bin/consumer"
with_pkgconfig static-pkg-config "$work/static" lib "$compiler"
"$compiler" -std=c++20 -shared -fPIC "$source/tests/package/without_proc.cpp" -o "$work/without_proc.so" -ldl
expect "without /proc" "$text" env LD_PRELOAD="$work/without_proc.so" "$work/static/bin/consumer"
relative() { cd "$work/static/bin" && env LD_PRELOAD="$work/without_proc.so" ./consumer; }
expect "without /proc, started by a relative path" "$text" relative
nowhere() { env LD_PRELOAD="$work/without_proc.so" WITHOUT_NAMES=1 "$work/static/bin/consumer" || echo "stopped"; }
expect "without any names" "stopped" nowhere

# Installed to unusual places.
elsewhere() {  # elsewhere NAME DATADIR LIBDIR
  part "$work/$1" -DBUILD_SHARED_LIBS=ON -DCMAKE_INSTALL_DATADIR="$2" -DCMAKE_INSTALL_LIBDIR="$3"
  expect "$1" "$text" loaded_from "$work/$1/$3"
}
elsewhere other-names data/of/texts libraries
elsewhere multi-arch share lib/some-linux-gnu
with_pkgconfig multi-arch-pkg-config "$work/multi-arch" lib/some-linux-gnu "$compiler"
elsewhere deep-libraries share lib/of/many/different/kinds
elsewhere absolute-data "$work/data" lib

# Fetched. If libc++ is installed, built without any library of GCC.
made_of=(-DCMAKE_CXX_COMPILER="$compiler")
if clang++ -stdlib=libc++ -x c++ -include string -fsyntax-only /dev/null 2>/dev/null; then
  made_of=(-DCMAKE_CXX_COMPILER=clang++ -DCMAKE_CXX_FLAGS=-stdlib=libc++)
else
  echo "Not tried with libc++, which is not here (Debian's clang, libc++-dev and libc++abi-dev)"
fi
"$cmake" -G Ninja -S "$source/tests/package" -B "$work/fetched" "${made_of[@]}" -DZKSTRINGS_SOURCE="$source" -DZKSTRINGS_FETCHED=ON >/dev/null
"$cmake" --build "$work/fetched" --target consumer >"$work/log" || { cat "$work/log"; fail "fetched: it does not build"; }
expect "fetched" "$text" "$work/fetched/consumer"
