# Sets the options with which all targets of this project are compiled.
add_library(zk_compile_options INTERFACE)
target_compile_features(zk_compile_options INTERFACE cxx_std_20)
# On 32-bit systems, support files whose number or size does not fit into 32 bits.
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  target_compile_definitions(zk_compile_options INTERFACE _FILE_OFFSET_BITS=64)
endif()
# As a part of another project, the module is compiled with that project's warnings.
if(PROJECT_IS_TOP_LEVEL)
  target_compile_options(zk_compile_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow)
endif()
# If the folder of the sources is named zkstrings, Clang takes <ZKStrings/...> for a path in the wrong case.
target_compile_options(zk_compile_options INTERFACE $<$<CXX_COMPILER_ID:Clang>:-Wno-nonportable-include-path>)
if(ZK_WERROR)
  target_compile_options(zk_compile_options INTERFACE -Werror)
endif()
if(ZK_SANITIZE)
  # Code that sanitizers insert makes GCC report uninitialised members wrongly.
  target_compile_options(zk_compile_options INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  target_compile_options(zk_compile_options INTERFACE -fsanitize=${ZK_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  target_link_options(zk_compile_options INTERFACE -fsanitize=${ZK_SANITIZE})
endif()
