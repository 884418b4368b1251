// MGlobal: what the host cannot do; each answers kNotImplemented and says so once.
#include <maya/MGlobal.h>

#include "support/apiCall.h"
#include "support/notImplemented.h"

using tvxhost::api::notImplemented;

MStatus MGlobal::setDisplayCVs(MSelectionList&, bool)
{
    TVX_API_CALL("MGlobal::setDisplayCVs");
    return notImplemented("MGlobal::setDisplayCVs");
}

MStatus MGlobal::selectFromScreen(const short&, const short&, ListAdjustment, SelectionMethod)
{
    TVX_API_CALL("MGlobal::selectFromScreen");
    return notImplemented("MGlobal::selectFromScreen");
}

MStatus MGlobal::selectFromScreen(const short&, const short&, const short&, const short&, ListAdjustment,
                                  SelectionMethod)
{
    TVX_API_CALL("MGlobal::selectFromScreen");
    return notImplemented("MGlobal::selectFromScreen");
}

MStatus MGlobal::setPreselectionHiliteList(const MSelectionList&)
{
    TVX_API_CALL("MGlobal::setPreselectionHiliteList");
    return notImplemented("MGlobal::setPreselectionHiliteList");
}

MStatus MGlobal::executePythonCommand(const MString&, bool, bool)
{
    TVX_API_CALL("MGlobal::executePythonCommand");
    return notImplemented("MGlobal::executePythonCommand");
}

MStatus MGlobal::executePythonCommand(const MString&, int&, bool, bool)
{
    TVX_API_CALL("MGlobal::executePythonCommand");
    return notImplemented("MGlobal::executePythonCommand");
}

MStatus MGlobal::executePythonCommand(const MString&, MIntArray&, bool, bool)
{
    TVX_API_CALL("MGlobal::executePythonCommand");
    return notImplemented("MGlobal::executePythonCommand");
}

MStatus MGlobal::executePythonCommand(const MString&, double&, bool, bool)
{
    TVX_API_CALL("MGlobal::executePythonCommand");
    return notImplemented("MGlobal::executePythonCommand");
}

MStatus MGlobal::executePythonCommand(const MString&, MDoubleArray&, bool, bool)
{
    TVX_API_CALL("MGlobal::executePythonCommand");
    return notImplemented("MGlobal::executePythonCommand");
}

MStatus MGlobal::executePythonCommand(const MString&, MString&, bool, bool)
{
    TVX_API_CALL("MGlobal::executePythonCommand");
    return notImplemented("MGlobal::executePythonCommand");
}

MStatus MGlobal::executePythonCommand(const MString&, MStringArray&, bool, bool)
{
    TVX_API_CALL("MGlobal::executePythonCommand");
    return notImplemented("MGlobal::executePythonCommand");
}

MStatus MGlobal::executePythonCommandOnIdle(const MString&, bool)
{
    TVX_API_CALL("MGlobal::executePythonCommandOnIdle");
    return notImplemented("MGlobal::executePythonCommandOnIdle");
}

MStatus MGlobal::addToModelAt(MObject&, const MVector&, const double[3], const double[3],
                              MTransformationMatrix::RotationOrder)
{
    TVX_API_CALL("MGlobal::addToModelAt");
    return notImplemented("MGlobal::addToModelAt");
}

MStatus MGlobal::removeFromModel(MObject&)
{
    TVX_API_CALL("MGlobal::removeFromModel");
    return notImplemented("MGlobal::removeFromModel");
}

MStatus MGlobal::resetToDefaultErrorLogPathName()
{
    TVX_API_CALL("MGlobal::resetToDefaultErrorLogPathName");
    return notImplemented("MGlobal::resetToDefaultErrorLogPathName");
}

MStatus MGlobal::setErrorLogPathName(const MString&)
{
    TVX_API_CALL("MGlobal::setErrorLogPathName");
    return notImplemented("MGlobal::setErrorLogPathName");
}

MStatus MGlobal::startErrorLogging()
{
    TVX_API_CALL("MGlobal::startErrorLogging");
    return notImplemented("MGlobal::startErrorLogging");
}

MStatus MGlobal::startErrorLogging(const MString&)
{
    TVX_API_CALL("MGlobal::startErrorLogging");
    return notImplemented("MGlobal::startErrorLogging");
}

MStatus MGlobal::stopErrorLogging()
{
    TVX_API_CALL("MGlobal::stopErrorLogging");
    return notImplemented("MGlobal::stopErrorLogging");
}

MStatus MGlobal::closeErrorLog()
{
    TVX_API_CALL("MGlobal::closeErrorLog");
    return notImplemented("MGlobal::closeErrorLog");
}

MStatus MGlobal::doErrorLogEntry(const MString&)
{
    TVX_API_CALL("MGlobal::doErrorLogEntry");
    return notImplemented("MGlobal::doErrorLogEntry");
}

MString MGlobal::executePythonCommandStringResult(const MString&, bool, bool, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MGlobal::executePythonCommandStringResult", ReturnStatus, MString());
    notImplemented("MGlobal::executePythonCommandStringResult", ReturnStatus);
    return MString();
}

MString MGlobal::defaultErrorLogPathName(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MGlobal::defaultErrorLogPathName", ReturnStatus, MString());
    notImplemented("MGlobal::defaultErrorLogPathName", ReturnStatus);
    return MString();
}

MString MGlobal::errorLogPathName(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MGlobal::errorLogPathName", ReturnStatus, MString());
    notImplemented("MGlobal::errorLogPathName", ReturnStatus);
    return MString();
}

MString MGlobal::getAbsolutePathToResources()
{
    notImplemented("MGlobal::getAbsolutePathToResources");
    return MString();
}

bool MGlobal::errorLoggingIsOn(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MGlobal::errorLoggingIsOn", ReturnStatus, false);
    tvxhost::api::giveSuccess(ReturnStatus);
    return false;
}

void MGlobal::setDisableStow(bool)
{
    notImplemented("MGlobal::setDisableStow");
}

bool MGlobal::disableStow()
{
    notImplemented("MGlobal::disableStow");
    return false;
}
