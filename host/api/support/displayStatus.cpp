// How an object is shown in the viewport, by selection and display attributes.
#include "displayStatus.h"

#include "engine/scene.h"

#include <algorithm>

namespace tvxhost::api {

DisplayStatusRule::DisplayStatusRule(engine::Scene& scene)
{
    const auto note = [this](const engine::SelectionItem& item, Mark mark) {
        if (item.isDag())
            m_marks.emplace(item.path.node(), std::make_pair(item.path, mark));
    };
    for (const engine::SelectionItem& item : scene.hilite().items())
        note(item, Mark::hilited);
    const auto& selected = scene.selection().items();
    for (const engine::SelectionItem& item : selected)
        note(item, !item.components.empty()    ? Mark::components
                   : &item == &selected.back() ? Mark::lead
                                               : Mark::selected);
}

DisplayStatusRule::Mark DisplayStatusRule::markOf(engine::DagPath path) const
{
    Mark strongest = Mark::none;
    if (m_marks.empty())
        return strongest;
    while (path.length() > 0) {
        const auto [first, last] = m_marks.equal_range(path.node());
        for (auto mark = first; mark != last; ++mark)
            if (mark->second.first == path)
                strongest = std::max(strongest, mark->second.second);
        if (!path.pop())
            break;
    }
    return strongest;
}

M3dView::DisplayStatus DisplayStatusRule::statusOf(const engine::DagPath& path) const
{
    if (!path.isValid())
        return M3dView::kNoStatus;
    if (path.node()->isIntermediate())
        return M3dView::kIntermediateObject;
    if (!path.isVisible())
        return M3dView::kInvisible;
    const Mark mark = markOf(path);
    const bool isSelected = mark == Mark::selected || mark == Mark::lead;
    if (path.isTemplated())
        return isSelected ? M3dView::kActiveTemplate : M3dView::kTemplate;
    switch (mark) {
    case Mark::lead:
        return M3dView::kLead;
    case Mark::selected:
        return M3dView::kActive;
    case Mark::components:
        return M3dView::kActiveComponent;
    case Mark::hilited:
        return M3dView::kHilite;
    case Mark::none:
        break;
    }
    return M3dView::kDormant;
}

M3dView::DisplayStatus displayStatusOf(const engine::DagPath& path)
{
    return DisplayStatusRule(engine::Scene::current()).statusOf(path);
}

} // namespace tvxhost::api
