# What find_package gives an app, for one that builds the module as a part of itself.
set_property(GLOBAL PROPERTY ZKSTRINGS_RESOURCES ${PROJECT_SOURCE_DIR}/resources)
set_property(GLOBAL PROPERTY ZKSTRINGS_RESOURCES_PLACE ${resources_above})
include(cmake/ZKStringsResources.cmake)
include(cmake/ZKStringsCatalogue.cmake)
