# Makes bugs in the shipped programs hard to exploit: symbols are bound at the start and read-only afterwards, stacks
# are guarded, and copies are checked. If the user's flags set one of these, it is left alone.
if(WIN32)
  return()  # MinGW's linker randomises addresses by default; the other options would need another library
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
# Copies can be checked only in optimised code. Sanitizers check copies themselves.
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
