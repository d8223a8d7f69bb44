# The Debian packages libzkstrings1, libzkstrings-dev and zkstrings-tools; ./package makes them.
set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL runtime development tools)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR})
set(ZK_MAINTAINER "" CACHE STRING "Who maintains the Debian packages, as in: Name <address>")
set(CPACK_DEBIAN_PACKAGE_MAINTAINER ${ZK_MAINTAINER})
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

# dpkg-shlibdeps finds the packages that the library and the command need.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(library_package libzkstrings${PROJECT_VERSION_MAJOR})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${library_package})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_MULTIARCH same)
file(WRITE ${PROJECT_BINARY_DIR}/shlibs "libZKStrings ${PROJECT_VERSION_MAJOR} ${library_package} (>= ${PROJECT_VERSION})\n")
file(WRITE ${PROJECT_BINARY_DIR}/triggers "activate-noawait ldconfig\n")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_BINARY_DIR}/shlibs ${PROJECT_BINARY_DIR}/triggers)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libzkstrings-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${library_package} (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME zkstrings-tools)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION devel)

set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "texts of a live quiz-show app in the user's language")
set(what_it_is "ZKStrings owns every text that a player sees, finds the player's language\nfor it, chooses the plural form and fills in the placeholders.")
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "${what_it_is}\n.\nThis package has the library and its texts.")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "${what_it_is}\n.\nThis package has what building programs with it needs.")
set(CPACK_COMPONENT_TOOLS_DESCRIPTION "${what_it_is}\n.\nThis package has the command that adds texts and checks translations.")

# Every Debian package has a copyright file and a changelog.
string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
configure_file(cmake/debian/changelog.in ${PROJECT_BINARY_DIR}/changelog @ONLY)
execute_process(COMMAND gzip --best --no-name --force ${PROJECT_BINARY_DIR}/changelog COMMAND_ERROR_IS_FATAL ANY)
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
  string(TOUPPER ${component} name)
  install(FILES cmake/debian/copyright ${PROJECT_BINARY_DIR}/changelog.gz COMPONENT ${component}
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${CPACK_DEBIAN_${name}_PACKAGE_NAME})
endforeach()

include(CPack)
