// The command crowdUtilities: one flag for each family of MayaUtils, followed by what it needs.
#include "core/log/tvxCoreLog.h"
#include "core/log/tvxMayaLogger.h"
#include "core/utils/tvxMayaUtils.h"
#include "families.h"

#include <maya/MFnPlugin.h>
#include <maya/MGlobal.h>
#include <maya/MPxCommand.h>
#include <maya/MSelectionList.h>

using tarvox::crowd::MayaUtils;

namespace {

/// The path of a node that is given by name; none when there is no such node in the DAG.
MDagPath pathOf(const MString& name)
{
    MDagPath path;
    MSelectionList list;
    if (list.add(name))
        list.getDagPath(0, path);
    return path;
}

/// What the flag at the index asks for; `known` says whether there is such a flag.
std::string answer(const MArgList& arguments, unsigned int index, bool& known)
{
    const MString flag = arguments.asString(index);
    MString name;
    MayaUtils::readArgument(arguments, index, name);
    int number = 0;
    const MDagPath path = pathOf(name);
    known = true;
    if (flag == "-attributes")
        return crowdUtilities::attributes(path.node());
    if (flag == "-particle" && MayaUtils::readArgument(arguments, index, number))
        return crowdUtilities::particle(path.node(), static_cast<unsigned int>(number));
    if (flag == "-placement")
        return crowdUtilities::placement(path.node());
    if (flag == "-connections")
        return crowdUtilities::connections(path.node());
    if (flag == "-meshes")
        return crowdUtilities::meshes();
    if (flag == "-files")
        return crowdUtilities::files();
    if (flag == "-windows")
        return crowdUtilities::windows();
    if (flag == "-units")
        return crowdUtilities::units();
    if (flag == "-geometry")
        return crowdUtilities::geometry(path);
    known = false;
    return {};
}

class CrowdUtilities : public MPxCommand
{
public:
    static void* create() { return new CrowdUtilities; }

    MStatus doIt(const MArgList& arguments) override
    {
        bool known = false;
        const std::string text = answer(arguments, 0, known);
        if (!known) {
            displayError("crowdUtilities: a flag is missing, or what it needs");
            return MStatus::kFailure;
        }
        setResult(MString(text.c_str()));
        return MStatus::kSuccess;
    }
};

} // namespace

PLUGIN_EXPORT MStatus initializePlugin(MObject object)
{
    tarvox::crowd::startLogging();
    MFnPlugin plugin(object, "Tarvox", "1.0");
    return plugin.registerCommand("crowdUtilities", CrowdUtilities::create);
}

PLUGIN_EXPORT MStatus uninitializePlugin(MObject object)
{
    tarvox::crowd::MayaLogger::getInstance().stop();
    MFnPlugin plugin(object);
    return plugin.deregisterCommand("crowdUtilities");
}
