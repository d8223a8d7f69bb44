# The module: its object files, and the library made of them. Tests link the object files, because the shared library
# hides most functions.
if("${CMAKE_EXE_LINKER_FLAGS}" MATCHES "-static( |$)")
  set(CMAKE_FIND_LIBRARY_SUFFIXES .a)  # CMake finds the shared library first
endif()
find_package(ICU REQUIRED COMPONENTS uc data)
find_package(nlohmann_json 3.11 REQUIRED)

set(public_headers
  ZKStrings.h
  catalogue/ZKStrings.h
  engine/BundleGlobals.h
  engine/Languages.h
  engine/StringLookup.h
  engine/Substitutions.h
  engine/Text.h
  platform/Bundle.h
  platform/CacheLines.h
  platform/Dictionary.h
  platform/Export.h
  platform/Locale.h
  platform/Resolver.h
  platform/SharedArray.h
  platform/ZKCommon.h
  region/Country.h
  region/CountryList.h
  region/CurrentLanguage.h
  region/Language.h)

# The part of the platform that has a version for each system.
if(WIN32)
  set(system_sources CodeLocation.cpp File.cpp Text.cpp UserSettings.cpp)
  list(TRANSFORM system_sources PREPEND platform/system/windows/)
else()
  set(system_sources CodeLocation.cpp File.cpp UserSettings.cpp)
  list(TRANSFORM system_sources PREPEND platform/system/posix/)
endif()

add_library(zk_objects OBJECT
  catalogue/ZKStrings.cpp
  engine/BundleGlobals.cpp
  engine/Languages.cpp
  engine/StringLookup.cpp
  engine/Substitutions.cpp
  platform/Bundle.cpp
  platform/Export.cpp
  ${system_sources}
  platform/system/ResourceDirectory.cpp
  platform/formats/Json.cpp
  platform/Locale.cpp
  platform/Resolver.cpp
  platform/formats/StringTable.cpp
  platform/formats/StringTableReader.cpp
  platform/formats/TextEncoding.cpp
  platform/text/TextSearch.cpp
  platform/text/UnicodeText.cpp
  platform/ZKCommon.cpp
  region/Country.cpp
  region/CountryList.cpp
  region/CurrentLanguage.cpp
  region/Language.cpp)
target_include_directories(zk_objects PUBLIC ${PROJECT_BINARY_DIR}/include)
target_link_libraries(zk_objects PRIVATE zk_compile_options ICU::uc nlohmann_json::nlohmann_json)
set_source_files_properties(platform/Bundle.cpp PROPERTIES COMPILE_DEFINITIONS
  "ZK_RESOURCES_ABOVE=\"${resources_above}\";ZK_RESOURCES_INSTALLED=\"${resources_installed}\"")
# Accessors write to no buffers, so guarding their stacks would only make each a third longer.
set_source_files_properties(catalogue/ZKStrings.cpp PROPERTIES COMPILE_OPTIONS -fno-stack-protector)
# Programs do not replace the module's functions, so they may be called directly and inlined.
target_compile_options(zk_objects PRIVATE -fno-semantic-interposition)

add_library(ZKStrings)
add_library(ZKStrings::ZKStrings ALIAS ZKStrings)
target_sources(ZKStrings PRIVATE $<TARGET_OBJECTS:zk_objects>)
foreach(header IN LISTS public_headers)
  list(APPEND public_header_files ${PROJECT_BINARY_DIR}/include/ZKStrings/${header})
endforeach()
target_sources(ZKStrings PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_BINARY_DIR}/include FILES ${public_header_files})
target_compile_features(ZKStrings PUBLIC cxx_std_20)
target_link_libraries(ZKStrings PRIVATE $<BUILD_INTERFACE:zk_compile_options> ICU::uc)
if(NOT BUILD_SHARED_LIBS)
  target_link_libraries(ZKStrings PRIVATE ICU::data)  # needed by programs without shared libraries
endif()
set_target_properties(ZKStrings PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR} LINKER_LANGUAGE CXX)
# A program that builds the module as a part of it gets no warnings for the module's headers.
set_target_properties(ZKStrings PROPERTIES SYSTEM ON)
if(BUILD_SHARED_LIBS AND WIN32)
  set_target_properties(ZKStrings PROPERTIES PREFIX "")
  target_compile_definitions(ZKStrings INTERFACE ZK_IMPORTS)
elseif(BUILD_SHARED_LIBS)
  # Hidden visibility does not apply to the instances of the standard library's templates.
  target_link_options(ZKStrings PRIVATE -Wl,--version-script=${PROJECT_SOURCE_DIR}/cmake/ExportedNames.map -Wl,--no-undefined
    -Wl,-Bsymbolic-functions)
  # The library frees each thread's memory when the thread ends, so it must stay loaded.
  target_link_options(ZKStrings PRIVATE -Wl,-z,nodelete)
  set_target_properties(ZKStrings PROPERTIES LINK_DEPENDS ${PROJECT_SOURCE_DIR}/cmake/ExportedNames.map)
endif()

# A lookup calls functions in several files, and inlining them makes it a sixth faster. A static library is not
# optimised in this way, because its users may have another compiler.
include(CheckIPOSupported)
check_ipo_supported(RESULT can_inline_across_files OUTPUT reason)
if(BUILD_SHARED_LIBS AND can_inline_across_files AND NOT ZK_SANITIZE)
  set_target_properties(zk_objects ZKStrings PROPERTIES INTERPROCEDURAL_OPTIMIZATION_RELEASE ON)
  # GCC compiles several partitions with make, and warns where make is not installed.
  target_link_options(zk_compile_options INTERFACE $<$<CXX_COMPILER_ID:GNU>:-flto-partition=one>)
endif()

# The module for tools and tests, which use its hidden functions.
add_library(zk_module_for_development INTERFACE)
target_sources(zk_module_for_development INTERFACE $<TARGET_OBJECTS:zk_objects>)
target_include_directories(zk_module_for_development INTERFACE ${PROJECT_BINARY_DIR}/include)
target_link_libraries(zk_module_for_development INTERFACE ICU::uc)
get_target_property(inlines_across_files zk_objects INTERPROCEDURAL_OPTIMIZATION_RELEASE)
if(inlines_across_files)
  target_link_options(zk_module_for_development INTERFACE "$<$<CONFIG:Release>:${CMAKE_CXX_COMPILE_OPTIONS_IPO}>")
endif()
