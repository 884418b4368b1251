// MFnAmbientLight: ambient lights.
#include <maya/MFnAmbientLight.h>

#include "support/attributeMembers.h"
#include "support/notImplemented.h"
#include "support/shapeSet.h"

TVX_SHAPE_SET(MFnAmbientLight, MFn::kAmbientLight)
TVX_LIGHT_CREATION(MFnAmbientLight, "ambientLight")

TVX_NUMBER_MEMBER(MFnAmbientLight, float, ambientShade, setAmbientShade, const float&, "ambientShade")
TVX_NUMBER_MEMBER(MFnAmbientLight, float, shadowRadius, setShadowRadius, const float&, "lightRadius")

bool MFnAmbientLight::castSoftShadows(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnAmbientLight::castSoftShadows", ReturnStatus, false);
    tvxhost::api::notImplemented("MFnAmbientLight::castSoftShadows", ReturnStatus);
    return false;
}

MStatus MFnAmbientLight::setCastSoftShadows(const bool&)
{
    TVX_API_CALL("MFnAmbientLight::setCastSoftShadows");
    return tvxhost::api::notImplemented("MFnAmbientLight::setCastSoftShadows");
}
