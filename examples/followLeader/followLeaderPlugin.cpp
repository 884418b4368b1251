// The plug-in followLeader: one command.
#include "followLeaderCommand.h"

#include <maya/MFnPlugin.h>

using followLeader::FollowLeaderCommand;

PLUGIN_EXPORT MStatus initializePlugin(MObject object)
{
    MFnPlugin plugin(object, "Tarvox", "1.0");
    return plugin.registerCommand(FollowLeaderCommand::name, FollowLeaderCommand::creator,
                                  FollowLeaderCommand::newSyntax);
}

PLUGIN_EXPORT MStatus uninitializePlugin(MObject object)
{
    MFnPlugin plugin(object);
    return plugin.deregisterCommand(FollowLeaderCommand::name);
}
