// MFnGeometryData: geometry as an object. Matrices and groups inside it are not done: kNotImplemented, said
// once.
#include <maya/MFnGeometryData.h>

#include "support/functionSet.h"
#include "support/notImplemented.h"

using tvxhost::api::notImplemented;

TVX_FUNCTION_SET(MFnGeometryData, MFn::kGeometryData)

MStatus MFnGeometryData::setMatrix(const MMatrix&)
{
    TVX_API_CALL("MFnGeometryData::setMatrix");
    return notImplemented("MFnGeometryData::setMatrix");
}

MStatus MFnGeometryData::getMatrix(MMatrix&) const
{
    TVX_API_CALL("MFnGeometryData::getMatrix");
    return notImplemented("MFnGeometryData::getMatrix");
}

bool MFnGeometryData::matrixIsIdentity(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnGeometryData::matrixIsIdentity", ReturnStatus, false);
    notImplemented("MFnGeometryData::matrixIsIdentity", ReturnStatus);
    return false;
}

bool MFnGeometryData::matrixIsNotIdentity(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnGeometryData::matrixIsNotIdentity", ReturnStatus, false);
    notImplemented("MFnGeometryData::matrixIsNotIdentity", ReturnStatus);
    return false;
}

bool MFnGeometryData::hasObjectGroup(unsigned int, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnGeometryData::hasObjectGroup", ReturnStatus, false);
    notImplemented("MFnGeometryData::hasObjectGroup", ReturnStatus);
    return false;
}

MStatus MFnGeometryData::addObjectGroup(unsigned int)
{
    TVX_API_CALL("MFnGeometryData::addObjectGroup");
    return notImplemented("MFnGeometryData::addObjectGroup");
}

MStatus MFnGeometryData::removeObjectGroup(unsigned int)
{
    TVX_API_CALL("MFnGeometryData::removeObjectGroup");
    return notImplemented("MFnGeometryData::removeObjectGroup");
}

MStatus MFnGeometryData::changeObjectGroupId(unsigned int, unsigned int)
{
    TVX_API_CALL("MFnGeometryData::changeObjectGroupId");
    return notImplemented("MFnGeometryData::changeObjectGroupId");
}

unsigned int MFnGeometryData::objectGroupCount(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnGeometryData::objectGroupCount", ReturnStatus, 0);
    notImplemented("MFnGeometryData::objectGroupCount", ReturnStatus);
    return 0;
}

unsigned int MFnGeometryData::objectGroup(unsigned int, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnGeometryData::objectGroup", ReturnStatus, 0);
    notImplemented("MFnGeometryData::objectGroup", ReturnStatus);
    return 0;
}

MFn::Type MFnGeometryData::objectGroupType(unsigned int, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnGeometryData::objectGroupType", ReturnStatus, MFn::kInvalid);
    notImplemented("MFnGeometryData::objectGroupType", ReturnStatus);
    return MFn::kInvalid;
}

MObject MFnGeometryData::objectGroupComponent(unsigned int, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnGeometryData::objectGroupComponent", ReturnStatus, MObject());
    notImplemented("MFnGeometryData::objectGroupComponent", ReturnStatus);
    return MObject();
}

MStatus MFnGeometryData::setObjectGroupComponent(unsigned int, MObject&)
{
    TVX_API_CALL("MFnGeometryData::setObjectGroupComponent");
    return notImplemented("MFnGeometryData::setObjectGroupComponent");
}

MStatus MFnGeometryData::addObjectGroupComponent(unsigned int, MObject&)
{
    TVX_API_CALL("MFnGeometryData::addObjectGroupComponent");
    return notImplemented("MFnGeometryData::addObjectGroupComponent");
}

MStatus MFnGeometryData::removeObjectGroupComponent(unsigned int, MObject&)
{
    TVX_API_CALL("MFnGeometryData::removeObjectGroupComponent");
    return notImplemented("MFnGeometryData::removeObjectGroupComponent");
}

MStatus MFnGeometryData::copyObjectGroups(MObject&)
{
    TVX_API_CALL("MFnGeometryData::copyObjectGroups");
    return notImplemented("MFnGeometryData::copyObjectGroups");
}
