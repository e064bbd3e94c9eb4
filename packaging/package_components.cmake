# Read by cpack for each kind of package: which components go into it.

cmake_minimum_required(VERSION 3.25)
list(GET CPACK_INSTALL_CMAKE_PROJECTS 0 build)
set(components Unspecified)
if(CPACK_GENERATOR STREQUAL DEB)
  find_program(SHLIBDEPS_PROGRAM dpkg-shlibdeps)
  if(NOT SHLIBDEPS_PROGRAM) # cpack would make a package without dependencies
    message(FATAL_ERROR "dpkg-shlibdeps is needed to make a Debian package (it is in dpkg-dev)")
  endif()
  list(APPEND components debian)
else()
  list(APPEND components site_functions system_libraries)
endif()
set(CPACK_INSTALL_CMAKE_PROJECTS "")
foreach(component IN LISTS components)
  list(APPEND CPACK_INSTALL_CMAKE_PROJECTS "${build}" specloom "${component}" /)
endforeach()
