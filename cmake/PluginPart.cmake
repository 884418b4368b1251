# tvx_repository_file_names(TARGET): reports name source files by their path in the repository also where the
# compiler is given paths relative to the build, as ccache does that is told a base directory.
function(tvx_repository_file_names target)
  if(NOT MSVC)
    file(RELATIVE_PATH sources ${PROJECT_BINARY_DIR} ${PROJECT_SOURCE_DIR})
    target_compile_options(${target} PRIVATE -fmacro-prefix-map=${sources}/=)
  endif()
endfunction()

# tvx_plugin_part(TARGET source...): a folder of the plug-in. Its headers are included by their path in the
# repository; nothing of it leaves the library it is linked into.
function(tvx_plugin_part target)
  tvx_static_library(${target} ${ARGN})
  tvx_repository_file_names(${target})
  target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR})
  set_target_properties(${target} PROPERTIES CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
endfunction()
