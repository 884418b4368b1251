# One function per kind of target, so that flags and places are said once.

# tvx_warnings(TARGET): the warnings our own code is held to.
function(tvx_warnings target)
  if(NOT MSVC)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
    # GCC 12 takes its own <functional>, <regex> and <variant> for uninitialized, as soon as they are inlined deeply.
    target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  endif()
endfunction()

# tvx_shared_headers(TARGET header...): compiles them once for the target where a sanitizer makes compiling slow.
# Elsewhere each source shows that it includes what it uses.
function(tvx_shared_headers target)
  if(TVX_SANITIZE)
    target_precompile_headers(${target} PRIVATE ${ARGN})
  endif()
endfunction()

# tvx_static_library(TARGET source...): a part that is linked into a library or program.
function(tvx_static_library target)
  add_library(${target} STATIC ${ARGN})
  tvx_warnings(${target})
endfunction()

# tvx_shared_library(TARGET source...): a library that is installed.
function(tvx_shared_library target)
  add_library(${target} SHARED ${ARGN})
  tvx_warnings(${target})
  set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN")
endfunction()

# tvx_plugin(TARGET source...): a Maya plug-in: no prefix, hidden symbols, only the entry points leave it.
function(tvx_plugin target)
  add_library(${target} MODULE ${ARGN})
  tvx_warnings(${target})
  set_target_properties(${target} PROPERTIES
    PREFIX ""
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON
    LIBRARY_OUTPUT_DIRECTORY ${TVX_PLUGIN_DIRECTORY}
    INSTALL_RPATH "$ORIGIN:$ORIGIN/../lib")
  if(MSVC)
    target_link_options(${target} PRIVATE /export:initializePlugin /export:uninitializePlugin)
  endif()
  if(WIN32)
    set_target_properties(${target} PROPERTIES SUFFIX ".mll")
  elseif(APPLE)
    set_target_properties(${target} PROPERTIES SUFFIX ".bundle")
  else()
    set_target_properties(${target} PROPERTIES SUFFIX ".so")
  endif()
endfunction()

# tvx_headers_alone(TARGET header...): for each header a source that includes it twice and nothing else, to see that it
# needs no other and guards itself. A header is given as it is included: <...> or "...". That they compile is the
# whole test, to which a sanitizer adds nothing.
function(tvx_headers_alone target)
  foreach(header IN LISTS ARGN)
    string(REGEX MATCH "([A-Za-z0-9_]+)\\.h" found "${header}")
    set(source ${CMAKE_CURRENT_BINARY_DIR}/${target}/${CMAKE_MATCH_1}.cpp)
    file(CONFIGURE OUTPUT ${source} CONTENT "#include ${header}\n#include ${header}\n")
    list(APPEND sources ${source})
  endforeach()
  add_library(${target} OBJECT ${sources})
  tvx_warnings(${target})
  if(TVX_SANITIZE)
    set_property(TARGET ${target} PROPERTY EXCLUDE_FROM_ALL ON)
  endif()
endfunction()

# tvx_test(NAME source... [LIBRARIES lib...] [LONG]): a GoogleTest program whose cases CTest lists one by one, or,
# with TVX_TEST_PER_PROGRAM, as one test; LONG programs, which run for minutes then, begin first. GTest::gtest_main
# is linked; put fixtures' data under tests/ and find it through TVX_SOURCE_DIR.
function(tvx_test name)
  cmake_parse_arguments(arg "LONG" "" "LIBRARIES" ${ARGN})
  add_executable(${name} ${arg_UNPARSED_ARGUMENTS})
  tvx_warnings(${name})
  target_link_libraries(${name} PRIVATE ${arg_LIBRARIES} GTest::gmock GTest::gtest_main)
  target_precompile_headers(${name} REUSE_FROM tvxTestHeaders)
  target_compile_definitions(${name} PRIVATE
    TVX_SOURCE_DIR="${CMAKE_SOURCE_DIR}"
    TVX_BUILD_DIR="${CMAKE_BINARY_DIR}")
  if(TVX_TEST_PER_PROGRAM)
    # Brief, so that of a long program a report shows what failed.
    add_test(NAME ${name} COMMAND ${name} --gtest_brief=1)
    # A program that has lost its cases ends well: only what it prints tells.
    set_tests_properties(${name} PROPERTIES TIMEOUT 1800 FAIL_REGULAR_EXPRESSION "\\] 0 tests from")
    if(arg_LONG)
      set_tests_properties(${name} PROPERTIES COST 100)
    endif()
  else()
    gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 300)
  endif()
endfunction()
