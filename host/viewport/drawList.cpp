// DrawList: a walk of the DAG.
#include "drawList.h"

#include "api/support/displayStatus.h"

#include <optional>
#include <utility>

namespace tvxhost::viewport {

using engine::DagNode;
using engine::DagPath;

namespace {

std::optional<DrawKind> kindOf(const DagNode& shape)
{
    if (shape.type().isA("mesh"))
        return DrawKind::wire;
    if (!shape.type().isA("locator"))
        return std::nullopt;
    const engine::NodeBehaviour* behaviour = shape.behaviour();
    return behaviour ? DrawKind::plugin : DrawKind::cross;
}

bool isDrawn(M3dView::DisplayStatus status)
{
    return status != M3dView::kInvisible && status != M3dView::kIntermediateObject;
}

class Walk
{
public:
    explicit Walk(engine::Scene& scene) : m_rule(scene), m_path(DagPath::world(scene)) {}

    std::vector<DrawItem> list()
    {
        addBelow(*m_path.node());
        return std::move(m_list);
    }

private:
    void addBelow(const DagNode& parent)
    {
        for (DagNode* child : parent.children()) {
            if (!m_path.push(*child))
                continue;
            if (const auto kind = kindOf(*child))
                add(*kind);
            addBelow(*child);
            (void)m_path.pop();
        }
    }

    void add(DrawKind kind)
    {
        const auto status = m_rule.statusOf(m_path);
        if (isDrawn(status))
            m_list.push_back({m_path, kind, status, m_path.inclusiveMatrix()});
    }

    api::DisplayStatusRule m_rule;
    DagPath m_path; ///< from the world to where the walk is
    std::vector<DrawItem> m_list;
};

} // namespace

std::vector<DrawItem> drawList(engine::Scene& scene)
{
    return Walk(scene).list();
}

} // namespace tvxhost::viewport
