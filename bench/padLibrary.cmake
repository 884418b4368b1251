# Pads LIBRARY with zero bytes up to the size of PLUGIN; what follows the last section is never mapped.
file(SIZE ${PLUGIN} wanted)
file(SIZE ${LIBRARY} have)
math(EXPR missing "${wanted} - ${have}")
if(missing GREATER 0)
  execute_process(COMMAND truncate -s ${wanted} ${LIBRARY} COMMAND_ERROR_IS_FATAL ANY)
endif()
