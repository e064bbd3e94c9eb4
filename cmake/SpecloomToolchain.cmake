# Language level, optimisation, sanitizers and the tools that make builds fast.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "Kind of build" FORCE)
endif()

# An installed program must find the libraries that live in a prefix of their own. A built one gets the same path:
# else CMake pads the path to edit it later, and the padding ends it with an empty entry, which is the working
# directory.
set(CMAKE_INSTALL_RPATH_USE_LINK_PATH ON)
set(CMAKE_BUILD_WITH_INSTALL_RPATH ON)

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE_PROGRAM}")
endif()

# mold pays with debug information; g++ 12 and clang 14 both know the flag.
find_program(MOLD_PROGRAM mold)
if(MOLD_PROGRAM)
  add_link_options(-fuse-ld=mold)
endif()

# Hardening; tests/hardening holds the built program to it. The static libraries are for programs alone, so they get
# -fPIE: -fPIC, which CMake would give them, makes every function replaceable and so keeps it from being inlined.
add_compile_options(-fPIE -fstack-protector-strong)
string(APPEND CMAKE_EXE_LINKER_FLAGS " -pie")
add_link_options(-Wl,-z,relro -Wl,-z,now)
if(NOT SPECLOOM_SANITIZERS) # they look closer, and need to see the plain calls
  add_compile_options("$<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
endif()

if(SPECLOOM_SANITIZERS)
  add_compile_options(-fsanitize=${SPECLOOM_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${SPECLOOM_SANITIZERS})
endif()
if(SPECLOOM_FUZZERS)
  # Coverage for every library; only the fuzz targets themselves link libFuzzer's main.
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()

# Messages and debug information name files by their place in the project, wherever it was built.
add_compile_options("-ffile-prefix-map=${PROJECT_SOURCE_DIR}/=")
