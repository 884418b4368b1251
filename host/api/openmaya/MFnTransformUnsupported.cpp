// MFnTransform: what the host does not do: kNotImplemented, said once.
#include <maya/MFnTransform.h>

#include "support/apiCall.h"
#include "support/notImplemented.h"

using tvxhost::api::notImplemented;

MTransformationMatrix MFnTransform::restPosition(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnTransform::restPosition", ReturnStatus, MTransformationMatrix());
    notImplemented("MFnTransform::restPosition", ReturnStatus);
    return MTransformationMatrix();
}

MStatus MFnTransform::setRestPosition(const MTransformationMatrix&)
{
    TVX_API_CALL("MFnTransform::setRestPosition");
    return notImplemented("MFnTransform::setRestPosition");
}

MStatus MFnTransform::resetFromRestPosition()
{
    TVX_API_CALL("MFnTransform::resetFromRestPosition");
    return notImplemented("MFnTransform::resetFromRestPosition");
}

MStatus MFnTransform::clearRestPosition()
{
    TVX_API_CALL("MFnTransform::clearRestPosition");
    return notImplemented("MFnTransform::clearRestPosition");
}
