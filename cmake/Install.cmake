# Installs three components: runtime (for running programs), development (for building them) and tools. The
# installation can be moved as a whole, so no file in it contains its path.
include(CMakePackageConfigHelpers)
set(package_directory ${CMAKE_INSTALL_LIBDIR}/cmake/ZKStrings)

install(TARGETS ZKStrings EXPORT ZKStringsTargets
  RUNTIME COMPONENT runtime  # the DLL
  LIBRARY COMPONENT runtime NAMELINK_COMPONENT development
  ARCHIVE COMPONENT development
  FILE_SET HEADERS COMPONENT development)
install(DIRECTORY resources/ DESTINATION ${CMAKE_INSTALL_DATADIR}/ZKStrings COMPONENT runtime PATTERN "*.md" EXCLUDE
  PATTERN "glossary.json" EXCLUDE PATTERN "*.zkstrings-*" EXCLUDE)
install(EXPORT ZKStringsTargets NAMESPACE ZKStrings:: DESTINATION ${package_directory} COMPONENT development)

set(resources ${CMAKE_INSTALL_DATADIR}/ZKStrings)
configure_package_config_file(cmake/ZKStringsConfig.cmake.in ${PROJECT_BINARY_DIR}/ZKStringsConfig.cmake
  INSTALL_DESTINATION ${package_directory} PATH_VARS resources CMAKE_INSTALL_BINDIR)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/ZKStringsConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/ZKStringsConfig.cmake ${PROJECT_BINARY_DIR}/ZKStringsConfigVersion.cmake
  cmake/ZKStringsResources.cmake cmake/ZKStringsCatalogue.cmake DESTINATION ${package_directory} COMPONENT development)

# pkg-config finds the installation relative to this file.
set(pkgconfig_directory ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH prefix_above ${pkgconfig_directory} ${CMAKE_INSTALL_PREFIX})
foreach(directory IN ITEMS LIBDIR INCLUDEDIR DATADIR)
  cmake_path(ABSOLUTE_PATH CMAKE_INSTALL_${directory} BASE_DIRECTORY "\${prefix}" OUTPUT_VARIABLE pkgconfig_${directory})
endforeach()
if(NOT BUILD_SHARED_LIBS)
  set(pkgconfig_requires icu-uc)
elseif(WIN32)
  set(pkgconfig_cflags -DZK_IMPORTS)
endif()
configure_file(cmake/zkstrings.pc.in ${PROJECT_BINARY_DIR}/zkstrings.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/zkstrings.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
