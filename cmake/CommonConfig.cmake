# Every target of the project takes its flags from corvane_flags and from nowhere else.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE RelWithDebInfo)
endif()

find_program(CCACHE ccache)
if(CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

option(CORVANE_SANITIZE "Build with the address and undefined behaviour sanitizers" OFF)
option(CORVANE_COVERAGE "Build with coverage counters" OFF)
option(CORVANE_FUZZ "Build the fuzz targets (Clang only)" OFF)

add_library(corvane_flags INTERFACE)
target_include_directories(corvane_flags INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(corvane_flags INTERFACE
  -Wall -Wextra -Wpedantic -Werror -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-qual -Wformat=2
  # With full optimisation GCC 12 takes every `"text" + std::string` for an overlapping copy.
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
target_compile_definitions(corvane_flags INTERFACE
  $<$<NOT:$<CONFIG:Release>>:_GLIBCXX_ASSERTIONS>
  CORVANE_VERSION_MAJOR=${PROJECT_VERSION_MAJOR}
  CORVANE_VERSION_MINOR=${PROJECT_VERSION_MINOR}
  CORVANE_VERSION_REVISION=${PROJECT_VERSION_PATCH})
if(CORVANE_SANITIZE)
  target_compile_options(corvane_flags INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  # With the sanitizers in, GCC 12 takes its own library's regular expressions for uninitialised.
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(corvane_flags INTERFACE -Wno-maybe-uninitialized)
  endif()
  target_link_options(corvane_flags INTERFACE -fsanitize=address,undefined)
endif()
if(CORVANE_COVERAGE)
  target_compile_options(corvane_flags INTERFACE --coverage)
  target_link_options(corvane_flags INTERFACE --coverage)
endif()
if(CORVANE_FUZZ)
  target_compile_options(corvane_flags INTERFACE -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all)
  target_link_options(corvane_flags INTERFACE -fsanitize=address,undefined)
endif()
