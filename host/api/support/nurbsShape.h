// What the function sets of NURBS curves and surfaces do alike: read the shape of their node, and change it
// where no history makes it.
#pragma once

#include "functionSet.h"

#include "engine/geometry/curveNode.h"
#include "engine/geometry/surfaceNode.h"

namespace tvxhost::api {

/// How the nodes of a shape hold it.
template <class Shape>
struct NurbsNode;

template <>
struct NurbsNode<engine::NurbsCurve>
{
    static constexpr auto shapeOf = engine::curveOf;
    static constexpr auto store = engine::storeCurve;
    static constexpr auto hasHistory = engine::hasCurveHistory;
};

template <>
struct NurbsNode<engine::NurbsSurface>
{
    static constexpr auto shapeOf = engine::surfaceOf;
    static constexpr auto store = engine::storeSurface;
    static constexpr auto hasHistory = engine::hasSurfaceHistory;
};

inline MStatus badValue()
{
    return failure(MS::kInvalidParameter, StatusText::unexpectedFailure);
}

inline MStatus noElement()
{
    return failure(StatusText::noElementAtIndex);
}

/// Runs `use(shape)`, which returns a status.
template <class Shape, class Use>
MStatus withShape(const MFnBase& set, Use use)
{
    engine::Node* node = nodeOf(set);
    if (!node)
        return notAttached();
    const auto shape = NurbsNode<Shape>::shapeOf(*node);
    return shape ? use(*shape) : failure(MS::kInvalidParameter, StatusText::objectDoesNotExist);
}

/// What `read(shape)` gives; the value itself when there is no shape.
template <class Shape, class Value, class Read>
Value readShape(const MFnBase& set, MStatus* returnStatus, Value value, Read read)
{
    give(returnStatus, withShape<Shape>(set, [&](const Shape& shape) {
             value = read(shape);
             return MStatus();
         }));
    return value;
}

template <class Shape>
MStatus storeShape(engine::Node& node, const Shape& shape)
{
    return shape.isValid() ? toStatus(NurbsNode<Shape>::store(node, shape)) : badValue();
}

/// Has a shape changed, unless history makes it; `change` returns a status.
template <class Shape, class Change>
MStatus changeShape(const MFnBase& set, Change change)
{
    return withShape<Shape>(set, [&](const Shape& old) -> MStatus {
        engine::Node& node = *nodeOf(set);
        if (NurbsNode<Shape>::hasHistory(node))
            return failure(StatusText::unexpectedFailure);
        Shape shape = old;
        const MStatus changed = change(shape);
        return changed ? storeShape(node, shape) : changed;
    });
}

} // namespace tvxhost::api
