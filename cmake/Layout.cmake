# The build tree has the shape of an installation, so that the module finds its resources in both by the same
# relative path: bin/ and lib/ beside share/ZKStrings.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)

file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/share ${PROJECT_BINARY_DIR}/include)
file(CREATE_LINK ${PROJECT_SOURCE_DIR}/resources ${PROJECT_BINARY_DIR}/share/ZKStrings SYMBOLIC)

# All headers are included as <ZKStrings/...>, in the tree as by users.
file(CREATE_LINK ${PROJECT_SOURCE_DIR} ${PROJECT_BINARY_DIR}/include/ZKStrings SYMBOLIC)
