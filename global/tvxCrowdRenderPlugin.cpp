// The plug-in's entry points. Nothing else includes MFnPlugin.h, which defines the plug-in's API version.
#include "core/log/tvxMayaLogger.h"
#include "core/log/tvxReport.h"
#include "global/tvxNodeTable.h"

#include <maya/MFnPlugin.h>

#include <ostream>

// Reports a step of an entry point that Maya refused. `step` is a chain of stream insertions.
#define TVX_REPORT_REFUSED(function, step, status)                                                           \
    TVX_REPORT(core::kError, function,                                                                       \
               function << ": Problem while " << step << " - " << (status).errorString())

using namespace tarvox;
using namespace tarvox::crowd;

PLUGIN_EXPORT MStatus initializePlugin(MObject object)
{
    constexpr char kFunction[] = "initializePlugin";
    startLogging();
    MStatus status;
    MFnPlugin plugin(object, "Tarvox", "2.5.0.1", "Any", &status);
    if (!status) {
        TVX_REPORT_REFUSED(kFunction, "registering Plugin", status);
        return MStatus::kFailure;
    }
    for (const NodeRow& row : nodeTable()) {
        status =
            plugin.registerNode(row.name, *row.id, row.creator, row.initialize, row.kind, row.classification);
        if (!status) {
            TVX_REPORT_REFUSED(kFunction, "registering " << row.name << " node", status);
            return MStatus::kFailure;
        }
    }
    status =
        plugin.registerUI("tvxCrowdRenderCreateUI", "tvxCrowdRenderDeleteUI", "tvxCrowdRenderBatchMode", "");
    if (!status) {
        TVX_REPORT_REFUSED(kFunction, "registering Crowd Render UI", status);
        return MStatus::kFailure;
    }
    TVX_REPORT(core::kInfo, kFunction, kFunction << ": " << plugin.name() << " plugin loaded.");
    return MStatus::kSuccess;
}

PLUGIN_EXPORT MStatus uninitializePlugin(MObject object)
{
    constexpr char kFunction[] = "uninitializePlugin";
    MFnPlugin plugin(object);
    for (const NodeRow& row : nodeTable()) {
        const MStatus status = plugin.deregisterNode(*row.id);
        if (!status) {
            TVX_REPORT_REFUSED(kFunction, "unregistering " << row.name << " node", status);
            return MStatus::kFailure;
        }
    }
    MayaLogger::getInstance().stop();
    TVX_REPORT(core::kInfo, kFunction, kFunction << ": " << plugin.name() << " plugin unloaded.");
    return MStatus::kSuccess;
}
