# One module = one folder = one static library = one namespace.
#
#   specloom_module(jv
#     SOURCES src/jv.cpp ...
#     HOT                             on the way from a text to the tree, where time counts: without the assertions
#                                     of the standard library, and inlined as far as in sources on their own
#     WARM                            near it: without those assertions too, but not optimised as far, which compiles a fifth
#                                     sooner
#     ONCE                            at work once in a run: optimised less, which compiles sooner
#     USES number foundation          modules whose headers this one may include
#     LIBRARIES PkgConfig::yaml       third-party libraries of its sources
#     PUBLIC_LIBRARIES fmt::fmt)      third-party libraries whose headers its headers include
#
#   specloom_tests(jv
#     SOURCES tests/jv_test.cpp ...
#     USES jv ...
#     LIBRARIES ...
#     LONG)                           some of them take long: they start before others, or the last would be waited for
#
# A header is included as "module/header.h". Each module has an include root of its own that holds
# nothing but itself, so a header of a module that is not named under USES (or by a module named
# there) cannot be found.

set(SPECLOOM_WARNINGS -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # g++ 12 sees overlapping copies in plain string concatenation (GCC bug 105651).
  list(APPEND SPECLOOM_WARNINGS -Wno-restrict)
endif()
if(SPECLOOM_WERROR)
  list(APPEND SPECLOOM_WARNINGS -Werror)
endif()

function(specloom_include_root name folder result)
  set(root "${CMAKE_BINARY_DIR}/include_roots/${name}")
  file(MAKE_DIRECTORY "${root}")
  file(CREATE_LINK "${folder}" "${root}/${name}" SYMBOLIC)
  set(${result} "${root}" PARENT_SCOPE)
endfunction()

# Several sources of a target are compiled as one, since most of their time goes into the headers that they share.
# So the unnamed namespaces of a target's sources are one; a source that cannot live with that says
# SKIP_UNITY_BUILD_INCLUSION. Which sources stand together changes with every new file: what holds for all of them
# (SPECLOOM_UNITY_BATCH=0) and for each alone (SPECLOOM_UNITY=OFF) always holds.
function(specloom_unity target)
  set_target_properties(${target} PROPERTIES UNITY_BUILD ${SPECLOOM_UNITY} UNITY_BUILD_BATCH_SIZE ${SPECLOOM_UNITY_BATCH})
endfunction()

function(specloom_module name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "HOT;WARM;ONCE" "" "SOURCES;USES;LIBRARIES;PUBLIC_LIBRARIES")
  set(target specloom_${name})
  add_library(${target} STATIC ${arg_SOURCES})
  add_library(specloom::${name} ALIAS ${target})
  specloom_include_root(${name} "${CMAKE_CURRENT_SOURCE_DIR}/src" root)
  target_include_directories(${target} PUBLIC "${root}")
  list(TRANSFORM arg_USES PREPEND specloom::)
  target_link_libraries(${target} PUBLIC ${arg_USES} ${arg_PUBLIC_LIBRARIES} PRIVATE ${arg_LIBRARIES})
  target_compile_options(${target} PRIVATE ${SPECLOOM_WARNINGS})
  if(arg_HOT OR arg_WARM)
    # g++ inlines until a source has grown too much, beyond a size that is free and meant for one source.
    target_compile_options(${target} PRIVATE
      $<$<AND:$<BOOL:${SPECLOOM_UNITY}>,$<CXX_COMPILER_ID:GNU>>:--param=large-unit-insns=160000>)
  endif()
  if(NOT arg_HOT)
    # Not CMake's -O3: it takes a fifth longer to compile and makes nothing but the hot modules faster.
    target_compile_options(${target} PRIVATE $<$<CONFIG:Release>:$<IF:$<BOOL:${arg_ONCE}>,-O1,-O2>>)
  endif()
  if(NOT arg_HOT AND NOT arg_WARM)
    target_compile_definitions(${target} PRIVATE $<$<BOOL:${SPECLOOM_LIBRARY_ASSERTIONS}>:_GLIBCXX_ASSERTIONS>)
  endif()
  specloom_unity(${target})
endfunction()

function(specloom_tests name)
  if(NOT SPECLOOM_TESTS)
    return()
  endif()
  include(GoogleTest)
  cmake_parse_arguments(PARSE_ARGV 1 arg "LONG" "" "SOURCES;USES;LIBRARIES")
  set(target ${name}_tests)
  add_executable(${target} ${arg_SOURCES})
  list(TRANSFORM arg_USES PREPEND specloom::)
  target_link_libraries(${target} PRIVATE ${arg_USES} ${arg_LIBRARIES} GTest::gmock GTest::gtest_main)
  # Optimising test code costs a third of its compile time and makes no test faster: the time goes into the
  # libraries, which are optimised.
  target_compile_options(${target} PRIVATE ${SPECLOOM_WARNINGS} $<$<CONFIG:Release>:-O1>)
  specloom_unity(${target})
  target_compile_definitions(${target} PRIVATE
    SPECLOOM_SOURCE_DIR="${PROJECT_SOURCE_DIR}"
    SPECLOOM_TEST_DIR="${CMAKE_CURRENT_SOURCE_DIR}")
  set(cost)
  if(arg_LONG)
    set(cost COST 100)
  endif()
  gtest_discover_tests(${target} TEST_PREFIX "${name}." DISCOVERY_MODE PRE_TEST
    PROPERTIES TIMEOUT 600 ${cost})
endfunction()
