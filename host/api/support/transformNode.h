// The attributes of a transform node as the parts of a transformation.
#pragma once

#include "engine/node.h"
#include "transformation.h"

namespace tvxhost::api {

/// The attributes of a transform that hold one part each, three numbers.
namespace transformPart {
inline constexpr const char* kTranslate = "translate";
inline constexpr const char* kRotate = "rotate";
inline constexpr const char* kScale = "scale";
inline constexpr const char* kShear = "shear";
inline constexpr const char* kRotatePivot = "rotatePivot";
inline constexpr const char* kRotatePivotTranslate = "rotatePivotTranslate";
inline constexpr const char* kScalePivot = "scalePivot";
inline constexpr const char* kScalePivotTranslate = "scalePivotTranslate";
inline constexpr const char* kRotateAxis = "rotateAxis";
} // namespace transformPart

/// All parts, evaluated.
engine::Expected<Transformation> readTransformation(engine::Node& node);

/// One part, evaluated; centimetres and radians.
engine::Expected<MVector> readPart(engine::Node& node, const char* attribute);

engine::Expected<MEulerRotation::RotationOrder> readRotateOrder(engine::Node& node);
engine::Outcome writeRotateOrder(engine::Node& node, MEulerRotation::RotationOrder order);

/// The parts that differ, one after the other until one is refused.
engine::Outcome writeTransformation(engine::Node& node, const Transformation& parts);

} // namespace tvxhost::api
