# zk_add_catalogue(TARGET <target> ROOT <folder> [NAME <name>] [NAMESPACE <namespace>] [DESTINATION <directory>])
#
# Adds the static library <target> with the accessors of the catalogue in <folder>, which `zkstrings init` creates. A program
# that links it includes "<name>.h". <name> and <namespace> are those in catalogue/catalogue.json; if they are
# given here as well, they must be the same. Each catalogue of a project needs a different name.
#
# The accessors are regenerated whenever the catalogue or its English table changes; an error in them fails the build, with
# file, line and column. They find their tables in share/<project>-<name>, in the directory of the program or shared
# library that contains them or at most two levels above it. <project> is the name of the top-level project, so two
# products can be installed under one prefix. Links to the tables are at the top of the build folder and in the current
# binary directory. An installation copies the tables to its root, for code in bin/, lib/ or lib/<architecture>/, or to DESTINATION,
# which should be the directory that the code itself is installed in.
function(zk_add_catalogue)
  cmake_parse_arguments(PARSE_ARGV 0 arg "" "TARGET;ROOT;NAME;NAMESPACE;DESTINATION" "")
  if(NOT arg_TARGET OR NOT arg_ROOT OR arg_UNPARSED_ARGUMENTS OR arg_KEYWORDS_MISSING_VALUES)
    message(FATAL_ERROR "zk_add_catalogue(TARGET <target> ROOT <folder> [NAME <name>] [NAMESPACE <namespace>] "
      "[DESTINATION <directory>]): cannot use \"${ARGN}\"")
  endif()
  cmake_path(ABSOLUTE_PATH arg_ROOT BASE_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR} NORMALIZE)
  zkstrings_read_catalogue_name(${arg_ROOT}/catalogue/catalogue.json name namespace)
  foreach(given IN ITEMS NAME NAMESPACE)
    string(TOLOWER ${given} member)
    if(DEFINED arg_${given} AND NOT arg_${given} STREQUAL ${member})
      message(FATAL_ERROR "${arg_ROOT}/catalogue/catalogue.json:1:1: error: the ${member} is \"${${member}}\" here and "
        "\"${arg_${given}}\" in zk_add_catalogue; change one")
    endif()
  endforeach()

  string(TOLOWER ${name} unique)
  get_property(other GLOBAL PROPERTY ZKSTRINGS_CATALOGUE_${unique})
  if(other AND NOT other STREQUAL arg_ROOT)
    message(FATAL_ERROR "${arg_ROOT}/catalogue/catalogue.json:1:1: error: the catalogue in ${other} is named \"${name}\" too; "
      "change one of the two names")
  endif()
  set_property(GLOBAL PROPERTY ZKSTRINGS_CATALOGUE_${unique} ${arg_ROOT})
  string(REGEX REPLACE "[^A-Za-z0-9_.-]" "_" folder "${CMAKE_PROJECT_NAME}-${name}")

  set(generated ${CMAKE_CURRENT_BINARY_DIR}/${arg_TARGET}-accessors)
  zkstrings_find_command(command)
  add_custom_command(OUTPUT ${generated}/${name}.h ${generated}/${name}.cpp
    COMMAND ${command} --root ${arg_ROOT} generate --output ${generated}
    DEPENDS ${command} ${arg_ROOT}/catalogue/entries.json ${arg_ROOT}/catalogue/catalogue.json
      ${arg_ROOT}/resources/Base.lproj/Localizable.strings
    COMMENT "Generating the accessors of ${name}"
    VERBATIM)
  add_library(${arg_TARGET} STATIC ${generated}/${name}.cpp ${generated}/${name}.h)
  target_include_directories(${arg_TARGET} PUBLIC ${generated})
  target_link_libraries(${arg_TARGET} PUBLIC ZKStrings::ZKStrings)
  target_compile_definitions(${arg_TARGET} PRIVATE ZK_CATALOGUE_FOLDER="${folder}")
  # The library may become part of a shared one.
  set_target_properties(${arg_TARGET} PROPERTIES POSITION_INDEPENDENT_CODE ON)

  foreach(directory IN ITEMS ${CMAKE_BINARY_DIR} ${CMAKE_CURRENT_BINARY_DIR})
    file(MAKE_DIRECTORY ${directory}/share)
    file(CREATE_LINK ${arg_ROOT}/resources ${directory}/share/${folder} SYMBOLIC)
  endforeach()
  set(installed "${arg_DESTINATION}")
  cmake_path(APPEND installed share ${folder})
  install(DIRECTORY ${arg_ROOT}/resources/ DESTINATION ${installed} PATTERN "*.md" EXCLUDE PATTERN "glossary.json" EXCLUDE
    PATTERN "*.zkstrings-*" EXCLUDE)
endfunction()

# Sets the variables <name> and <namespace> to those in <file>. Stops with a message if they are missing.
function(zkstrings_read_catalogue_name file name namespace)
  if(NOT EXISTS ${file})
    message(FATAL_ERROR "${file}:1:1: error: no such file; ROOT must be a folder that zkstrings init has created")
  endif()
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${file})
  file(READ ${file} json)
  string(JSON read_name ERROR_VARIABLE no_name GET "${json}" name)
  string(JSON read_namespace ERROR_VARIABLE no_namespace GET "${json}" namespace)
  if(no_name)
    message(FATAL_ERROR "${file}:1:1: error: the catalogue has no name; write {\"name\": \"Texts\", \"namespace\": \"myapp\"}")
  endif()
  if(read_name STREQUAL "ZKStrings")
    message(FATAL_ERROR "${file}:1:1: error: the name ZKStrings is reserved for the module; choose another")
  endif()
  if(no_namespace)
    set(read_namespace "")
  endif()
  set(${name} "${read_name}" PARENT_SCOPE)
  set(${namespace} "${read_namespace}" PARENT_SCOPE)
endfunction()

# Sets the variable <command> to zkstrings: the target of this build, or the program installed with the module.
function(zkstrings_find_command command)
  if(TARGET zkstrings)
    set(${command} zkstrings PARENT_SCOPE)
    return()
  endif()
  get_property(directory GLOBAL PROPERTY ZKSTRINGS_COMMAND_DIRECTORY)
  find_program(ZKSTRINGS_COMMAND zkstrings HINTS "${directory}")
  if(NOT ZKSTRINGS_COMMAND)
    message(FATAL_ERROR "zk_add_catalogue needs the command zkstrings; install it with the module, or set ZK_TOOLS to ON "
      "where the module is a part of this project")
  endif()
  set(${command} ${ZKSTRINGS_COMMAND} PARENT_SCOPE)
endfunction()
