#!/usr/bin/env bash
# Compiles the module's tests for another machine and runs them as it would, in build/machines/ARCH.
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
packages=(libc6-dev libstdc++6 libicu-dev nlohmann-json3-dev libcli11-dev libfmt-dev libpugixml-dev)
# This release's linker crashes at trixie's archives.
build_gtest=ON
[ "$arch" = riscv64 ] || { build_gtest=OFF; packages+=(libgtest-dev); }
quietly "Fetching the libraries of $arch" "$log" tests/machines/make_root.sh "$arch" "$root" "${packages[@]}"
remove_stranger "$folder"
quietly "Configuring for $arch" "$log" cmake -G Ninja -B "$folder" -DCMAKE_BUILD_TYPE=Debug \
  -DCMAKE_CXX_FLAGS_DEBUG=-O1 -DCMAKE_TOOLCHAIN_FILE="$PWD/tests/machines/toolchain.cmake" \
  -DZK_TARGET="$target" -DZK_ROOT="$root" -DZK_WERROR=ON -DZK_EXAMPLES=OFF -DZK_BUILD_GTEST="$build_gtest"
quietly "Building for $arch" "$log" cmake --build "$folder" --target zk_module_tests

command=("$folder/bin/zk_module_tests" --gtest_brief=1)
if [ "$arch" != i386 ]; then
  # When a process ends, the emulator speaks as well, and it cannot start the test anew.
  command=("qemu-${target%%-*}" -L "$root" "${command[@]}" --gtest_filter='-*DeathTest*')
fi
"${command[@]}" "$@"
