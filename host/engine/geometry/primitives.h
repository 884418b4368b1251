// Primitives: planes, cubes and bodies of revolution as meshes, numbered as Maya numbers them.
#pragma once

#include "meshData.h"

namespace tvxhost::engine {

/// The least that makes a body.
inline constexpr int kLeastSides = 3;
inline constexpr int kLeastSphereRows = 3;

// All stand around the origin with the y axis as theirs; lengths in centimetres. Numbers of subdivisions are
// raised to these.

/// In the ground plane, facing up; vertices row by row from the front (+z).
struct PlaneShape
{
    double width = 1, height = 1;
    int columns = 10, rows = 10;
};
Ref<MeshData> makePlane(const PlaneShape& shape);

/// Front, top, back and bottom are one belt of rows; the insides of the right and left sides follow.
struct CubeShape
{
    double width = 1, height = 1, depth = 1;
    int columns = 1, rows = 1, slices = 1; ///< along the width, height and depth
};
Ref<MeshData> makeCube(const CubeShape& shape);

/// Rings from the bottom, then the two poles.
struct SphereShape
{
    double radius = 1;
    int sides = 20, rows = 20;
};
Ref<MeshData> makeSphere(const SphereShape& shape);

/// Rings from the middle of the bottom to the middle of the top, then the two middles. Without rings in the
/// caps each of them is one polygon and has no middle.
struct CylinderShape
{
    double radius = 1, height = 2;
    int sides = 20, rows = 1, capRings = 0;
};
Ref<MeshData> makeCylinder(const CylinderShape& shape);

/// As the cylinder, the top being a point.
struct ConeShape
{
    double radius = 1, height = 2;
    int sides = 20, rows = 1, capRings = 0;
};
Ref<MeshData> makeCone(const ConeShape& shape);

/// Rings around the axis, the innermost first, then over the top.
struct TorusShape
{
    double radius = 1, sectionRadius = 0.5; ///< of the ring's middle, and of its section
    double twist = 0;                       ///< of the section, radians
    int sides = 20, sections = 20;          ///< around the axis, and around the section
};
Ref<MeshData> makeTorus(const TorusShape& shape);

/// Turns a mesh so that what was along the y axis is along another; nothing happens for a zero axis.
void turnToAxis(MeshData& mesh, const Vec3d& axis);

} // namespace tvxhost::engine
