// MFnLight: lights.
#include <maya/MFnLight.h>

#include "support/attributeMembers.h"
#include "support/notImplemented.h"
#include "support/shapeSet.h"

using namespace tvxhost;
using api::failure;
using api::give;
using api::StatusText;

namespace {

const MFloatVector kForward(0.0F, 0.0F, -1.0F);

/// The way along which a light shines through a path, of length 1.
MFloatVector directionAlong(const engine::DagPath& path)
{
    Imath::V3d direction;
    path.inclusiveMatrix().multDirMatrix(Imath::V3d(0.0, 0.0, -1.0), direction);
    direction.normalize();
    return MFloatVector(static_cast<float>(direction.x), static_cast<float>(direction.y),
                        static_cast<float>(direction.z));
}

} // namespace

TVX_SHAPE_SET(MFnLight, MFn::kLight)

TVX_COLOR_MEMBER(MFnLight, color, setColor, "color")
TVX_COLOR_MEMBER(MFnLight, shadowColor, setShadowColor, "shadowColor")
TVX_NUMBER_MEMBER(MFnLight, float, intensity, setIntensity, const float&, "intensity")
TVX_NUMBER_MEMBER(MFnLight, bool, useRayTraceShadows, setUseRayTraceShadows, const bool&,
                  "useRayTraceShadows")
TVX_NUMBER_MEMBER(MFnLight, double, centerOfIllumination, setCenterOfIllumination, const double&,
                  "centerOfIllumination")
TVX_NUMBER_MEMBER(MFnLight, short, numShadowSamples, setNumShadowSamples, const short&, "shadowRays")
TVX_NUMBER_MEMBER(MFnLight, short, rayDepthLimit, setRayDepthLimit, const short&, "rayDepthLimit")

MColor MFnLight::opticalFXvisibility(MStatus* ReturnStatus) const
{
    const MColor black(0.0F, 0.0F, 0.0F);
    TVX_API_CALL_OR("MFnLight::opticalFXvisibility", ReturnStatus, black);
    api::notImplemented("MFnLight::opticalFXvisibility", ReturnStatus);
    return black;
}

MStatus MFnLight::setOpticalFXvisibility(const MColor&)
{
    TVX_API_CALL("MFnLight::setOpticalFXvisibility");
    return api::notImplemented("MFnLight::setOpticalFXvisibility");
}

MColor MFnLight::lightIntensity(MStatus* ReturnStatus) const
{
    const char* const name = "MFnLight::lightIntensity";
    MStatus status;
    MColor light = api::readColorMember(*this, name, "color", &status);
    if (status) {
        const auto plug = api::memberPlug(*this, "intensity");
        const auto number = plug ? engine::readNumber(plug.value) : plug.outcome;
        status = api::toStatus(number.outcome);
        const auto factor = static_cast<float>(number.value.asReal());
        light = MColor(light.r * factor, light.g * factor, light.b * factor);
    }
    give(ReturnStatus, status);
    return light;
}

MFloatVector MFnLight::lightDirection(int instance, MSpace::Space space, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnLight::lightDirection", ReturnStatus, kForward);
    engine::DagNode* node = api::dagNodeOf(*this);
    if (!api::requireAttached(node, ReturnStatus) || space == MSpace::kObject)
        return kForward;
    const auto paths = engine::DagPath::allTo(*node);
    if (instance < 0 || static_cast<std::size_t>(instance) >= paths.size()) {
        give(ReturnStatus, failure(StatusText::noElementAtIndex));
        return kForward;
    }
    return directionAlong(paths[static_cast<std::size_t>(instance)]);
}

MFloatVector MFnLight::lightDirection(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnLight::lightDirection", ReturnStatus, kForward);
    engine::DagNode* node = api::dagNodeOf(*this);
    return api::requireAttached(node, ReturnStatus) ? directionAlong(api::pathOf(*this, *node)) : kForward;
}

bool MFnLight::lightAmbient(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnLight::lightAmbient", ReturnStatus, false);
    const engine::Node* node = api::nodeOf(*this);
    return api::requireAttached(node, ReturnStatus) && node->type().isA("ambientLight");
}

bool MFnLight::lightDiffuse(MStatus* ReturnStatus) const
{
    return api::readMember(*this, "MFnLight::lightDiffuse", "emitDiffuse", ReturnStatus) != 0.0;
}

bool MFnLight::lightSpecular(MStatus* ReturnStatus) const
{
    return api::readMember(*this, "MFnLight::lightSpecular", "emitSpecular", ReturnStatus) != 0.0;
}
