# Builds the plug-in for a devkit (the host's own headers and libraries, laid out as in one) and compares it with the
# plug-in that was built beside the host: needed libraries, imported and exported symbols.
#   BUILD_DIR  the build    SOURCE_DIR  the sources    WORK_DIR  a folder to work in, emptied first
#   PLUGIN     the plug-in built beside the host
#   BUILD_TYPE, CXX_FLAGS, SCALABLE_MALLOC  how that one was built
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE ${WORK_DIR})
set(devkit ${WORK_DIR}/devkit)
set(build ${WORK_DIR}/build)

function(run)
  execute_process(COMMAND ${ARGV} RESULT_VARIABLE code OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(code)
    list(JOIN ARGV " " command)
    message(FATAL_ERROR "${command}\n${output}")
  endif()
endfunction()

run(${CMAKE_COMMAND} --install ${BUILD_DIR} --component devkit --prefix ${devkit})
string(TOUPPER ${BUILD_TYPE} config)
run(${CMAKE_COMMAND} -S ${SOURCE_DIR} -B ${build} -G Ninja -DDEVKIT_LOCATION=${devkit}
    -DCMAKE_BUILD_TYPE=${BUILD_TYPE} -DCMAKE_CXX_FLAGS_${config}=${CXX_FLAGS}
    -DTVX_SCALABLE_MALLOC=${SCALABLE_MALLOC})
run(${CMAKE_COMMAND} --build ${build})

# facts(OUT library): what the dynamic linker sees of a library, sorted, one fact an item.
function(facts out library)
  execute_process(COMMAND readelf -d ${library} OUTPUT_VARIABLE dynamic COMMAND_ERROR_IS_FATAL ANY)
  execute_process(COMMAND nm -D --without-symbol-versions ${library} OUTPUT_VARIABLE symbols
                  COMMAND_ERROR_IS_FATAL ANY)
  # Without brackets, which a list does not split at its semicolons.
  string(REGEX REPLACE "[][]" "" dynamic "${dynamic}")
  string(REGEX MATCHALL "NEEDED[^\n]*: [^\n]+" needed "${dynamic}")
  list(TRANSFORM needed REPLACE ".*: " "needs ")
  string(REGEX MATCHALL "[A-Zv-w] [^\n]+" symbols "${symbols}")
  set(all ${needed} ${symbols})
  list(SORT all)
  set(${out} ${all} PARENT_SCOPE)
endfunction()

facts(expected ${PLUGIN})
facts(found ${build}/plug-ins/tvxCrowdRender.so)
list(LENGTH found count)
if(count LESS 20)
  message(FATAL_ERROR "only ${count} facts were found: the comparison means nothing")
endif()
if(NOT expected STREQUAL found)
  set(onlyHost ${expected})
  list(REMOVE_ITEM onlyHost ${found})
  set(onlyDevkit ${found})
  list(REMOVE_ITEM onlyDevkit ${expected})
  message(FATAL_ERROR "the two plug-ins differ\nonly beside the host: ${onlyHost}\nonly with the devkit: ${onlyDevkit}")
endif()
foreach(library IN ITEMS Foundation OpenMaya OpenMayaUI OpenMayaFX OpenMayaAnim)
  if(NOT "needs lib${library}.so" IN_LIST found)
    message(FATAL_ERROR "the plug-in does not need lib${library}.so: ${found}")
  endif()
endforeach()

# Nothing of the host but the devkit took part.
file(READ ${build}/compile_commands.json commands)
if(commands MATCHES "${SOURCE_DIR}/host")
  message(FATAL_ERROR "the build for a devkit refers to ${SOURCE_DIR}/host")
endif()

# What is no devkit is refused, and said to be none; so is none at all where one is needed.
file(MAKE_DIRECTORY ${WORK_DIR}/empty)
foreach(setting IN ITEMS MAYA_LOCATION=${WORK_DIR}/empty TVX_BUILD_HOST=OFF)
  file(REMOVE_RECURSE ${WORK_DIR}/refused)
  execute_process(COMMAND ${CMAKE_COMMAND} -S ${SOURCE_DIR} -B ${WORK_DIR}/refused -G Ninja -D${setting}
                  RESULT_VARIABLE result ERROR_VARIABLE error OUTPUT_QUIET)
  if(result EQUAL 0 OR NOT error MATCHES "Set MAYA_LOCATION to a Maya installation")
    message(FATAL_ERROR "${setting} gives: ${result}\n${error}")
  endif()
endforeach()
