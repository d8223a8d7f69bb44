#!/usr/bin/env bash
# Compiles the module's tests for another machine, the C library musl or Windows, in build/machines/ARCH, and runs them
# in an emulator.
#   test.sh ARCH [GTEST_ARGUMENT...]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
# shellcheck source=cmake/commands.sh
source cmake/commands.sh
arch=$1
shift
target=$(tests/machines/compiler.sh "$arch")
root=$PWD/build/machines/$arch.root
folder=build/machines/$arch
log=build/machines/$arch.log

mkdir -p build/machines
architecture=$arch
build_gtest=ON
examples=OFF
targets=(zk_module_tests)
packages=(nlohmann-json3-dev libcli11-dev libfmt-dev libpugixml-dev)
case $arch in
  # Debian has no libraries for musl, so ICU is built from its source.
  musl) architecture=amd64; packages+=(src:icu) ;;
  windows)
    architecture=amd64 examples=ON targets+=(ZKStrings tour zk_tools_tests zkstrings zk_soak)
    packages=(nlohmann-json3-dev libcli11-dev src:icu src:fmtlib src:pugixml)
    ;;
  # Debian 12's linker crashes at Debian 13's static libraries.
  riscv64) packages+=(libc6-dev libstdc++6 libicu-dev) ;;
  *) build_gtest=OFF; packages+=(libc6-dev libstdc++6 libicu-dev libgtest-dev) ;;
esac
toolchain=(-DCMAKE_TOOLCHAIN_FILE="$PWD/tests/machines/toolchain.cmake" -DZK_TARGET="$target" -DZK_ROOT="$root")

build_libraries() {
  local libraries=tests/machines/libraries build=build/machines/$arch.libraries
  remove_moved_build "$build" "$PWD/$libraries"
  cmake -G Ninja -S "$libraries" -B "$build" -DCMAKE_BUILD_TYPE=Release "${toolchain[@]}" &&
    cmake --build "$build" && cmake --install "$build" --prefix "$root/usr"
}

quietly "Fetching the libraries of $arch" "$log" tests/machines/make_root.sh "$architecture" "$root" "${packages[@]}"
if [ "$arch" = musl ]; then
  export ZIG_GLOBAL_CACHE_DIR=$PWD/build/machines/zig/cache
  fetch_from_npm "Fetching the compiler for $arch" tests/machines/package.json build/machines/zig
fi
if [ "$arch" = musl ] || [ "$arch" = windows ]; then
  quietly "Building libraries for $arch" "$log" build_libraries
fi
remove_moved_build "$folder"
quietly "Configuring for $arch" "$log" cmake -G Ninja -B "$folder" -DCMAKE_BUILD_TYPE=Debug \
  -DCMAKE_CXX_FLAGS_DEBUG=-O1 "${toolchain[@]}" -DZK_WERROR=ON -DZK_EXAMPLES="$examples" -DZK_BUILD_GTEST="$build_gtest"
quietly "Building for $arch" "$log" cmake --build "$folder" --target "${targets[@]}"
if [ "$arch" = windows ]; then
  # This system's command makes catalogues, and its tests play the transcripts.
  quietly "Configuring for this system" "$log" cmake --preset dev -DZK_WERROR=ON
  quietly "Building for this system" "$log" cmake --build --preset dev --target zkstrings zk_tools_tests
fi

tests=$folder/bin/zk_module_tests
case $arch in
  i386 | musl) "$tests" --gtest_brief=1 "$@" ;;
  windows) tests/machines/test_windows.sh "$folder" build/dev "$@" ;;
  # Death tests fail in the emulator: it prints messages of its own and cannot run the test again.
  *) "qemu-${target%%-*}" -L "$root" "$tests" --gtest_brief=1 --gtest_filter='-*DeathTest*' "$@" ;;
esac
