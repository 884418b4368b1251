// The attributes of a transform node as the parts of a transformation.
#include "transformNode.h"

namespace tvxhost::api {

namespace {

using engine::Expected;
using engine::Node;
using engine::Outcome;
using engine::Plug;
using engine::Reason;

struct VectorPart
{
    const char* attribute;
    MVector Transformation::*part;
};

constexpr VectorPart kVectorParts[] = {
    {transformPart::kTranslate, &Transformation::translation},
    {transformPart::kScale, &Transformation::scale},
    {transformPart::kShear, &Transformation::shear},
    {transformPart::kRotatePivot, &Transformation::rotatePivot},
    {transformPart::kRotatePivotTranslate, &Transformation::rotatePivotTranslation},
    {transformPart::kScalePivot, &Transformation::scalePivot},
    {transformPart::kScalePivotTranslate, &Transformation::scalePivotTranslation},
};

/// The rotation of the axes is kept as three angles in the order xyz.
MVector axisAngles(const MQuaternion& orientation)
{
    return orientation.asEulerRotation().asVector();
}

/// Writes the components that differ, all of them or none: a locked one that stays as it is refuses nothing.
Outcome writeChanged(Node& node, const char* attribute, const MVector& before, const MVector& after)
{
    if (before == after)
        return {};
    const Expected<Plug> plug = node.findPlug(attribute);
    if (!plug)
        return plug.outcome;
    for (unsigned axis = 0; axis < 3; ++axis) {
        if (before[axis] == after[axis])
            continue;
        const Outcome written = engine::writeNumber(plug.value.child(axis), engine::Number(after[axis]));
        if (written)
            continue;
        for (unsigned done = 0; done < axis; ++done)
            if (before[done] != after[done])
                static_cast<void>(engine::writeNumber(plug.value.child(done), engine::Number(before[done])));
        return written;
    }
    return {};
}

} // namespace

Expected<MVector> readPart(Node& node, const char* attribute)
{
    const Expected<Plug> plug = node.findPlug(attribute);
    if (!plug)
        return plug.outcome;
    const auto numbers = engine::readNumbers(plug.value);
    if (!numbers)
        return numbers.outcome;
    if (numbers.value.size() != 3)
        return Outcome(Reason::wrongKind);
    return MVector(numbers.value.data());
}

Expected<MEulerRotation::RotationOrder> readRotateOrder(Node& node)
{
    const Expected<Plug> plug = node.findPlug("rotateOrder");
    if (!plug)
        return plug.outcome;
    const auto number = engine::readNumber(plug.value);
    if (!number)
        return number.outcome;
    const auto order = number.value.asWhole();
    if (order < MEulerRotation::kXYZ || order > MEulerRotation::kZYX)
        return Outcome(Reason::badIndex);
    return static_cast<MEulerRotation::RotationOrder>(order);
}

Outcome writeRotateOrder(Node& node, MEulerRotation::RotationOrder order)
{
    const Expected<Plug> plug = node.findPlug("rotateOrder");
    return plug ? engine::writeNumber(plug.value, engine::Number(static_cast<std::int64_t>(order)))
                : plug.outcome;
}

Expected<Transformation> readTransformation(Node& node)
{
    Transformation parts;
    for (const VectorPart& each : kVectorParts) {
        const auto value = readPart(node, each.attribute);
        if (!value)
            return value.outcome;
        parts.*each.part = value.value;
    }
    const auto angles = readPart(node, transformPart::kRotate);
    const auto axes = readPart(node, transformPart::kRotateAxis);
    const auto order = readRotateOrder(node);
    for (const Outcome* outcome : {&angles.outcome, &axes.outcome, &order.outcome})
        if (!*outcome)
            return *outcome;
    parts.rotation = MEulerRotation(angles.value, order.value);
    parts.orientation = MEulerRotation(axes.value).asQuaternion();
    return parts;
}

Outcome writeTransformation(Node& node, const Transformation& parts)
{
    const auto before = readTransformation(node);
    if (!before)
        return before.outcome;
    for (const VectorPart& each : kVectorParts)
        if (auto outcome = writeChanged(node, each.attribute, before.value.*each.part, parts.*each.part);
            !outcome)
            return outcome;
    if (before.value.rotation.order != parts.rotation.order)
        if (auto outcome = writeRotateOrder(node, parts.rotation.order); !outcome)
            return outcome;
    if (auto outcome = writeChanged(node, transformPart::kRotate, before.value.rotation.asVector(),
                                    parts.rotation.asVector());
        !outcome)
        return outcome;
    return writeChanged(node, transformPart::kRotateAxis, axisAngles(before.value.orientation),
                        axisAngles(parts.orientation));
}

} // namespace tvxhost::api
