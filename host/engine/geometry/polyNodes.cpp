// Nodes of construction history that make polygons: see polyNodes.h.
#include "polyNodes.h"

#include "../scene.h"
#include "../values.h"
#include "primitiveUvs.h"

#include <algorithm>

namespace tvxhost::engine {

namespace {

/// More vertices than this are a slip of somebody's hand.
constexpr double kMostVertices = 1e8;

double number(Node& node, const char* name)
{
    return readNumber(Plug(node, *node.findAttribute(name))).value.asReal();
}

int count(Node& node, const char* name)
{
    return static_cast<int>(readNumber(Plug(node, *node.findAttribute(name))).value.asWhole());
}

/// The values of `createUVs` whose layout is known. With others there are no texture coordinates, nor on
/// cylinders, cones and tori.
enum TextureLayout
{
    kPlaneProportions = 2,
    kCubeProportions = 4,
    kSphereSawtooth = 2
};

bool isMapped(Node& node, TextureLayout layout)
{
    return count(node, "createUVs") == layout;
}

Ref<MeshData> makePlaneOf(Node& node)
{
    const PlaneShape shape{number(node, "width"), number(node, "height"), count(node, "subdivisionsWidth"),
                           count(node, "subdivisionsHeight")};
    const Ref<MeshData> mesh = makePlane(shape);
    if (isMapped(node, kPlaneProportions))
        mapPlane(*mesh, shape);
    return mesh;
}

Ref<MeshData> makeCubeOf(Node& node)
{
    const CubeShape shape{number(node, "width"),
                          number(node, "height"),
                          number(node, "depth"),
                          count(node, "subdivisionsWidth"),
                          count(node, "subdivisionsHeight"),
                          count(node, "subdivisionsDepth")};
    const Ref<MeshData> mesh = makeCube(shape);
    if (isMapped(node, kCubeProportions))
        mapCube(*mesh, shape);
    return mesh;
}

Ref<MeshData> makeSphereOf(Node& node)
{
    const SphereShape shape{number(node, "radius"), count(node, "subdivisionsAxis"),
                            count(node, "subdivisionsHeight")};
    const Ref<MeshData> mesh = makeSphere(shape);
    if (isMapped(node, kSphereSawtooth))
        mapSphere(*mesh, shape);
    return mesh;
}

Ref<MeshData> makeCylinderOf(Node& node)
{
    return makeCylinder({number(node, "radius"), number(node, "height"), count(node, "subdivisionsAxis"),
                         count(node, "subdivisionsHeight"), count(node, "subdivisionsCaps")});
}

Ref<MeshData> makeConeOf(Node& node)
{
    return makeCone({number(node, "radius"), number(node, "height"), count(node, "subdivisionsAxis"),
                     count(node, "subdivisionsHeight"), count(node, "subdivisionsCap")});
}

Ref<MeshData> makeTorusOf(Node& node)
{
    return makeTorus({number(node, "radius"), number(node, "sectionRadius"), number(node, "twist"),
                      count(node, "subdivisionsAxis"), count(node, "subdivisionsHeight")});
}

/// A primitive's type, the attributes that its vertices are counted by, and its maker.
struct PrimitiveRow
{
    const char* type;
    std::vector<const char*> subdivisions;
    Ref<MeshData> (*make)(Node& node);
};

const std::vector<PrimitiveRow>& primitiveRows()
{
    static const std::vector<PrimitiveRow> rows = {
        {"polyPlane", {"subdivisionsWidth", "subdivisionsHeight"}, makePlaneOf},
        {"polyCube", {"subdivisionsWidth", "subdivisionsHeight", "subdivisionsDepth"}, makeCubeOf},
        {"polySphere", {"subdivisionsAxis", "subdivisionsHeight"}, makeSphereOf},
        {"polyCylinder", {"subdivisionsAxis", "subdivisionsHeight", "subdivisionsCaps"}, makeCylinderOf},
        {"polyCone", {"subdivisionsAxis", "subdivisionsHeight", "subdivisionsCap"}, makeConeOf},
        {"polyTorus", {"subdivisionsAxis", "subdivisionsHeight"}, makeTorusOf},
    };
    return rows;
}

bool isTooLarge(Node& node, const PrimitiveRow& row)
{
    double vertices = 1;
    for (const char* name : row.subdivisions)
        vertices *= std::max(1, count(node, name));
    return vertices > kMostVertices;
}

bool hasRoundCap(Node& node)
{
    Attribute* attribute = node.findAttribute("roundCap");
    return attribute && readNumber(Plug(node, *attribute)).value.asWhole() != 0;
}

Vec3d axisOf(Node& node)
{
    return {number(node, "axisX"), number(node, "axisY"), number(node, "axisZ")};
}

Computed computePrimitive(Node& node, const Plug& plug, const PrimitiveRow& row)
{
    if (plug.attribute()->longName != "output")
        return Computed::unknown;
    if (hasRoundCap(node)) {
        node.scene().scriptEditor().notImplemented("round caps of a " + node.type().name);
        return Computed::failed;
    }
    if (isTooLarge(node, row))
        return Computed::failed;
    const Ref<MeshData> mesh = row.make(node);
    turnToAxis(*mesh, axisOf(node));
    keepData(plug, mesh);
    setClean(plug);
    return Computed::done;
}

} // namespace

void addPolyComputes(TypeTable& types)
{
    for (const PrimitiveRow& row : primitiveRows())
        types.find(row.type)->compute = [&row](Node& node, const Plug& plug) {
            return computePrimitive(node, plug, row);
        };
}

} // namespace tvxhost::engine
