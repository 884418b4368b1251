// MFnPlugin: members that the host does not do: other kinds of things that a plug-in can add.
#define MNoVersionString
#include <maya/MFnPlugin.h>

#include "support/notImplemented.h"

using tvxhost::api::notImplemented;

MStatus MFnPlugin::registerControlCommand(const MString&, MCreatorFunction)
{
    return notImplemented("MFnPlugin::registerControlCommand");
}

MStatus MFnPlugin::deregisterControlCommand(const MString&)
{
    return notImplemented("MFnPlugin::deregisterControlCommand");
}

MStatus MFnPlugin::registerModelEditorCommand(const MString&, MCreatorFunction, MCreatorFunction)
{
    return notImplemented("MFnPlugin::registerModelEditorCommand");
}

MStatus MFnPlugin::deregisterModelEditorCommand(const MString&)
{
    return notImplemented("MFnPlugin::deregisterModelEditorCommand");
}

MStatus MFnPlugin::registerConstraintCommand(const MString&, MCreatorFunction)
{
    return notImplemented("MFnPlugin::registerConstraintCommand");
}

MStatus MFnPlugin::deregisterConstraintCommand(const MString&)
{
    return notImplemented("MFnPlugin::deregisterConstraintCommand");
}

MStatus MFnPlugin::registerContextCommand(const MString&, MCreatorFunction)
{
    return notImplemented("MFnPlugin::registerContextCommand");
}

MStatus MFnPlugin::registerContextCommand(const MString&, MCreatorFunction, const MString&, MCreatorFunction,
                                          MCreateSyntaxFunction)
{
    return notImplemented("MFnPlugin::registerContextCommand");
}

MStatus MFnPlugin::deregisterContextCommand(const MString&)
{
    return notImplemented("MFnPlugin::deregisterContextCommand");
}

MStatus MFnPlugin::deregisterContextCommand(const MString&, const MString&)
{
    return notImplemented("MFnPlugin::deregisterContextCommand");
}

MStatus MFnPlugin::registerShape(const MString&, const MTypeId&, MCreatorFunction, MInitializeFunction,
                                 MCreatorFunction, const MString*)
{
    return notImplemented("MFnPlugin::registerShape");
}

MStatus MFnPlugin::registerDevice(const MString&, MCreatorFunction)
{
    return notImplemented("MFnPlugin::registerDevice");
}

MStatus MFnPlugin::deregisterDevice(const MString&)
{
    return notImplemented("MFnPlugin::deregisterDevice");
}

MStatus MFnPlugin::registerFileTranslator(const MString&, const char*, MCreatorFunction, const char*,
                                          const char*, bool, MString)
{
    return notImplemented("MFnPlugin::registerFileTranslator");
}

MStatus MFnPlugin::deregisterFileTranslator(const MString&)
{
    return notImplemented("MFnPlugin::deregisterFileTranslator");
}

MStatus MFnPlugin::registerURIFileResolver(const MString&, const MString&, MCreatorFunction)
{
    return notImplemented("MFnPlugin::registerURIFileResolver");
}

MStatus MFnPlugin::deregisterURIFileResolver(const MString&)
{
    return notImplemented("MFnPlugin::deregisterURIFileResolver");
}

MStatus MFnPlugin::registerIkSolver(const MString&, MCreatorFunction)
{
    return notImplemented("MFnPlugin::registerIkSolver");
}

MStatus MFnPlugin::deregisterIkSolver(const MString&)
{
    return notImplemented("MFnPlugin::deregisterIkSolver");
}

MStatus MFnPlugin::registerCacheFormat(const MString&, MCreatorFunction)
{
    return notImplemented("MFnPlugin::registerCacheFormat");
}

MStatus MFnPlugin::deregisterCacheFormat(const MString&)
{
    return notImplemented("MFnPlugin::deregisterCacheFormat");
}

MStatus MFnPlugin::registerUIStrings(MInitializeFunction, const MString&)
{
    return notImplemented("MFnPlugin::registerUIStrings");
}

MStatus MFnPlugin::registerDragAndDropBehavior(const MString&, MCreatorFunction)
{
    return notImplemented("MFnPlugin::registerDragAndDropBehavior");
}

MStatus MFnPlugin::deregisterDragAndDropBehavior(const MString&)
{
    return notImplemented("MFnPlugin::deregisterDragAndDropBehavior");
}

