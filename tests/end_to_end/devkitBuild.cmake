# Installs the host's headers and libraries as a devkit, builds the plug-in alone against it, and compares the
# result with the plug-in that was built beside the host: needed libraries, imported and exported symbols.
cmake_minimum_required(VERSION 3.25)

set(work ${BUILD_DIR}/devkit-test)
set(devkit ${work}/devkit)
file(REMOVE_RECURSE ${work})

function(run)
  execute_process(COMMAND ${ARGV} RESULT_VARIABLE code OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(code)
    list(JOIN ARGV " " command)
    message(FATAL_ERROR "${command}\n${output}")
  endif()
endfunction()

# facts(OUT library): what the dynamic linker sees of a library, sorted, one fact a line.
function(facts out library)
  execute_process(COMMAND readelf -d ${library} OUTPUT_VARIABLE dynamic COMMAND_ERROR_IS_FATAL ANY)
  execute_process(COMMAND nm -D --without-symbol-versions ${library} OUTPUT_VARIABLE symbols
                  COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX MATCHALL "NEEDED[^\n]*\\[[^]]*" needed "${dynamic}")
  list(TRANSFORM needed REPLACE ".*\\[" "needs ")
  string(REGEX MATCHALL "[A-Zv-w] [^\n]+" symbols "${symbols}")
  set(all ${needed} ${symbols})
  list(SORT all)
  set(${out} ${all} PARENT_SCOPE)
endfunction()

run(${CMAKE_COMMAND} --install ${BUILD_DIR} --component devkit --prefix ${devkit})
string(TOUPPER ${BUILD_TYPE} config)
run(${CMAKE_COMMAND} -S ${SOURCE_DIR} -B ${work}/build -G ${GENERATOR} -D MAYA_LOCATION=${devkit}
    -D CMAKE_BUILD_TYPE=${BUILD_TYPE} -D CMAKE_CXX_FLAGS_${config}=${CXX_FLAGS}
    -D TVX_SCALABLE_MALLOC=${SCALABLE_MALLOC})
run(${CMAKE_COMMAND} --build ${work}/build --target tvxCrowdRender)

set(alone ${work}/build/plug-ins/tvxCrowdRender.so)
facts(expected ${HOST_PLUGIN})
facts(found ${alone})
if(NOT expected STREQUAL found)
  set(onlyHost ${expected})
  list(REMOVE_ITEM onlyHost ${found})
  set(onlyDevkit ${found})
  list(REMOVE_ITEM onlyDevkit ${expected})
  message(FATAL_ERROR "the two plug-ins differ\nonly beside the host: ${onlyHost}\nonly with the devkit: ${onlyDevkit}")
endif()
list(LENGTH found count)
if(count LESS 20)
  message(FATAL_ERROR "only ${count} facts were found: the comparison means nothing")
endif()
message(STATUS "${count} needed libraries and symbols are the same")
