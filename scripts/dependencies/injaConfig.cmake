# inja is one folder of headers; its Debian package brings no configuration for CMake.
include(CMakeFindDependencyMacro)
find_dependency(nlohmann_json)

if(NOT TARGET pantor::inja)
  get_filename_component(_inja_prefix "${CMAKE_CURRENT_LIST_DIR}/../../.." ABSOLUTE)
  add_library(pantor::inja INTERFACE IMPORTED)
  set_target_properties(pantor::inja PROPERTIES
    INTERFACE_INCLUDE_DIRECTORIES "${_inja_prefix}/include"
    INTERFACE_LINK_LIBRARIES nlohmann_json::nlohmann_json)
  unset(_inja_prefix)
endif()
