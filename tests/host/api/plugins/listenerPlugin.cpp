// A plug-in that prints what it is told of the session: its start, units, the played range, its end.
#include <maya/MCallbackIdArray.h>
#include <maya/MEventMessage.h>
#include <maya/MFnPlugin.h>
#include <maya/MGlobal.h>
#include <maya/MMessage.h>
#include <maya/MSceneMessage.h>

namespace {

MCallbackIdArray callbacks;

void tell(void* words)
{
    MGlobal::displayInfo(MString("heard: ") + static_cast<const char*>(words));
}

void listen(const char* event)
{
    callbacks.append(MEventMessage::addEventCallback(event, tell, const_cast<char*>(event)));
}

void listen(MSceneMessage::Message message, const char* words)
{
    callbacks.append(MSceneMessage::addCallback(message, tell, const_cast<char*>(words)));
}

} // namespace

PLUGIN_EXPORT MStatus initializePlugin(MObject object)
{
    MFnPlugin plugin(object, "Listening");
    listen(MSceneMessage::kMayaInitialized, "initialized");
    listen(MSceneMessage::kMayaExiting, "exiting");
    for (const char* event :
         {"linearUnitChanged", "angularUnitChanged", "timeUnitChanged", "playbackRangeChanged"})
        listen(event);
    return MS::kSuccess;
}

PLUGIN_EXPORT MStatus uninitializePlugin(MObject)
{
    return MMessage::removeCallbacks(callbacks);
}
