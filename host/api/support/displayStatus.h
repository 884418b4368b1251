// How an object is shown in the viewport, by selection and display attributes: the one rule for the API and
// the viewport that draws.
#pragma once

#include "engine/dagPath.h"

#include <maya/M3dView.h>

#include <unordered_map>

namespace tvxhost::engine {
class Scene;
} // namespace tvxhost::engine

namespace tvxhost::api {

/// The selection and hiliting of a scene at one moment, looked up by path. Make one per picture: asking is
/// then a few hash look-ups per path, however much is selected.
class FND_EXPORT DisplayStatusRule
{
public:
    explicit DisplayStatusRule(engine::Scene& scene);

    /// The selection of a node counts for everything below it; what was selected last is the lead. A template
    /// stays one when it is selected; what is intermediate or hidden is not drawn, selected or not.
    M3dView::DisplayStatus statusOf(const engine::DagPath& path) const;

private:
    enum class Mark
    {
        none,
        hilited,
        components, ///< some of its components are selected
        selected,
        lead
    };
    using Marks = std::unordered_multimap<const engine::DagNode*, std::pair<engine::DagPath, Mark>>;

    Mark markOf(engine::DagPath path) const;

    Marks m_marks;
};

/// The status of one path in the current scene.
FND_EXPORT M3dView::DisplayStatus displayStatusOf(const engine::DagPath& path);

} // namespace tvxhost::api
