// Nodes found by their type, and attributes set by name.
#include "core/utils/tvxMayaUtils.h"

#include <maya/MCommandResult.h>
#include <maya/MGlobal.h>
#include <maya/MItDependencyNodes.h>

namespace tarvox::crowd {

namespace {

void run(const std::string& command, MCommandResult& result)
{
    MGlobal::executeCommand(command.c_str(), result, false, false);
}

} // namespace

MStatus MayaUtils::findNodesByTypeId(std::vector<MObject>& nodes, const MTypeId& typeId, MFn::Type filter)
{
    MStatus status;
    for (MItDependencyNodes iterator(filter, &status); status && !iterator.isDone(); iterator.next()) {
        const MObject node = iterator.thisNode(&status);
        if (!status)
            return status;
        const MFnDependencyNode function(node, &status);
        if (status && function.typeId() == typeId)
            nodes.push_back(node);
    }
    return status;
}

void MayaUtils::setStringAttributeByCommand(const std::string& node, const std::string& longName,
                                            const std::string& niceName, const std::string& value)
{
    MCommandResult result;
    int exists = 0;
    run("objExists \"" + node + "." + longName + "\"", result);
    result.getResult(exists);
    if (exists == 0)
        run("addAttr -ln \"" + longName + "\" -nn \"" + niceName + "\" -dt \"string\" " + node, result);
    run("setAttr -type \"string\" \"" + node + "." + longName + "\" \"" + value + "\" ", result);
}

} // namespace tarvox::crowd
