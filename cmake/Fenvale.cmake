# How this project builds its targets: one function per kind, so that a folder's list file is one line.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_program(FENVALE_CCACHE ccache)
if(FENVALE_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${FENVALE_CCACHE})
endif()

add_library(fenvale_options INTERFACE)
target_include_directories(fenvale_options INTERFACE ${CMAKE_SOURCE_DIR}/src)
target_compile_options(fenvale_options INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Werror)
# GCC 12, when it optimises, takes the joining of std::string for overlapping or endless copies (its bugs 105329, 105651).
target_compile_options(fenvale_options INTERFACE
  $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict;-Wno-stringop-overflow;-Wno-array-bounds>)
target_compile_definitions(fenvale_options INTERFACE FENVALE_VERSION="${PROJECT_VERSION}")
if(FENVALE_SANITIZE)
  target_compile_options(fenvale_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(fenvale_options INTERFACE -fsanitize=address,undefined)
  # What the sanitizers weave in looks to GCC like uses before a value; they find the true ones themselves.
  target_compile_options(fenvale_options INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
endif()

# fenvale_library(<name> [DEPENDS <targets>...])
# A static library of all the .cpp files of the current folder (its sub-folders are rooms of their own).
function(fenvale_library name)
  cmake_parse_arguments(ARG "" "" "DEPENDS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp")
  add_library(${name} STATIC ${sources})
  target_link_libraries(${name} PUBLIC fenvale_options ${ARG_DEPENDS})
endfunction()

# fenvale_tests(<name> [DEPENDS <targets>...] [ENVIRONMENT <name=value>...] [OWN_MAIN])
# One GoogleTest binary of all the .cpp files of the current folder; every test is a ctest entry.
function(fenvale_tests name)
  cmake_parse_arguments(ARG "OWN_MAIN" "" "DEPENDS;ENVIRONMENT" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp")
  add_executable(${name} ${sources})
  target_link_libraries(${name} PRIVATE fenvale_options ${ARG_DEPENDS} GTest::gtest GTest::gmock)
  if(NOT ARG_OWN_MAIN)
    target_link_libraries(${name} PRIVATE GTest::gmock_main)
  endif()
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  target_compile_definitions(${name} PRIVATE FENVALE_SOURCE_DIR="${CMAKE_SOURCE_DIR}" FENVALE_BUILD_DIR="${CMAKE_BINARY_DIR}")
  target_precompile_headers(${name} PRIVATE <gmock/gmock.h> <gtest/gtest.h> <chrono> <map> <memory> <string> <vector>)
  gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 NO_PRETTY_VALUES PROPERTIES ENVIRONMENT "${ARG_ENVIRONMENT};LC_ALL=C.UTF-8" TIMEOUT 300)
endfunction()
