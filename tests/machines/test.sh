#!/usr/bin/env bash
# Compiles for another machine and runs the tests as it would, in build/machines/ARCH.
#   test.sh ARCH [CTEST_ARGUMENT...]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
# shellcheck source=cmake/commands.sh
source cmake/commands.sh
arch=$1
shift
root=$PWD/build/machines/$arch.root
folder=build/machines/$arch
log=build/machines/$arch.log

mkdir -p build/machines
quietly "Fetching the libraries of $arch" "$log" tests/machines/make_root.sh "$arch" "$root" \
  libc6-dev libstdc++6 libicu-dev nlohmann-json3-dev libcli11-dev libfmt-dev libpugixml-dev libgtest-dev
remove_stranger "$folder"
quietly "Configuring for $arch" "$log" cmake -G Ninja -B "$folder" -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=-O1 \
  -DCMAKE_TOOLCHAIN_FILE="$PWD/tests/machines/toolchain.cmake" -DZK_TARGET="$(tests/machines/compiler.sh "$arch")" -DZK_ROOT="$root" -DZK_WERROR=ON
quietly "Building for $arch" "$log" cmake --build "$folder" --target zk_all_module_tests zk_tools_tests
# Left out are tests that build and run other things, and under emulation those in which the process ends: the emulator speaks
# then as well, and cannot start the test anew.
skipped='^(Package|OwnCatalogue|Reference|HostSettings)$'
[ "$arch" = i386 ] || skipped+='|DeathTest'
ctest --test-dir "$folder" --output-on-failure --parallel "$(nproc)" --exclude-regex "$skipped" "$@"
