# Builds the plug-in for a devkit: the host's own headers and libraries, laid out as in one.
#   BUILD_DIR  the build    SOURCE_DIR  the sources    WORK_DIR  a folder to work in, emptied first
file(REMOVE_RECURSE ${WORK_DIR})
set(devkit ${WORK_DIR}/devkit)
set(build ${WORK_DIR}/build)
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --component devkit --prefix ${devkit}
                COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
execute_process(COMMAND ${CMAKE_COMMAND} -S ${SOURCE_DIR} -B ${build} -G Ninja -DCMAKE_BUILD_TYPE=Debug
                        -DDEVKIT_LOCATION=${devkit}
                COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
execute_process(COMMAND ${CMAKE_COMMAND} --build ${build} COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)

set(plugin ${build}/plug-ins/tvxCrowdRender.so)
execute_process(COMMAND readelf -d ${plugin} OUTPUT_VARIABLE dynamic COMMAND_ERROR_IS_FATAL ANY)
foreach(library IN ITEMS Foundation OpenMaya OpenMayaUI OpenMayaFX OpenMayaAnim)
  if(NOT dynamic MATCHES "NEEDED[^\n]*lib${library}\\.so")
    message(FATAL_ERROR "the plug-in built for a devkit does not need lib${library}.so:\n${dynamic}")
  endif()
endforeach()

# Nothing of the host but the devkit took part.
file(READ ${build}/compile_commands.json commands)
if(commands MATCHES "${SOURCE_DIR}/host")
  message(FATAL_ERROR "the build for a devkit refers to ${SOURCE_DIR}/host")
endif()

# What is no devkit is refused, and said to be none.
file(MAKE_DIRECTORY ${WORK_DIR}/empty)
execute_process(COMMAND ${CMAKE_COMMAND} -S ${SOURCE_DIR} -B ${WORK_DIR}/refused -G Ninja
                        -DMAYA_LOCATION=${WORK_DIR}/empty
                RESULT_VARIABLE result ERROR_VARIABLE error OUTPUT_QUIET)
if(result EQUAL 0 OR NOT error MATCHES "Set MAYA_LOCATION to a Maya installation")
  message(FATAL_ERROR "a folder without Maya gives: ${result}\n${error}")
endif()
