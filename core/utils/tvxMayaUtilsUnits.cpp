// The time, and lengths in the user's units.
#include "core/utils/tvxMayaUtils.h"

#include <maya/MAnimControl.h>
#include <maya/MDistance.h>
#include <maya/MTime.h>

namespace tarvox::crowd {

namespace {

/// Three lengths from one unit to another.
MVector convert(const MVector& lengths, MDistance::Unit from, MDistance::Unit to)
{
    MDistance length(0.0, from);
    const auto converted = [&](double value) {
        length.setValue(value);
        return length.as(to);
    };
    const double x = converted(lengths.x);
    const double y = converted(lengths.y);
    const double z = converted(lengths.z);
    return MVector(x, y, z);
}

} // namespace

float MayaUtils::getCurrentFrame()
{
    return static_cast<float>(MAnimControl::currentTime().as(MTime::uiUnit()));
}

double MayaUtils::getCurrentTimeInSeconds()
{
    return MAnimControl::currentTime().as(MTime::kSeconds);
}

double MayaUtils::getFrameDuration()
{
    // A unit of two frames per second lasts half a second.
    return MTime(1.0, MTime::uiUnit()).as(MTime::k2FPS) * 0.5;
}

float MayaUtils::getUIUnitScale()
{
    const MDistance::Unit unit = MDistance::uiUnit();
    if (unit == MDistance::kCentimeters)
        return 1.0f;
    return static_cast<float>(MDistance(1.0, MDistance::kCentimeters).as(unit));
}

MVector MayaUtils::internalToUIUnits(const MVector& lengths)
{
    const MDistance::Unit unit = MDistance::uiUnit();
    return unit == MDistance::kCentimeters ? lengths : convert(lengths, MDistance::kCentimeters, unit);
}

MVector MayaUtils::uiToInternalUnits(const MVector& lengths)
{
    const MDistance::Unit unit = MDistance::uiUnit();
    return unit == MDistance::kCentimeters ? lengths : convert(lengths, unit, MDistance::kCentimeters);
}

} // namespace tarvox::crowd
