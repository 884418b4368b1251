// Points of Maya on the core library's ground.
#pragma once

#include <tvxCore/Vector2.h>

#include <maya/MPoint.h>

namespace tarvox::crowd {

/// The ground point (-x, z) of a point.
inline core::Vector2<float> groundPoint(const MPoint& point)
{
    return {static_cast<float>(-point.x), static_cast<float>(point.z)};
}

} // namespace tarvox::crowd
