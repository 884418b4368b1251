// Primitives: see primitives.h. Cubes are in cube.cpp.
#include "primitives.h"

#include "lathe.h"

#include <Imath/ImathQuat.h>

#include <algorithm>
#include <cmath>

namespace tvxhost::engine {

namespace {

constexpr double kPi = 3.14159265358979323846;

/// A grid of vertices; each has an edge to the next one of its row, then one to the next row.
class Plane
{
public:
    explicit Plane(const PlaneShape& shape)
        : m_shape(shape), m_columns(std::max(1, shape.columns)), m_rows(std::max(1, shape.rows)),
          m_mesh(new MeshData)
    {
    }

    Ref<MeshData> make()
    {
        for (int row = 0; row <= m_rows; ++row)
            for (int column = 0; column <= m_columns; ++column)
                addVertex(row, column);
        for (int row = 0; row < m_rows; ++row)
            for (int column = 0; column < m_columns; ++column)
                m_mesh->faces.add({{acrossEdge(row, column), downEdge(row, column + 1),
                                    -acrossEdge(row + 1, column) - 1, -downEdge(row, column) - 1},
                                   {}});
        return m_mesh;
    }

private:
    int vertex(int row, int column) const { return row * (m_columns + 1) + column; }
    int firstEdge(int row) const { return row * (2 * m_columns + 1); }
    int acrossEdge(int row, int column) const
    {
        return firstEdge(row) + (row == m_rows ? column : 2 * column);
    }
    int downEdge(int row, int column) const
    {
        return firstEdge(row) + (column == m_columns ? 2 * column : 2 * column + 1);
    }

    void addVertex(int row, int column)
    {
        const double x = m_shape.width * (static_cast<double>(column) / m_columns - 0.5);
        const double z = m_shape.height * (0.5 - static_cast<double>(row) / m_rows);
        m_mesh->points.emplace_back(static_cast<float>(x), 0.0F, static_cast<float>(z));
        const bool isOnRow = row == 0 || row == m_rows;
        const bool isOnColumn = column == 0 || column == m_columns;
        if (column < m_columns)
            m_mesh->edges.push_back({vertex(row, column), vertex(row, column + 1), isOnRow ? 0 : 1});
        if (row < m_rows)
            m_mesh->edges.push_back({vertex(row, column), vertex(row + 1, column), isOnColumn ? 0 : 1});
    }

    const PlaneShape& m_shape;
    const int m_columns;
    const int m_rows;
    Ref<MeshData> m_mesh;
};

/// The rings inside a cap, from its middle outwards.
std::vector<LatheRing> capRings(double radius, double y, int count)
{
    std::vector<LatheRing> rings;
    for (int i = 1; i < count; ++i)
        rings.push_back({radius * i / count, y, false});
    return rings;
}

} // namespace

Ref<MeshData> makePlane(const PlaneShape& shape)
{
    return Plane(shape).make();
}

Ref<MeshData> makeSphere(const SphereShape& shape)
{
    const int rows = std::max(kLeastSphereRows, shape.rows);
    LatheProfile profile;
    profile.sides = std::max(kLeastSides, shape.sides);
    for (int row = 1; row < rows; ++row) {
        const double latitude = kPi * (static_cast<double>(row) / rows - 0.5);
        profile.rings.push_back({shape.radius * std::cos(latitude), shape.radius * std::sin(latitude)});
    }
    profile.bottomPole = -shape.radius;
    profile.topPole = shape.radius;
    return turnOnLathe(profile);
}

Ref<MeshData> makeCylinder(const CylinderShape& shape)
{
    const int rows = std::max(1, shape.rows);
    const double top = shape.height / 2;
    LatheProfile profile;
    profile.sides = std::max(kLeastSides, shape.sides);
    profile.rings = capRings(shape.radius, -top, shape.capRings);
    for (int row = 0; row <= rows; ++row)
        profile.rings.push_back({shape.radius, shape.height * row / rows - top, row == 0 || row == rows});
    const std::vector<LatheRing> inTop = capRings(shape.radius, top, shape.capRings);
    profile.rings.insert(profile.rings.end(), inTop.rbegin(), inTop.rend());
    if (shape.capRings > 0) {
        profile.bottomPole = -top;
        profile.topPole = top;
    }
    return turnOnLathe(profile);
}

Ref<MeshData> makeCone(const ConeShape& shape)
{
    const int rows = std::max(1, shape.rows);
    const double top = shape.height / 2;
    LatheProfile profile;
    profile.sides = std::max(kLeastSides, shape.sides);
    profile.rings = capRings(shape.radius, -top, shape.capRings);
    for (int row = 0; row < rows; ++row)
        profile.rings.push_back(
            {shape.radius * (rows - row) / rows, shape.height * row / rows - top, row == 0});
    if (shape.capRings > 0)
        profile.bottomPole = -top;
    profile.topPole = top;
    return turnOnLathe(profile);
}

Ref<MeshData> makeTorus(const TorusShape& shape)
{
    const int sections = std::max(kLeastSides, shape.sections);
    LatheProfile profile;
    profile.sides = std::max(kLeastSides, shape.sides);
    profile.isClosed = true;
    for (int i = 0; i < sections; ++i) {
        const double angle = kPi - 2.0 * kPi * i / sections - shape.twist;
        profile.rings.push_back(
            {shape.radius + shape.sectionRadius * std::cos(angle), shape.sectionRadius * std::sin(angle)});
    }
    return turnOnLathe(profile);
}

void turnToAxis(MeshData& mesh, const Vec3d& axis)
{
    const Vec3d up(0, 1, 0);
    if (axis.length2() == 0.0 || axis.normalized() == up)
        return;
    Imath::Quatd turn;
    turn.setRotation(up, axis.normalized());
    const Matrix matrix = turn.toMatrix44();
    for (Vec3f& point : mesh.points)
        point = Vec3f(Vec3d(point) * matrix);
}

} // namespace tvxhost::engine
