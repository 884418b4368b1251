// Normals: see meshNormals.h.
#include "meshNormals.h"

#include "meshMeasures.h"
#include "meshTopology.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <tuple>
#include <utility>

namespace tvxhost::engine {

namespace {

/// The angle of a face at its corner i of a loop.
double angleAt(const std::vector<Vec3d>& points, std::size_t i)
{
    const std::size_t count = points.size();
    const Vec3d to = points[(i + 1) % count] - points[i];
    const Vec3d from = points[(i + count - 1) % count] - points[i];
    return std::atan2(to.cross(from).length(), to.dot(from));
}

/// Calls `use(vertex, weight)` for each corner of a face.
template <class Use>
void forEachWeight(const MeshData& mesh, std::size_t face, bool angleWeighted, const Use& use)
{
    for (std::size_t loop = 0; loop < mesh.faces.loopCount(face); ++loop) {
        std::vector<std::int32_t> vertices;
        std::vector<Vec3d> points;
        for (const std::int32_t corner : mesh.faces.loop(face, loop)) {
            vertices.push_back(mesh.startOf(corner));
            points.emplace_back(mesh.points[static_cast<std::size_t>(vertices.back())]);
        }
        for (std::size_t i = 0; i < points.size(); ++i)
            use(vertices[i], angleWeighted ? angleAt(points, i) : 1.0);
    }
}

/// The faces at one vertex, in groups: each face has the place of another one of its group, or its own.
class Groups
{
public:
    Groups(const MeshData& mesh, std::int32_t vertex) : m_faces(facesAt(mesh, vertex))
    {
        for (std::size_t place = 0; place < m_faces.size(); ++place)
            m_leaders.push_back(place);
        for (const std::int32_t edge : mesh.topology().edgesOfVertex(vertex))
            if (mesh.edges[static_cast<std::size_t>(edge)].smooth != 0)
                join(mesh.topology().facesOfEdge(edge));
    }

    const std::vector<std::int32_t>& faces() const { return m_faces; }
    /// The place of the group's leading face.
    std::size_t groupOf(std::size_t place) const
    {
        while (m_leaders[place] != place)
            place = m_leaders[place];
        return place;
    }
    std::size_t placeOf(std::int32_t face) const
    {
        return static_cast<std::size_t>(std::lower_bound(m_faces.begin(), m_faces.end(), face) -
                                        m_faces.begin());
    }

private:
    static std::vector<std::int32_t> facesAt(const MeshData& mesh, std::int32_t vertex)
    {
        const IndexSpan all = mesh.topology().facesOfVertex(vertex);
        std::vector<std::int32_t> faces(all.begin(), all.end());
        faces.erase(std::unique(faces.begin(), faces.end()), faces.end());
        return faces;
    }
    void join(IndexSpan faces)
    {
        for (const std::int32_t face : faces)
            m_leaders[groupOf(placeOf(face))] = groupOf(placeOf(faces[0]));
    }

    std::vector<std::int32_t> m_faces;
    std::vector<std::size_t> m_leaders;
};

/// The corners at each vertex, by their places among all corners.
Incidence cornersByVertex(const MeshData& mesh)
{
    return Incidence(mesh.points.size(), [&](const auto& use) {
        std::int32_t place = 0;
        for (std::size_t face = 0; face < mesh.faces.size(); ++face)
            for (const std::int32_t corner : mesh.faces.corners(face))
                use(mesh.startOf(corner), place++);
    });
}

/// The face of each corner.
std::vector<std::int32_t> facesByCorner(const MeshData& mesh)
{
    std::vector<std::int32_t> faces;
    faces.reserve(mesh.faces.cornerCount());
    for (std::size_t face = 0; face < mesh.faces.size(); ++face)
        faces.insert(faces.end(), mesh.faces.corners(face).size(), static_cast<std::int32_t>(face));
    return faces;
}

/// The sums of the normals of groups, and which of them each corner has.
class GroupNormals
{
public:
    explicit GroupNormals(const MeshData& mesh)
        : m_mesh(mesh), m_corners(cornersByVertex(mesh)), m_faces(facesByCorner(mesh)),
          m_used(mesh.faces.cornerCount())
    {
        for (std::size_t face = 0; face < mesh.faces.size(); ++face)
            m_faceNormals.push_back(faceNormal(mesh, face));
        for (std::size_t vertex = 0; vertex < mesh.points.size(); ++vertex)
            addVertex(static_cast<std::int32_t>(vertex));
    }

