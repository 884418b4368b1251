// Cubes: a belt of rows around the x axis, and its two sides.
#include "primitives.h"

#include <algorithm>

namespace tvxhost::engine {

namespace {

/// A row of the belt: where it is, and whether it lies on an edge of the box.
struct BeltRow
{
    double y = 0, z = 0;
    bool isHard = false;
};

class Cube
{
public:
    explicit Cube(const CubeShape& shape)
        : m_shape(shape), m_columns(std::max(1, shape.columns)), m_rows(std::max(1, shape.rows)),
          m_slices(std::max(1, shape.slices)), m_beltRows(2 * (m_rows + m_slices)), m_mesh(new MeshData)
    {
    }

    Ref<MeshData> make()
    {
        addBelt();
        for (const int column : {m_columns, 0})
            addSide(column);
        for (const int column : {m_columns, 0})
            addSidePoints(column);
        return m_mesh;
    }

private:
    double at(double length, int i, int count) const
    {
        return length * (static_cast<double>(i) / count - 0.5);
    }

    /// Up the front, back over the top, down the back, and forth below.
    BeltRow beltRow(int row) const
    {
        const double top = m_shape.height / 2, front = m_shape.depth / 2;
        if (row <= m_rows)
            return {at(m_shape.height, row, m_rows), front, row == 0 || row == m_rows};
        row -= m_rows;
        if (row <= m_slices)
            return {top, -at(m_shape.depth, row, m_slices), row == m_slices};
        row -= m_slices;
        if (row <= m_rows)
            return {-at(m_shape.height, row, m_rows), -front, row == m_rows};
        return {-top, at(m_shape.depth, row - m_rows, m_slices), false};
    }

    int beltVertex(int row, int column) const { return row % m_beltRows * (m_columns + 1) + column; }
    int acrossEdge(int row, int column) const { return row % m_beltRows * m_columns + column; }
    int alongEdge(int row, int column) const
    {
        return m_beltRows * m_columns + row % m_beltRows * (m_columns + 1) + column;
    }

    void addPoint(double x, double y, double z)
    {
        m_mesh->points.emplace_back(static_cast<float>(x), static_cast<float>(y), static_cast<float>(z));
    }
    void addEdge(int from, int to, bool isHard) { m_mesh->edges.push_back({from, to, isHard ? 0 : 1}); }

    void addBelt()
    {
        for (int row = 0; row < m_beltRows; ++row)
            for (int column = 0; column <= m_columns; ++column)
                addPoint(at(m_shape.width, column, m_columns), beltRow(row).y, beltRow(row).z);
        for (int row = 0; row < m_beltRows; ++row)
            for (int column = 0; column < m_columns; ++column)
                addEdge(beltVertex(row, column), beltVertex(row, column + 1), beltRow(row).isHard);
        for (int row = 0; row < m_beltRows; ++row)
            for (int column = 0; column <= m_columns; ++column)
                addEdge(beltVertex(row, column), beltVertex(row + 1, column),
                        column == 0 || column == m_columns);
        for (int row = 0; row < m_beltRows; ++row)
            for (int column = 0; column < m_columns; ++column)
                m_mesh->faces.add({{acrossEdge(row, column), alongEdge(row, column + 1),
                                    -acrossEdge(row + 1, column) - 1, -alongEdge(row, column) - 1},
                                   {}});
    }

    // A side is a grid: rows from the bottom, columns from the back. What is on its rim belongs to the belt.

    /// The belt's row at a place on the rim of a side.
    int rimRow(int row, int column) const
    {
        if (column == m_slices)
            return row;
        if (row == m_rows)
            return m_rows + m_slices - column;
        if (column == 0)
            return m_rows + m_slices + m_rows - row;
        return m_rows + m_slices + m_rows + column;
    }
    bool isOnRim(int row, int column) const
    {
        return row == 0 || row == m_rows || column == 0 || column == m_slices;
    }
    int sideVertex(int side, int row, int column) const
    {
        if (isOnRim(row, column))
            return beltVertex(rimRow(row, column), side);
        const int inner = (m_rows - 1) * (m_slices - 1);
        const int before = m_beltRows * (m_columns + 1) + (side == 0 ? inner : 0);
        return before + (row - 1) * (m_slices - 1) + column - 1;
    }

    /// The corner that goes along the belt from one place on the rim to the next.
    int rimCorner(int side, int from, int to) const
    {
        const bool isForward = (from + 1) % m_beltRows == to % m_beltRows;
        return isForward ? alongEdge(from, side) : -alongEdge(to, side) - 1;
    }
    /// The corner from back to front in a row of a side.
    int forthCorner(int side, int row, int column) const
    {
        if (row == 0 || row == m_rows)
            return rimCorner(side, rimRow(row, column), rimRow(row, column + 1));
        return firstSideEdge(side) + (row - 1) * m_slices + column;
    }
    /// The corner upwards in a column of a side.
    int upCorner(int side, int row, int column) const
    {
        if (column == 0 || column == m_slices)
            return rimCorner(side, rimRow(row, column), rimRow(row + 1, column));
        return firstSideEdge(side) + (m_rows - 1) * m_slices + row * (m_slices - 1) + column - 1;
    }
    int firstSideEdge(int side) const
    {
        const int inner = (m_rows - 1) * m_slices + m_rows * (m_slices - 1);
        return m_beltRows * (2 * m_columns + 1) + (side == 0 ? inner : 0);
    }
    static int reversed(int corner) { return -corner - 1; }

    void addSide(int side)
    {
        for (int row = 1; row < m_rows; ++row)
            for (int column = 0; column < m_slices; ++column)
                addEdge(sideVertex(side, row, column), sideVertex(side, row, column + 1), false);
        for (int row = 0; row < m_rows; ++row)
            for (int column = 1; column < m_slices; ++column)
                addEdge(sideVertex(side, row, column), sideVertex(side, row + 1, column), false);
        for (int row = 0; row < m_rows; ++row)
            for (int column = 0; column < m_slices; ++column)
                addSideFace(side, row, column);
    }

    /// The right side and the left one look opposite ways.
    void addSideFace(int side, int row, int column)
    {
        const int below = forthCorner(side, row, column), above = forthCorner(side, row + 1, column);
        const int back = upCorner(side, row, column), front = upCorner(side, row, column + 1);
        if (side == 0)
            m_mesh->faces.add({{below, front, reversed(above), reversed(back)}, {}});
        else
            m_mesh->faces.add({{reversed(below), back, above, reversed(front)}, {}});
    }

    void addSidePoints(int side)
    {
        for (int row = 1; row < m_rows; ++row)
            for (int column = 1; column < m_slices; ++column)
                addPoint(at(m_shape.width, side, m_columns), at(m_shape.height, row, m_rows),
                         at(m_shape.depth, column, m_slices));
    }

    const CubeShape& m_shape;
    const int m_columns;
    const int m_rows;
    const int m_slices;
    const int m_beltRows;
    Ref<MeshData> m_mesh;
};

} // namespace

Ref<MeshData> makeCube(const CubeShape& shape)
{
    return Cube(shape).make();
}

} // namespace tvxhost::engine
