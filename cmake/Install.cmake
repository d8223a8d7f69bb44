include(CMakePackageConfigHelpers)
set(package_directory ${CMAKE_INSTALL_LIBDIR}/cmake/ZKStrings)

install(TARGETS ZKStrings EXPORT ZKStringsTargets FILE_SET HEADERS)
install(DIRECTORY resources/ DESTINATION ${CMAKE_INSTALL_DATADIR}/ZKStrings PATTERN "*.md" EXCLUDE)
install(EXPORT ZKStringsTargets NAMESPACE ZKStrings:: DESTINATION ${package_directory})

configure_package_config_file(cmake/ZKStringsConfig.cmake.in ${PROJECT_BINARY_DIR}/ZKStringsConfig.cmake
  INSTALL_DESTINATION ${package_directory})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/ZKStringsConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/ZKStringsConfig.cmake ${PROJECT_BINARY_DIR}/ZKStringsConfigVersion.cmake
  DESTINATION ${package_directory})
