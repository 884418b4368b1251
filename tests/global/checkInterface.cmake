# Loads and unloads the plug-in in the host, with and without a user interface, and compares all that is printed.
#   BUILD_DIR  the build    SOURCE_DIR  the sources    WORK_DIR  a folder to work in, emptied first
#   HOST       the host's program    PLUGIN  the plug-in
file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})
set(ENV{MAYA_SCRIPT_PATH} ${BUILD_DIR}/scripts)

# An empty menu query, the items of the menu, and whether it is there, before and after each step.
file(WRITE ${WORK_DIR}/steps.mel [[
proc tell(string $when)
{
    string $items = "";
    if (`menu -exists tvxCrowdRenderMenu`)
        $items = `menu -query -label tvxCrowdRenderMenu` + ": " + stringArrayToString(`menu -query -itemArray tvxCrowdRenderMenu`, " ");
    print($when + ": [" + $items + "]\n");
}
tell("loaded");
if (!`about -batch`) {
    tvxCrowdRenderCreateUI();
    tell("made again");
    print(`menuItem -query -command tvxCreateCrowdProxyVRay` + "\n");
    tvxCrowdRenderDeleteUI();
    tell("removed");
    tvxCrowdRenderDeleteUI();
    tell("removed again");
    tvxCrowdRenderCreateUI();
}
unloadPlugin tvxCrowdRender;
tell("unloaded");
]])

# The line of the load.
set(loaded "[TarvoxCrowd::INFO]\tCrowd Render: At line [0-9]+ in file global/tvxCrowdRenderPlugin.cpp: initializePlugin: tvxCrowdRender plugin loaded.\n")
string(REPLACE "[TarvoxCrowd::INFO]" "\\[TarvoxCrowd::INFO\\]" loaded "${loaded}")

function(expect_output mode expected)
  execute_process(COMMAND ${HOST} ${mode} --prefs ${WORK_DIR}/prefs --plugin ${PLUGIN} --script ${WORK_DIR}/steps.mel
                  OUTPUT_VARIABLE output ERROR_VARIABLE error RESULT_VARIABLE result)
  if(NOT result EQUAL 0 OR NOT error STREQUAL "" OR NOT output MATCHES "^${expected}$")
    message(SEND_ERROR "${HOST} ${mode} gives ${result}\n${output}${error}\nexpected:\n${expected}")
  endif()
endfunction()

set(items "tvxCreateCrowdRenderManagerNode tvxCreateCrowdProxyVRay tvxCreateCrowdProxyRendermanStudio")
string(APPEND items " tvxCreateCrowdSwitchShaderVRay tvxCreateCrowdHSLShaderVRay tvxCreateCrowdGetUserDataVRay")
string(APPEND items " tvxCreateCrowdSwitchShader3Delight tvxCreateCrowdGetUserData3Delight")
expect_output("--interactive" "// ${loaded}loaded: \\[Crowd Render: ${items}\\]
made again: \\[Crowd Render: ${items}\\]
createNode CrowdProxyVRay
removed: \\[\\]
removed again: \\[\\]
unloaded: \\[\\]
")
expect_output("" "${loaded}tvxCrowdRender: loaded without user interface
loaded: \\[\\]
unloaded: \\[\\]
")
