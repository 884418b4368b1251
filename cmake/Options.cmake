# Every option of the build, each with its reason.

option(TVX_BUILD_HOST "Build the stand-in host and the plug-in for it, not for a Maya" ON)
option(TVX_BUILD_TESTS "Build the tests (they need the stand-in host)" ON)
option(TVX_BUILD_BENCH "Build the benchmarks (they need optimised code to mean anything)" OFF)
option(TVX_SCALABLE_MALLOC
       "Link TBB's allocator proxy; off where another tool must own malloc (sanitizers)" ON)
option(TVX_COVERAGE "Instrument for gcov" OFF)
option(TVX_TEST_PER_PROGRAM
       "Run each test program whole; a process per case costs minutes where the code is instrumented" OFF)
set(TVX_SANITIZE "" CACHE STRING
    "Sanitizers to build everything with, as -fsanitize= takes them: address,undefined or thread")
set(MAYA_LOCATION "" CACHE PATH "A Maya installation to build the plug-in for")
set(DEVKIT_LOCATION "" CACHE PATH "A Maya devkit to build the plug-in for")

if(MAYA_LOCATION OR DEVKIT_LOCATION)
  set(TVX_BUILD_HOST OFF)
endif()
if(NOT TVX_BUILD_HOST)
  set(TVX_BUILD_TESTS OFF)
  set(TVX_BUILD_BENCH OFF)
elseif(NOT CMAKE_SYSTEM_NAME STREQUAL "Linux")
  message(FATAL_ERROR "The stand-in host is for Linux: set MAYA_LOCATION or DEVKIT_LOCATION to build for a Maya.")
endif()

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE RelWithDebInfo)
endif()

# libGL.so.1, which is there also where the libraries of vendor-neutral dispatch are not.
set(OpenGL_GL_PREFERENCE LEGACY)

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(TVX_PLUGIN_DIRECTORY ${CMAKE_BINARY_DIR}/plug-ins)

if(WIN32)
  # Some of Maya's headers include windows.h there, whose macros min and max stand in the way of std::min.
  add_compile_definitions(NOMINMAX)
endif()
if(MSVC)
  add_compile_options(/W4 /WX /permissive- /utf-8)
else()
  # Reports name a source file by its path in the repository, on every machine the same.
  add_compile_options(-ffile-prefix-map=${CMAKE_SOURCE_DIR}/= -fmacro-prefix-map=${CMAKE_SOURCE_DIR}/=)
endif()

if(TVX_SANITIZE)
  add_compile_options(-fsanitize=${TVX_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${TVX_SANITIZE})
endif()
if(TVX_COVERAGE)
  add_compile_options(--coverage -O0)
  add_link_options(--coverage)
endif()
