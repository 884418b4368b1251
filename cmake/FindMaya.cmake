# Finds a Maya installation or devkit: the headers and the five libraries that the plug-in links.
#
#   MAYA_LOCATION    an installation (Linux, Windows: its root; macOS: its root or Maya.app/Contents)
#   DEVKIT_LOCATION  a devkit, unpacked; looked at first
#
# Gives Maya::Foundation, Maya::OpenMaya, Maya::OpenMayaUI, Maya::OpenMayaFX and Maya::OpenMayaAnim, the targets
# that the stand-in host gives too, and Maya_API_VERSION (201602 for Maya 2016).

set(Maya_LIBRARY_NAMES Foundation OpenMaya OpenMayaUI OpenMayaFX OpenMayaAnim)
set(mayaRoots ${DEVKIT_LOCATION} ${MAYA_LOCATION})

find_path(Maya_INCLUDE_DIR maya/MFnPlugin.h
  PATHS ${mayaRoots}
  PATH_SUFFIXES include devkit/include ../include ../devkit/include
  NO_DEFAULT_PATH)

set(mayaLibraryVariables)
foreach(name IN LISTS Maya_LIBRARY_NAMES)
  find_library(Maya_${name}_LIBRARY ${name}
    PATHS ${mayaRoots}
    PATH_SUFFIXES lib MacOS Contents/MacOS Maya.app/Contents/MacOS
    NO_DEFAULT_PATH)
  list(APPEND mayaLibraryVariables Maya_${name}_LIBRARY)
endforeach()

if(Maya_INCLUDE_DIR AND EXISTS ${Maya_INCLUDE_DIR}/maya/MTypes.h)
  file(STRINGS ${Maya_INCLUDE_DIR}/maya/MTypes.h mayaVersionLine REGEX "#define[ \t]+MAYA_API_VERSION[ \t]+[0-9]+")
  string(REGEX MATCH "[0-9]+$" Maya_API_VERSION "${mayaVersionLine}")
endif()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Maya
  REQUIRED_VARS Maya_INCLUDE_DIR ${mayaLibraryVariables}
  VERSION_VAR Maya_API_VERSION
  REASON_FAILURE_MESSAGE
    "looked in '${mayaRoots}' for include/maya (or devkit/include/maya) and for the libraries in lib (macOS: MacOS).
    Set MAYA_LOCATION to a Maya installation or DEVKIT_LOCATION to an unpacked devkit.")
mark_as_advanced(Maya_INCLUDE_DIR ${mayaLibraryVariables})

# What the devkit's own build files define for each platform.
if(WIN32)
  set(mayaDefinitions NT_PLUGIN REQUIRE_IOSTREAM)
elseif(APPLE)
  set(mayaDefinitions OSMac_ MAC_PLUGIN REQUIRE_IOSTREAM _BOOL)
else()
  set(mayaDefinitions LINUX LINUX_64 UNIX REQUIRE_IOSTREAM _BOOL _GNU_SOURCE)
endif()

if(Maya_FOUND)
  foreach(name IN LISTS Maya_LIBRARY_NAMES)
    if(NOT TARGET Maya::${name})
      # On Windows the file found is the import library, elsewhere the library itself; linking needs no more.
      add_library(Maya::${name} UNKNOWN IMPORTED GLOBAL)
      set_target_properties(Maya::${name} PROPERTIES
        IMPORTED_LOCATION ${Maya_${name}_LIBRARY}
        INTERFACE_INCLUDE_DIRECTORIES ${Maya_INCLUDE_DIR}
        INTERFACE_COMPILE_DEFINITIONS "${mayaDefinitions}")
    endif()
  endforeach()
endif()
