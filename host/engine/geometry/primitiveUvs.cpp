// Texture coordinates of primitives: see primitiveUvs.h.
#include "primitiveUvs.h"

#include <algorithm>

namespace tvxhost::engine {

namespace {

/// `count` steps from a place on, each added to the last: sums as they are in files.
std::vector<float> stepsFrom(float begin, float step, int count)
{
    std::vector<float> steps{begin};
    for (int i = 0; i < count; ++i)
        steps.push_back(steps.back() + step);
    return steps;
}

/// The corners of a quad between two rows of a grid, the lower left one first.
void useQuad(UvSet& set, std::int32_t lowerLeft, std::int32_t upperLeft)
{
    set.used.insert(set.used.end(), {lowerLeft, lowerLeft + 1, upperLeft + 1, upperLeft});
}

/// All quads of a grid of texture coordinates.
void useGrid(UvSet& set, int columns, int rows)
{
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column)
            useQuad(set, row * (columns + 1) + column, (row + 1) * (columns + 1) + column);
}

/// The cross of a cube. Each side has a grid of its own but for the column where it meets the front.
class Cross
{
public:
    Cross(UvSet& set, const CubeShape& shape)
        : m_set(set), m_columns(std::max(1, shape.columns)), m_rows(std::max(1, shape.rows)),
          m_slices(std::max(1, shape.slices))
    {
        const double size = std::max(shape.width, 2 * shape.height) + 2 * shape.depth;
        m_width = shape.width / size;
        m_height = shape.height / size;
        m_depth = shape.depth / size;
    }

    void lay()
    {
        const std::vector<float> heights = beltHeights();
        const auto left = static_cast<float>(0.5 - m_width / 2);
        for (const float v : heights)
            for (const float u : stepsFrom(left, static_cast<float>(m_width / m_columns), m_columns))
                m_set.values.emplace_back(u, v);
        useGrid(m_set, m_columns, beltRows());
        const auto step = static_cast<float>(m_depth / m_slices);
        laySide(static_cast<float>(0.5 + m_width / 2 + m_depth), -step, heights, m_columns);
        laySide(static_cast<float>(0.5 - m_width / 2 - m_depth), step, heights, 0);
    }

private:
    int beltRows() const { return 2 * (m_rows + m_slices); }

    /// The rows of the belt: the front upwards, the top, the back, the bottom.
    std::vector<float> beltHeights() const
    {
        std::vector<float> heights{0};
        for (int part = 0; part < 4; ++part) {
            const bool isUpright = part % 2 == 0;
            const int rows = isUpright ? m_rows : m_slices;
            const double step = (isUpright ? m_height : m_depth) / rows;
            for (int row = 0; row < rows; ++row)
                heights.push_back(heights.back() + static_cast<float>(step));
        }
        return heights;
    }

    /// Row by row from the back of the cube to its front, where a column of the belt goes on.
    void laySide(float back, float step, const std::vector<float>& heights, int beltColumn)
    {
        const auto first = static_cast<std::int32_t>(m_set.values.size());
        for (int row = 0; row <= m_rows; ++row)
            for (const float u : stepsFrom(back, step, m_slices - 1))
                m_set.values.emplace_back(u, heights[static_cast<std::size_t>(row)]);
        const auto at = [&](int row, int column) {
            return column == m_slices ? row * (m_columns + 1) + beltColumn : first + row * m_slices + column;
        };
        for (int row = 0; row < m_rows; ++row)
            for (int column = 0; column < m_slices; ++column) {
                const std::int32_t back0 = at(row, column), front0 = at(row, column + 1);
                const std::int32_t back1 = at(row + 1, column), front1 = at(row + 1, column + 1);
                if (beltColumn == 0)
                    m_set.used.insert(m_set.used.end(), {back0, front0, front1, back1});
                else
                    m_set.used.insert(m_set.used.end(), {front0, back0, back1, front1});
            }
    }

    UvSet& m_set;
    const int m_columns;
    const int m_rows;
    const int m_slices;
    double m_width, m_height, m_depth; ///< in the texture
};

} // namespace

void mapPlane(MeshData& mesh, const PlaneShape& shape)
{
    const int columns = std::max(1, shape.columns), rows = std::max(1, shape.rows);
    const double size = std::max(shape.width, shape.height);
    const auto across = static_cast<float>(shape.width / size / columns);
    const auto up = static_cast<float>(shape.height / size / rows);
    UvSet& set = mesh.uvSets.front();
    for (int row = 0; row <= rows; ++row)
        for (int column = 0; column <= columns; ++column)
            set.values.emplace_back(static_cast<float>(column) * across, static_cast<float>(row) * up);
    useGrid(set, columns, rows);
}

void mapCube(MeshData& mesh, const CubeShape& shape)
{
    if (shape.width <= 2 * shape.height)
        Cross(mesh.uvSets.front(), shape).lay();
}

void mapSphere(MeshData& mesh, const SphereShape& shape)
{
    const int sides = std::max(kLeastSides, shape.sides), rows = std::max(kLeastSphereRows, shape.rows);
    const float across = 1.0F / static_cast<float>(sides);
    const std::vector<float> lengths = stepsFrom(0, across, sides);
    const std::vector<float> heights = stepsFrom(0, 1.0F / static_cast<float>(rows), rows);
    UvSet& set = mesh.uvSets.front();
    for (int row = 1; row < rows; ++row)
        for (const float u : lengths)
            set.values.emplace_back(u, heights[static_cast<std::size_t>(row)]);
    useGrid(set, sides, rows - 2);
    const auto firstPole = static_cast<std::int32_t>(set.values.size());
    for (const float v : {0.0F, 1.0F})
        for (int side = 0; side < sides; ++side)
            set.values.emplace_back(static_cast<float>((side + 0.5) * static_cast<double>(across)), v);
    for (std::int32_t side = 0; side < sides; ++side)
        set.used.insert(set.used.end(), {side + 1, side, firstPole + side});
    const std::int32_t top = (rows - 2) * (sides + 1);
    for (std::int32_t side = 0; side < sides; ++side)
        set.used.insert(set.used.end(), {top + side, top + side + 1, firstPole + sides + side});
}

} // namespace tvxhost::engine