    /// With numbers by first use, as the corners come.
    NormalTable table() const
    {
        NormalTable result;
        std::vector<std::int32_t> numbers(m_sums.size(), -1);
        for (const std::size_t used : m_used) {
            std::int32_t& number = numbers[used];
            if (number < 0) {
                number = static_cast<std::int32_t>(result.normals.size());
                result.normals.emplace_back(m_sums[used].normalized());
            }
            result.used.push_back(number);
        }
        result.locked.assign(result.normals.size(), false);
        return result;
    }

private:
    void addVertex(std::int32_t vertex)
    {
        const Groups groups(m_mesh, vertex);
        const std::size_t first = m_sums.size();
        m_sums.resize(first + groups.faces().size(), Vec3d(0.0));
        for (std::size_t i = 0; i < groups.faces().size(); ++i)
            m_sums[first + groups.groupOf(i)] += m_faceNormals[static_cast<std::size_t>(groups.faces()[i])];
        for (const std::int32_t corner : m_corners[vertex]) {
            const std::int32_t face = m_faces[static_cast<std::size_t>(corner)];
            m_used[static_cast<std::size_t>(corner)] = first + groups.groupOf(groups.placeOf(face));
        }
    }

    const MeshData& m_mesh;
    const Incidence m_corners;
    const std::vector<std::int32_t> m_faces;
    std::vector<Vec3d> m_faceNormals;
    std::vector<Vec3d> m_sums; ///< at the places of the groups' leading faces, vertex by vertex
    std::vector<std::size_t> m_used;
};

} // namespace

Vec3d vertexNormal(const MeshData& mesh, std::int32_t vertex, bool angleWeighted)
{
    Vec3d sum(0.0);
    std::int32_t last = -1;
    for (const std::int32_t face : mesh.topology().facesOfVertex(vertex)) {
        if (std::exchange(last, face) == face)
            continue;
        const auto i = static_cast<std::size_t>(face);
        const Vec3d normal = faceNormal(mesh, i);
        forEachWeight(mesh, i, angleWeighted, [&](std::int32_t at, double weight) {
            if (at == vertex)
                sum += normal * weight;
        });
    }
    return sum.normalized();
}

std::vector<Vec3d> vertexNormals(const MeshData& mesh, bool angleWeighted)
{
    std::vector<Vec3d> sums(mesh.points.size(), Vec3d(0.0));
    for (std::size_t face = 0; face < mesh.faces.size(); ++face) {
        const Vec3d normal = faceNormal(mesh, face);
        forEachWeight(mesh, face, angleWeighted, [&](std::int32_t vertex, double weight) {
            sums[static_cast<std::size_t>(vertex)] += normal * weight;
        });
    }
    for (Vec3d& sum : sums)
        sum.normalize();
    return sums;
}

NormalTable computedNormals(const MeshData& mesh)
{
    return GroupNormals(mesh).table();
}

NormalTable normalsOf(const MeshData& mesh)
{
    const NormalTable computed = computedNormals(mesh);
    if (mesh.lockedNormals.empty())
        return computed;
    NormalTable result;
    // A group, whether its normal was set, and what it is.
    std::map<std::tuple<std::int32_t, bool, float, float, float>, std::int32_t> numbers;
    for (std::size_t corner = 0; corner < computed.used.size(); ++corner) {
        const bool locked = isLocked(mesh, corner);
        const std::int32_t group = computed.used[corner];
        const Vec3f& normal =
            locked ? mesh.lockedNormals[corner] : computed.normals[static_cast<std::size_t>(group)];
        const auto number = static_cast<std::int32_t>(result.normals.size());
        const auto [known, isNew] =
            numbers.emplace(std::tuple(group, locked, normal.x, normal.y, normal.z), number);
        if (isNew) {
            result.normals.push_back(normal);
            result.locked.push_back(locked);
        }
        result.used.push_back(known->second);
    }
    return result;
}

void turnLockedNormals(MeshData& mesh, const Matrix& matrix)
{
    const Matrix turn = matrix.inverse().transposed();
    for (Vec3f& normal : mesh.lockedNormals) {
        Vec3d turned;
        turn.multDirMatrix(Vec3d(normal), turned);
        if (isSetNormal(normal))
            normal = Vec3f(turned.normalized());
    }
}

} // namespace tvxhost::engine
