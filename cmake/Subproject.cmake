# Gives a project that includes this one the same properties and functions as find_package.
set_property(GLOBAL PROPERTY ZKSTRINGS_RESOURCES ${PROJECT_SOURCE_DIR}/resources)
set_property(GLOBAL PROPERTY ZKSTRINGS_RESOURCES_PLACE ${resources_above})
include(cmake/ZKStringsResources.cmake)
include(cmake/ZKStringsCatalogue.cmake)
