// PlugTarget: what a plug name of a scene file or a command means, with a range of elements or without.
#pragma once

#include "engine/node.h"
#include "engine/outcome.h"
#include "engine/plug.h"

#include <string>
#include <string_view>

namespace tvxhost::engine {
class Scene;
}

namespace tvxhost::scene {

/// One plug, or a run of elements: "vt[0:165]", "wl[0:47].w".
struct PlugTarget
{
    engine::Plug plug; ///< the plug; for a range the array that the range counts in
    bool isRange = false;
    int first = 0;
    int last = 0;     ///< included
    std::string tail; ///< what follows the range below each element, without the dot

    /// The elements of the range.
    std::size_t count() const { return static_cast<std::size_t>(last) - static_cast<std::size_t>(first) + 1; }
    /// The plug of the element at that place of the range, counted from 0.
    engine::Expected<engine::Plug> nth(std::size_t place) const
    {
        return at(first + static_cast<int>(place));
    }
    /// The plug of the element with that index.
    engine::Expected<engine::Plug> at(int index) const;
};

/// What `path` (without node and leading dot) means on a node. notFound when the node has no such attribute,
/// badIndex for a range that runs backwards.
engine::Expected<PlugTarget> findTarget(engine::Node& node, std::string_view path);
/// The same for a whole name ("node.path"). doesNotExist and ambiguous when the node is the reason.
engine::Expected<PlugTarget> findTarget(engine::Scene& scene, std::string_view name);

/// The path of a plug as scene files write it, without node and leading dot: short names, and of the
/// attributes above only the arrays.
std::string filePath(const engine::Plug& plug);

} // namespace tvxhost::scene
