# zkstrings_add_resources(<target> [DESTINATION <directory>])
#
# Adds the module's resources to the executable <target>. A program that links ZKStrings statically needs them: the module
# looks for share/ZKStrings at or above the program's own directory, two levels up at most.
#
# In the build folder, the resources are linked next to the program, so it runs there. An installation copies them to
# its root, for a program in bin/, or to DESTINATION, which should be the directory that the program itself is
# installed in.
function(zkstrings_add_resources target)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "DESTINATION" "")
  if(arg_UNPARSED_ARGUMENTS OR arg_KEYWORDS_MISSING_VALUES)
    message(FATAL_ERROR "zkstrings_add_resources(<target> [DESTINATION <directory>]): cannot use \"${ARGN}\"")
  endif()
  get_property(resources GLOBAL PROPERTY ZKSTRINGS_RESOURCES)
  get_property(place GLOBAL PROPERTY ZKSTRINGS_RESOURCES_PLACE)
  cmake_path(GET place PARENT_PATH above)

  add_custom_command(TARGET ${target} POST_BUILD
    COMMAND ${CMAKE_COMMAND} -E make_directory "$<TARGET_FILE_DIR:${target}>/${above}"
    COMMAND ${CMAKE_COMMAND} -E create_symlink "${resources}" "$<TARGET_FILE_DIR:${target}>/${place}"
    VERBATIM)
  set(installed "${arg_DESTINATION}")
  cmake_path(APPEND installed "${place}")
  install(DIRECTORY "${resources}/" DESTINATION "${installed}" PATTERN "*.md" EXCLUDE PATTERN "glossary.json" EXCLUDE
    PATTERN "*.zkstrings-*" EXCLUDE)
endfunction()
