# The plug-in's sources stand on Maya, the core library, TBB, OpenGL, Qt and the standard library, and on nothing
# of the host.
#   SOURCE_DIR  the sources
file(GLOB_RECURSE sources ${SOURCE_DIR}/core/*.cpp ${SOURCE_DIR}/core/*.h ${SOURCE_DIR}/global/*.cpp
     ${SOURCE_DIR}/global/*.h ${SOURCE_DIR}/rendering/*.cpp ${SOURCE_DIR}/rendering/*.h)
list(LENGTH sources count)
if(count LESS 10)
  message(FATAL_ERROR "only ${count} sources found in ${SOURCE_DIR}")
endif()

set(own "\"(core|global|rendering)/")
set(others "<(maya/M|tvxCore/|tbb/|GL/gl\\.h|OpenGL/gl\\.h|Q[A-Za-z]+>|[a-z_]+>|(fcntl|io|share|sys/stat|unistd|windows)\\.h>)")
set(entryUnits "")
foreach(source IN LISTS sources)
  file(STRINGS ${source} includes REGEX "^ *# *include")
  foreach(include IN LISTS includes)
    if(NOT include MATCHES "include (${own}|${others})")
      message(SEND_ERROR "${source}: ${include}")
    endif()
    if(include MATCHES "MFnPlugin\\.h")
      list(APPEND entryUnits ${source})
    endif()
  endforeach()
endforeach()

if(NOT entryUnits STREQUAL "${SOURCE_DIR}/global/tvxCrowdRenderPlugin.cpp")
  message(SEND_ERROR "MFnPlugin.h is included by: ${entryUnits}")
endif()
