include(CMakePackageConfigHelpers)
set(package_directory ${CMAKE_INSTALL_LIBDIR}/cmake/ZKStrings)

install(TARGETS ZKStrings EXPORT ZKStringsTargets FILE_SET HEADERS)
install(DIRECTORY resources/ DESTINATION ${CMAKE_INSTALL_DATADIR}/ZKStrings PATTERN "*.md" EXCLUDE PATTERN "glossary.json" EXCLUDE)
install(EXPORT ZKStringsTargets NAMESPACE ZKStrings:: DESTINATION ${package_directory})

set(resources ${CMAKE_INSTALL_DATADIR}/ZKStrings)
configure_package_config_file(cmake/ZKStringsConfig.cmake.in ${PROJECT_BINARY_DIR}/ZKStringsConfig.cmake
  INSTALL_DESTINATION ${package_directory} PATH_VARS resources)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/ZKStringsConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/ZKStringsConfig.cmake ${PROJECT_BINARY_DIR}/ZKStringsConfigVersion.cmake
  cmake/ZKStringsResources.cmake DESTINATION ${package_directory})

# The same for those who build the module as a part of their own project.
set_property(GLOBAL PROPERTY ZKSTRINGS_RESOURCES ${PROJECT_SOURCE_DIR}/resources)
set_property(GLOBAL PROPERTY ZKSTRINGS_RESOURCES_PLACE ${resources_above})
include(cmake/ZKStringsResources.cmake)
