// DrawList: a walk of the DAG.
#include "drawList.h"

#include "api/support/displayStatus.h"

#include <optional>

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

void addBelow(DagPath& path, std::vector<DrawItem>& list)
{
    for (DagNode* child : path.node()->children()) {
        if (!path.push(*child))
            continue;
        if (const auto kind = kindOf(*child)) {
            const auto status = api::displayStatusOf(path);
            if (isDrawn(status))
                list.push_back({path, *kind, status, path.inclusiveMatrix()});
        }
        addBelow(path, list);
        (void)path.pop();
    }
}

} // namespace

std::vector<DrawItem> drawList(engine::Scene& scene)
{
    std::vector<DrawItem> list;
    DagPath path = DagPath::world(scene);
    addBelow(path, list);
    return list;
}

} // namespace tvxhost::viewport
