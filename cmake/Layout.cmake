# The build tree has the same layout as an installation, with bin/, lib/ and share/ZKStrings, so the module finds its
# resources in both by the same relative path.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)  # a copy of bin/ and lib/ uses its own library

# resources_above is relative to a directory at or above that of the module's file. resources_installed, the configured
# path, is relative to the library's directory.
if(IS_ABSOLUTE "${CMAKE_INSTALL_DATADIR}")
  set(resources_above share/ZKStrings)
  set(resources_installed ${CMAKE_INSTALL_DATADIR}/ZKStrings)
else()
  set(resources_above ${CMAKE_INSTALL_DATADIR}/ZKStrings)
  set(library_directory ${CMAKE_INSTALL_FULL_LIBDIR})
  if(WIN32)
    set(library_directory ${CMAKE_INSTALL_FULL_BINDIR})
  endif()
  file(RELATIVE_PATH resources_installed ${library_directory} ${CMAKE_INSTALL_FULL_DATADIR}/ZKStrings)
endif()

cmake_path(GET resources_above PARENT_PATH above)
file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/${above} ${PROJECT_BINARY_DIR}/include)
file(CREATE_LINK ${PROJECT_SOURCE_DIR}/resources ${PROJECT_BINARY_DIR}/${resources_above} SYMBOLIC)

# All headers are included as <ZKStrings/...>, both in the tree and by users.
file(CREATE_LINK ${PROJECT_SOURCE_DIR} ${PROJECT_BINARY_DIR}/include/ZKStrings SYMBOLIC)
