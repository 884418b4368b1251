// MFnTransform: limits of its channels.
#include <maya/MFnTransform.h>

#include "engine/scene.h"
#include "support/dagSet.h"

#include <string>

using namespace tvxhost;

namespace {

/// The attributes of a limit: "minTransXLimit" and "minTransXLimitEnable".
std::string limitName(MFnTransform::LimitType type)
{
    static constexpr const char* kKinds[] = {"Scale", "Shear", "Rot", "Trans"};
    static constexpr const char* kAxes[] = {"X", "Y", "Z"};
    static constexpr const char* kShears[] = {"XY", "XZ", "YZ"};
    const int kind = type / 6;
    const int axis = type % 6 / 2;
    return std::string(type % 2 == 0 ? "min" : "max") + kKinds[kind] +
           (kind == 1 ? kShears[axis] : kAxes[axis]) + "Limit";
}

engine::Expected<engine::Plug> limitPlug(const MFnDagNode& set, const std::string& name)
{
    engine::DagNode* node = api::dagNodeOf(set);
    return node ? node->findPlug(name) : engine::Outcome(engine::Reason::doesNotExist);
}

double readLimit(const MFnDagNode& set, const std::string& name, MStatus* returnStatus)
{
    const auto plug = limitPlug(set, name);
    const auto number = plug ? engine::readNumber(plug.value) : plug.outcome;
    api::give(returnStatus, api::toStatus(number.outcome));
    return number.value.asReal();
}

MStatus writeLimit(const MFnDagNode& set, const std::string& name, double value)
{
    const auto plug = limitPlug(set, name);
    return api::toStatus(plug ? engine::writeNumber(plug.value, value) : plug.outcome);
}

} // namespace

bool MFnTransform::isLimited(LimitType type, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnTransform::isLimited", ReturnStatus, false);
    return readLimit(*this, limitName(type) + "Enable", ReturnStatus) != 0.0;
}

double MFnTransform::limitValue(LimitType type, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnTransform::limitValue", ReturnStatus, 0.0);
    return readLimit(*this, limitName(type), ReturnStatus);
}

MStatus MFnTransform::setLimit(LimitType type, double value)
{
    TVX_API_CALL("MFnTransform::setLimit");
    return writeLimit(*this, limitName(type), value);
}

MStatus MFnTransform::enableLimit(LimitType type, bool flag)
{
    TVX_API_CALL("MFnTransform::enableLimit");
    return writeLimit(*this, limitName(type) + "Enable", flag ? 1.0 : 0.0);
}
