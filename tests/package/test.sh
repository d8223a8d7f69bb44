#!/usr/bin/env bash
# Installs the module, moves the installation, and uses it from another project: shared, and linked statically.
# Also looks at what the shared library exports and runs when it is loaded.
#   test.sh CMAKE SOURCE_DIRECTORY BUILD_DIRECTORY CXX_COMPILER
set -euo pipefail
cmake=$1 source=$2 build=$3 compiler=$4
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() { echo "$*" >&2; exit 1; }

library=$build/lib/libZKStrings.so
foreign=$(nm -D --defined-only "$library" | awk '{print $3}' | grep -v -E '^_Z(N|NK|TIN|TSN|TVN)2zk' || true)
[ -z "$foreign" ] || fail "exported, but not public: $foreign"
initialisers=$(readelf -W -S "$library" | awk '$2 == ".init_array" || $3 == ".init_array"' | sed 's/.*INIT_ARRAY *//' | awk '{print $3}')
[ "$initialisers" = 000008 ] || fail "the library has dynamic initialisers (.init_array holds 0x$initialisers bytes; the compiler's own are 8)"

use() {  # use NAME PREFIX: builds the consumer against the installation, and runs it from elsewhere
  "$cmake" -G Ninja -S "$source/tests/package" -B "$work/$1-build" -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_PREFIX_PATH="$2" >/dev/null
  "$cmake" --build "$work/$1-build" >/dev/null
  mkdir -p "$2/bin"
  cp "$work/$1-build/consumer" "$2/bin/consumer"
  output=$(cd / && "$2/bin/consumer")
  [ "$output" = "Über uns, 246 countries" ] || fail "$1: the consumer says: $output"
}

"$cmake" --install "$build" --prefix "$work/first" >/dev/null
mv "$work/first" "$work/moved"
use shared "$work/moved"

# Loaded by a relative path, and asked for the first text after the working directory has changed.
cp -r "$work/moved/lib" "$work/moved/share" "$work/shared-build/"
output=$(cd "$work/shared-build" && LD_LIBRARY_PATH=$(cd "$work/shared-build" && dirname "$(find lib -name 'libZKStrings.so')") ./consumer /)
[ "$output" = "Über uns, 246 countries" ] || fail "relative: the consumer says: $output"

"$cmake" -G Ninja -S "$source" -B "$work/static" -DBUILD_SHARED_LIBS=OFF -DZK_TOOLS=OFF -DZK_EXAMPLES=OFF -DZK_TESTS=OFF -DCMAKE_CXX_COMPILER="$compiler" >/dev/null
"$cmake" --build "$work/static" >/dev/null
"$cmake" --install "$work/static" --prefix "$work/static-installed" >/dev/null
use static "$work/static-installed"
