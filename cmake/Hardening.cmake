# What makes a fault in the shipped programs hard to exploit: addresses that are bound at the start and read-only from
# then on, guarded stacks, and checked copies. Each is left to the user's flags where these speak of it.
if(WIN32)
  return()  # MinGW's linker randomises addresses anyway; guarded stacks and checked copies would need another library
endif()
string(TOUPPER "CMAKE_CXX_FLAGS_${CMAKE_BUILD_TYPE}" flags_of_build_type)
get_directory_property(directory_options COMPILE_OPTIONS)
get_directory_property(directory_definitions COMPILE_DEFINITIONS)
get_directory_property(directory_link_options LINK_OPTIONS)
set(compile_flags "${CMAKE_CXX_FLAGS} ${${flags_of_build_type}} ${directory_options} ${directory_definitions}")
set(link_flags "${CMAKE_CXX_FLAGS} ${CMAKE_SHARED_LINKER_FLAGS} ${CMAKE_EXE_LINKER_FLAGS} ${directory_link_options}")

if(NOT compile_flags MATCHES "stack-protector")
  target_compile_options(zk_compile_options INTERFACE -fstack-protector-strong)
endif()
# Copies can be checked in optimised code only, and sanitizers check them on their own.
if(NOT compile_flags MATCHES "_FORTIFY_SOURCE" AND NOT ZK_SANITIZE)
  set(optimised $<CONFIG:Release,RelWithDebInfo,MinSizeRel>)
  target_compile_options(zk_compile_options INTERFACE
    $<${optimised}:-U_FORTIFY_SOURCE> $<${optimised}:-D_FORTIFY_SOURCE=2>)
endif()
if(NOT link_flags MATCHES "relro")
  target_link_options(zk_compile_options INTERFACE -Wl,-z,relro)
endif()
if(NOT link_flags MATCHES "-z,?(now|lazy)")
  target_link_options(zk_compile_options INTERFACE -Wl,-z,now)
endif()
