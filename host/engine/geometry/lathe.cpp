// Lathe: see lathe.h.
#include "lathe.h"

#include <cmath>

namespace tvxhost::engine {

namespace {

constexpr double kTurn = 2.0 * 3.14159265358979323846;
constexpr std::int32_t kSmooth = 1;

std::int32_t reversed(std::int32_t edge)
{
    return -edge - 1;
}

class Lathe
{
public:
    explicit Lathe(const LatheProfile& profile)
        : m_profile(profile), m_sides(profile.sides),
          m_ringCount(static_cast<std::int32_t>(profile.rings.size())),
          m_gaps(profile.isClosed ? m_ringCount : m_ringCount - 1), m_mesh(new MeshData)
    {
    }

    Ref<MeshData> turn()
    {
        addPoints();
        addEdges();
        addFaces();
        return m_mesh;
    }

private:
    // Numbers of vertices and edges
    std::int32_t next(std::int32_t side) const { return side + 1 == m_sides ? 0 : side + 1; }
    std::int32_t ringAbove(std::int32_t ring) const { return ring + 1 == m_ringCount ? 0 : ring + 1; }
    std::int32_t vertex(std::int32_t ring, std::int32_t side) const { return ring * m_sides + side; }
    std::int32_t ringEdge(std::int32_t ring, std::int32_t side) const { return ring * m_sides + side; }
    std::int32_t upEdge(std::int32_t ring, std::int32_t side) const
    {
        return (m_ringCount + ring) * m_sides + side;
    }
    std::int32_t bottomEdge(std::int32_t side) const { return (m_ringCount + m_gaps) * m_sides + side; }
    std::int32_t topEdge(std::int32_t side) const
    {
        return bottomEdge(side) + (m_profile.bottomPole ? m_sides : 0);
    }
    std::int32_t bottomPole() const { return m_ringCount * m_sides; }
    std::int32_t topPole() const { return bottomPole() + (m_profile.bottomPole ? 1 : 0); }

    void addPoints()
    {
        for (const LatheRing& ring : m_profile.rings)
            for (std::int32_t side = 0; side < m_sides; ++side) {
                const double angle = kTurn * (side + 1) / m_sides;
                addPoint(ring.radius * std::cos(angle), ring.y, -ring.radius * std::sin(angle));
            }
        for (const std::optional<double>& pole : {m_profile.bottomPole, m_profile.topPole})
            if (pole)
                addPoint(0, *pole, 0);
    }
    void addPoint(double x, double y, double z)
    {
        m_mesh->points.emplace_back(static_cast<float>(x), static_cast<float>(y), static_cast<float>(z));
    }

    template <class Use>
    void forEachSide(const Use& use) const
    {
        for (std::int32_t side = 0; side < m_sides; ++side)
            use(side);
    }
    template <class Use>
    void forEachSideOf(std::int32_t rings, const Use& use) const
    {
        for (std::int32_t ring = 0; ring < rings; ++ring)
            forEachSide([&](std::int32_t side) { use(ring, side); });
    }

    void addEdges()
    {
        forEachSideOf(m_ringCount, [this](std::int32_t ring, std::int32_t side) {
            const bool isHard = m_profile.rings[static_cast<std::size_t>(ring)].isHard;
            m_mesh->edges.push_back({vertex(ring, side), vertex(ring, next(side)), isHard ? 0 : kSmooth});
        });
        forEachSideOf(m_gaps, [this](std::int32_t ring, std::int32_t side) {
            m_mesh->edges.push_back({vertex(ring, side), vertex(ringAbove(ring), side), kSmooth});
        });
        if (m_profile.bottomPole)
            forEachSide([this](std::int32_t side) {
                m_mesh->edges.push_back({bottomPole(), vertex(0, side), kSmooth});
            });
        if (m_profile.topPole)
            forEachSide([this](std::int32_t side) {
                m_mesh->edges.push_back({vertex(m_ringCount - 1, side), topPole(), kSmooth});
            });
    }

    void addFace(const std::vector<std::int32_t>& corners) { m_mesh->faces.add({corners, {}}); }

    void addFaces()
    {
        forEachSideOf(m_gaps, [this](std::int32_t ring, std::int32_t side) { addQuad(ring, side); });
        if (m_profile.isClosed)
            return;
        addBottom();
        addTop();
    }

    void addQuad(std::int32_t ring, std::int32_t side)
    {
        const std::int32_t below = ringEdge(ring, side);
        const std::int32_t above = ringEdge(ringAbove(ring), side);
        const std::int32_t left = upEdge(ring, side);
        const std::int32_t right = upEdge(ring, next(side));
        // A closed profile runs the other way around its section: the faces turn to look outwards.
        if (m_profile.isClosed)
            addFace({reversed(below), left, above, reversed(right)});
        else
            addFace({below, right, reversed(above), reversed(left)});
    }

    void addBottom()
    {
        if (m_profile.bottomPole) {
            forEachSide([this](std::int32_t side) {
                addFace({reversed(ringEdge(0, side)), reversed(bottomEdge(side)), bottomEdge(next(side))});
            });
            return;
        }
        std::vector<std::int32_t> corners;
        for (std::int32_t side = m_sides; side > 0; --side)
            corners.push_back(reversed(ringEdge(0, side - 1)));
        addFace(corners);
    }

    void addTop()
    {
        const std::int32_t last = m_ringCount - 1;
        if (m_profile.topPole) {
            forEachSide([this, last](std::int32_t side) {
                addFace({ringEdge(last, side), topEdge(next(side)), reversed(topEdge(side))});
            });
            return;
        }
        std::vector<std::int32_t> corners;
        forEachSide([&](std::int32_t side) { corners.push_back(ringEdge(last, side)); });
        addFace(corners);
    }

    const LatheProfile& m_profile;
    const std::int32_t m_sides;
    const std::int32_t m_ringCount;
    const std::int32_t m_gaps; ///< pairs of rings with faces between them
    Ref<MeshData> m_mesh;
};

} // namespace

Ref<MeshData> turnOnLathe(const LatheProfile& profile)
{
    return Lathe(profile).turn();
}

} // namespace tvxhost::engine
