// Normals that were set: see lockedNormals.h.
#include "lockedNormals.h"

#include "computeSupport.h"
#include "geometry/meshNormals.h"

#include <algorithm>
#include <optional>

namespace tvxhost::engine {

namespace {

const Vec3f kNone(kNoNormal);

std::vector<Vec3f> valuesOf(const Plug& list)
{
    std::vector<Vec3f> values;
    for (const int i : existingElements(list)) {
        values.resize(static_cast<std::size_t>(i) + 1, kNone);
        values.back() = Vec3f(vectorOf(list.element(i)));
    }
    return values;
}

/// The values by normal; none when two corners with the same normal have different ones.
std::optional<std::vector<Vec3f>> byNormal(const MeshData& mesh)
{
    const NormalTable computed = computedNormals(mesh);
    std::vector<std::optional<Vec3f>> found(computed.normals.size());
    for (std::size_t corner = 0; corner < computed.used.size(); ++corner) {
        std::optional<Vec3f>& value = found[static_cast<std::size_t>(computed.used[corner])];
        const Vec3f own = isLocked(mesh, corner) ? mesh.lockedNormals[corner] : kNone;
        if (value.value_or(own) != own)
            return std::nullopt;
        value = own;
    }
    std::vector<Vec3f> values;
    for (const std::optional<Vec3f>& value : found)
        values.push_back(value.value_or(kNone));
    return values;
}

} // namespace

void readNormals(DagNode& shape, MeshData& mesh)
{
    const std::vector<Vec3f> values = valuesOf(plugOf(shape, "normals"));
    if (std::find_if(values.begin(), values.end(), isSetNormal) == values.end())
        return;
    const NormalTable computed = computedNormals(mesh);
    if (values.size() == computed.normals.size())
        for (const std::int32_t number : computed.used)
            mesh.lockedNormals.push_back(values[static_cast<std::size_t>(number)]);
    else if (values.size() == computed.used.size())
        mesh.lockedNormals = values;
}

Outcome writeNormals(DagNode& shape, const MeshData& mesh)
{
    const Plug list = plugOf(shape, "normals");
    for (const int i : existingElements(list))
        if (const Outcome removed = removeElement(list, i); !removed)
            return removed;
    if (mesh.lockedNormals.empty())
        return {};
    std::vector<double> numbers;
    for (const Vec3f& normal : byNormal(mesh).value_or(mesh.lockedNormals))
        numbers.insert(numbers.end(), {normal.x, normal.y, normal.z});
    return writeElements(list, 0, numbers.data(), numbers.size());
}

} // namespace tvxhost::engine
