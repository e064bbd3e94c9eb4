# The parts of opentelemetry-cpp that write spans to a stream. The configuration in its Debian package asks
# for gRPC, Protobuf and their compilers, which those parts do not need.
include(CMakeFindDependencyMacro)
find_dependency(Threads)
find_dependency(absl)

if(NOT TARGET opentelemetry-cpp::api)
  get_filename_component(_otel_prefix "${CMAKE_CURRENT_LIST_DIR}/../../.." ABSOLUTE)

  # The definitions and the absl libraries are those that the package was built with.
  add_library(opentelemetry-cpp::api INTERFACE IMPORTED)
  set_target_properties(opentelemetry-cpp::api PROPERTIES
    INTERFACE_INCLUDE_DIRECTORIES "${_otel_prefix}/include"
    INTERFACE_COMPILE_DEFINITIONS "HAVE_ABSEIL;OPENTELEMETRY_ABI_VERSION_NO=1"
    INTERFACE_LINK_LIBRARIES
      "absl::bad_variant_access;absl::any;absl::base;absl::bits;absl::city;absl::strings")
  add_library(opentelemetry-cpp::sdk INTERFACE IMPORTED)
  set_target_properties(opentelemetry-cpp::sdk PROPERTIES INTERFACE_LINK_LIBRARIES opentelemetry-cpp::api)

  macro(_otel_library target file)
    add_library(opentelemetry-cpp::${target} SHARED IMPORTED)
    set_target_properties(opentelemetry-cpp::${target} PROPERTIES
      IMPORTED_LOCATION "${_otel_prefix}/lib/libopentelemetry_${file}.so"
      IMPORTED_SONAME "libopentelemetry_${file}.so"
      INTERFACE_LINK_LIBRARIES "${ARGN}")
  endmacro()
  _otel_library(common common opentelemetry-cpp::api opentelemetry-cpp::sdk Threads::Threads)
  _otel_library(resources resources opentelemetry-cpp::common)
  _otel_library(trace trace opentelemetry-cpp::common opentelemetry-cpp::resources)
  _otel_library(version version opentelemetry-cpp::api)
  _otel_library(ostream_span_exporter exporter_ostream_span opentelemetry-cpp::trace)
  unset(_otel_prefix)
endif()

foreach(_otel_component IN ITEMS api sdk exporters_ostream)
  set(opentelemetry-cpp_${_otel_component}_FOUND TRUE)
endforeach()
foreach(_otel_component IN LISTS opentelemetry-cpp_FIND_COMPONENTS)
  if(opentelemetry-cpp_FIND_REQUIRED_${_otel_component} AND NOT opentelemetry-cpp_${_otel_component}_FOUND)
    set(opentelemetry-cpp_FOUND FALSE)
    set(opentelemetry-cpp_NOT_FOUND_MESSAGE "the component ${_otel_component} is not here")
  endif()
endforeach()
