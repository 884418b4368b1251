# The example scene in the repository is exactly what its script writes.
cmake_minimum_required(VERSION 3.25)
execute_process(COMMAND ${PYTHON} ${EXAMPLES}/make_crowd_shot.py ${OUTPUT} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${OUTPUT} ${EXAMPLES}/crowd_shot.ma
                RESULT_VARIABLE differs)
if(differs)
  message(FATAL_ERROR "examples/crowd_shot.ma is not what examples/make_crowd_shot.py writes")
endif()
