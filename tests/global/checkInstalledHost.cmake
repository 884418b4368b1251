# Installs all there is and has the installed host load the installed plug-in.
#   BUILD_DIR  the build    WORK_DIR  a folder to install into, emptied first
file(REMOVE_RECURSE ${WORK_DIR})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${WORK_DIR}
                COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)

# What is installed is found beside the program, not where it was built.
execute_process(COMMAND readelf -d ${WORK_DIR}/bin/tvxhost OUTPUT_VARIABLE dynamic COMMAND_ERROR_IS_FATAL ANY)
if(NOT dynamic MATCHES "R(UN)?PATH[^\n]*\\[\\$ORIGIN/../lib\\]")
  message(FATAL_ERROR "the installed program looks for libraries elsewhere:\n${dynamic}")
endif()

set(module ${WORK_DIR}/tvxCrowdRender)
set(ENV{MAYA_SCRIPT_PATH} ${module}/scripts)
execute_process(COMMAND ${WORK_DIR}/bin/tvxhost --prefs ${WORK_DIR}/prefs
                        --plugin ${module}/plug-ins/tvxCrowdRender.so -e "createNode CrowdHSLShaderVRay"
                OUTPUT_VARIABLE output ERROR_VARIABLE error RESULT_VARIABLE result)
set(expected "plugin loaded.\ntvxCrowdRender: loaded without user interface\nCrowdHSLShaderVRay1\n")
if(NOT result EQUAL 0 OR NOT error STREQUAL "" OR NOT output MATCHES "${expected}$")
  message(FATAL_ERROR "the installed host gives ${result}\n${output}${error}")
endif()
