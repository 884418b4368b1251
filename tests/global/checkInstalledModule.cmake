# Installs the module and compares it with what is expected of it.
#   BUILD_DIR  the build    SOURCE_DIR  the sources    WORK_DIR  a folder to install into, emptied first
file(REMOVE_RECURSE ${WORK_DIR})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --component module --prefix ${WORK_DIR}
                COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)

file(GLOB_RECURSE installed RELATIVE ${WORK_DIR} ${WORK_DIR}/*)
file(STRINGS ${SOURCE_DIR}/tests/global/installed.txt expected)
list(SORT installed)
list(SORT expected)
if(NOT installed STREQUAL expected)
  message(FATAL_ERROR "installed: ${installed}\nexpected:  ${expected}")
endif()

file(READ ${WORK_DIR}/tvxCrowdRender.mod description)
set(expectedDescription
  "+ MAYAVERSION:2016 PLATFORM:linux tvxCrowdRender 2.5.0.1 ./tvxCrowdRender\nPATH +:= lib\n")
if(NOT description STREQUAL expectedDescription)
  message(FATAL_ERROR "the module's description is:\n${description}")
endif()

# The plug-in finds the core library beside it, wherever the module is put.
execute_process(COMMAND readelf -d ${WORK_DIR}/tvxCrowdRender/plug-ins/tvxCrowdRender.so
                OUTPUT_VARIABLE dynamic COMMAND_ERROR_IS_FATAL ANY)
if(NOT dynamic MATCHES "R(UN)?PATH[^\n]*\\[\\$ORIGIN:\\$ORIGIN/../lib\\]")
  message(FATAL_ERROR "the installed plug-in looks for libraries elsewhere:\n${dynamic}")
endif()