MStatus MFnPlugin::registerImageFile(const MString&, MCreatorFunction, const MStringArray&)
{
    return notImplemented("MFnPlugin::registerImageFile");
}

MStatus MFnPlugin::deregisterImageFile(const MString&)
{
    return notImplemented("MFnPlugin::deregisterImageFile");
}

MStatus MFnPlugin::registerAttributePatternFactory(const MString&, MCreatorFunction)
{
    return notImplemented("MFnPlugin::registerAttributePatternFactory");
}

MStatus MFnPlugin::deregisterAttributePatternFactory(const MString&)
{
    return notImplemented("MFnPlugin::deregisterAttributePatternFactory");
}

MStatus MFnPlugin::registerAnimCurveInterpolator(const MString&, int, MCreatorFunction, int)
{
    return notImplemented("MFnPlugin::registerAnimCurveInterpolator");
}

MStatus MFnPlugin::deregisterAnimCurveInterpolator(const MString&)
{
    return notImplemented("MFnPlugin::deregisterAnimCurveInterpolator");
}

MStatus MFnPlugin::registerDisplayFilter(const MString&, const MString&, const MString&)
{
    return notImplemented("MFnPlugin::registerDisplayFilter");
}

MStatus MFnPlugin::deregisterDisplayFilter(const MString&)
{
    return notImplemented("MFnPlugin::deregisterDisplayFilter");
}

MStatus MFnPlugin::registerRenderer(const MString&, MCreatorFunction)
{
    return notImplemented("MFnPlugin::registerRenderer");
}

MStatus MFnPlugin::deregisterRenderer(const MString&)
{
    return notImplemented("MFnPlugin::deregisterRenderer");
}

MTypeId MFnPlugin::matrixTypeIdFromXformId(const MTypeId&, MStatus* ReturnStatus)
{
    notImplemented("MFnPlugin::matrixTypeIdFromXformId", ReturnStatus);
    return MTypeId();
}

MStringArray MFnPlugin::addMenuItem(const MString&, const MString&, const MString&, const MString&, bool,
                                    const MString*, MStatus* retStatus)
{
    notImplemented("MFnPlugin::addMenuItem", retStatus);
    return MStringArray();
}

MStatus MFnPlugin::removeMenuItem(MStringArray&)
{
    return notImplemented("MFnPlugin::removeMenuItem");
}

void MFnPlugin::setRegisteringCallableScript()
{
    notImplemented("MFnPlugin::setRegisteringCallableScript");
}

bool MFnPlugin::registeringCallableScript()
{
    notImplemented("MFnPlugin::registeringCallableScript");
    return false;
}

MStatus MFnPlugin::registerTransform(const MString&, const MTypeId&, MCreatorFunction, MInitializeFunction,
                                     MCreatorFunction, const MTypeId&, const MString*)
{
    return notImplemented("MFnPlugin::registerTransform");
}

MStatus MFnPlugin::registerTransform(const MString&, const MTypeId&, MCreatorFunction, MInitializeFunction,
                                     MCreateXformMatrixFunction, const MTypeId&, const MString*)
{
    return notImplemented("MFnPlugin::registerTransform");
}

MStatus MFnPlugin::registerUI(PyObject*, PyObject*, PyObject*, PyObject*)
{
    return notImplemented("MFnPlugin::registerUI(PyObject)");
}

MStatus MFnPlugin::registerRenderPassImpl(const MString&, MRenderPassDef*, MCreatorFunction, bool)
{
    return notImplemented("MFnPlugin::registerRenderPassImpl");
}

MStatus MFnPlugin::deregisterRenderPassImpl(const MString&)
{
    return notImplemented("MFnPlugin::deregisterRenderPassImpl");
}

MStatus MFnPlugin::registerMaterialInfo(const MString&, MMaterialInfoFactoryFnPtr)
{
    return notImplemented("MFnPlugin::registerMaterialInfo");
}

MStatus MFnPlugin::unregisterMaterialInfo(const MString&)
{
    return notImplemented("MFnPlugin::unregisterMaterialInfo");
}

MStatus MFnPlugin::registerBakeEngine(const MString&, MBakeEngineCreatorFnPtr)
{
    return notImplemented("MFnPlugin::registerBakeEngine");
}

MStatus MFnPlugin::unregisterBakeEngine(const MString&)
{
    return notImplemented("MFnPlugin::unregisterBakeEngine");
}
