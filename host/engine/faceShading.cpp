// Which shading groups the faces of a mesh are in: see faceShading.h.
#include "faceShading.h"

#include "objectGroups.h"

#include <algorithm>
#include <optional>

namespace tvxhost::engine {

namespace {

/// The shading group that has what a plug stands for; null when there is none.
Node* shadingGroupOf(const Plug& member)
{
    for (const Plug& set : destinationsOf(member))
        if (set.node()->type().isA("shadingEngine"))
            return set.node();
    return nullptr;
}

class Collector
{
public:
    explicit Collector(std::size_t faces) { m_shading.byFace.assign(faces, -1); }

    void addWhole(const Plug& object)
    {
        if (Node* group = shadingGroupOf(object))
            std::fill(m_shading.byFace.begin(), m_shading.byFace.end(), numberOf(*group));
    }

    void addGroup(const Plug& objectGroup)
    {
        Node* group = shadingGroupOf(objectGroup);
        const Components faces = group ? groupComponents(objectGroup) : Components();
        if (faces.kind() != "f")
            return;
        const std::int32_t number = numberOf(*group);
        const auto count = static_cast<int>(m_shading.byFace.size());
        for (const Components::Run& run : faces.runs())
            std::fill(m_shading.byFace.begin() + std::clamp(run.first, 0, count),
                      m_shading.byFace.begin() + std::clamp(run.last + 1, 0, count), number);
    }

    FaceShading take() { return std::move(m_shading); }

private:
    std::int32_t numberOf(Node& group)
    {
        const auto found = std::find(m_shading.groups.begin(), m_shading.groups.end(), &group);
        const auto number = static_cast<std::int32_t>(found - m_shading.groups.begin());
        if (found == m_shading.groups.end())
            m_shading.groups.push_back(&group);
        return number;
    }

    FaceShading m_shading;
};

} // namespace

FaceShading shadingOf(DagNode& shape, int instance, std::size_t faces)
{
    Collector collector(faces);
    const auto groups = shape.findPlug("instObjGroups");
    if (!groups)
        return collector.take();
    const Plug object = groups.value.element(instance);
    collector.addWhole(object);
    const Plug objectGroups = object.child(0);
    for (const int i : existingElements(objectGroups))
        collector.addGroup(objectGroups.element(i));
    return collector.take();
}

} // namespace tvxhost::engine
