# tvx_plugin_part(TARGET source...): a folder of the plug-in. Its headers are included by their path in the
# repository; nothing of it leaves the library it is linked into.
function(tvx_plugin_part target)
  tvx_static_library(${target} ${ARGN})
  target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR})
  set_target_properties(${target} PROPERTIES CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
endfunction()
