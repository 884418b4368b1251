// MFnVolumeLight: volume lights.
#include <maya/MFnVolumeLight.h>

#include "support/attributeMembers.h"
#include "support/shapeSet.h"

namespace {

using namespace tvxhost::api;

/// The ramp that an attribute of a light is; one of nothing when the light has no such attribute.
MRampAttribute rampOf(const MFnBase& set, const char* function, const char* attribute, MStatus* returnStatus)
{
    TVX_API_CALL_OR(function, returnStatus, MRampAttribute());
    const auto plug = memberPlug(set, attribute);
    if (!plug) {
        give(returnStatus, toStatus(plug.outcome));
        return MRampAttribute();
    }
    return MRampAttribute(tvxAccess::plug(plug.value), returnStatus);
}

} // namespace

TVX_SHAPE_SET(MFnVolumeLight, MFn::kVolumeLight)
TVX_LIGHT_CREATION(MFnVolumeLight, "volumeLight")

TVX_NUMBER_MEMBER(MFnVolumeLight, float, arc, setArc, const float&, "arc")
TVX_NUMBER_MEMBER(MFnVolumeLight, float, coneEndRadius, setConeEndRadius, const float&, "coneEndRadius")
TVX_NUMBER_MEMBER(MFnVolumeLight, bool, emitAmbient, setEmitAmbient, const bool&, "emitAmbient")
TVX_NUMBER_MEMBER(MFnVolumeLight, float, shadowAngle, setShadowAngle, const float&, "lightAngle")
TVX_ENUM_MEMBER(MFnVolumeLight, MFnVolumeLight::MLightShape, lightShape, setLightShape, const MLightShape&,
                "lightShape")
TVX_ENUM_MEMBER(MFnVolumeLight, MFnVolumeLight::MLightDirection, volumeLightDirection,
                setVolumeLightDirection, const MLightDirection&, "volumeLightDir")

MRampAttribute MFnVolumeLight::colorRamp(MStatus* ReturnStatus) const
{
    return rampOf(*this, "MFnVolumeLight::colorRamp", "colorRange", ReturnStatus);
}

MRampAttribute MFnVolumeLight::penumbraRamp(MStatus* ReturnStatus) const
{
    return rampOf(*this, "MFnVolumeLight::penumbraRamp", "penumbra", ReturnStatus);
}
