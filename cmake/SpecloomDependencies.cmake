# Where third-party libraries come from. A system that has them is used as it is; the prefix that
# scripts/install-dependencies fills is looked at too, without having to be named.

if(DEFINED ENV{SPECLOOM_DEPS_PREFIX})
  list(APPEND CMAKE_PREFIX_PATH "$ENV{SPECLOOM_DEPS_PREFIX}")
elseif(DEFINED ENV{XDG_CACHE_HOME})
  list(APPEND CMAKE_PREFIX_PATH "$ENV{XDG_CACHE_HOME}/specloom-deps/prefix")
else()
  list(APPEND CMAKE_PREFIX_PATH "$ENV{HOME}/.cache/specloom-deps/prefix")
endif()

find_package(PkgConfig REQUIRED)
find_package(fmt 10.1 CONFIG REQUIRED)
find_package(argparse 3.2 CONFIG REQUIRED)
find_package(nlohmann_json 3.11.3 CONFIG REQUIRED)
find_package(inja 3.5 CONFIG REQUIRED)
find_package(opentelemetry-cpp 1.13 CONFIG REQUIRED COMPONENTS api sdk exporters_ostream)
find_package(utf8cpp CONFIG REQUIRED)
pkg_check_modules(yaml REQUIRED IMPORTED_TARGET yaml-0.1)

if(SPECLOOM_TESTS)
  find_package(GTest REQUIRED)
  find_package(EXPAT REQUIRED)
  pkg_check_modules(mpfr REQUIRED IMPORTED_TARGET mpfr)
  pkg_check_modules(yamlcpp REQUIRED IMPORTED_TARGET yaml-cpp)
endif()
if(SPECLOOM_BENCHMARKS)
  find_path(RAPIDJSON_INCLUDE_DIR rapidjson/document.h REQUIRED)
endif()
