// Light links: which lights shine on what. A light linker holds a pair of connections for each, and a file
// one `relationship` statement.
#pragma once

#include "engine/scene.h"

#include <string>
#include <vector>

namespace tvxhost::scene {

/// One link: "link", "ignore", "shadowLink" or "shadowIgnore" of a light with an object or shading group.
struct LightLink
{
    std::string kind;
    engine::Plug element; ///< of the linker's array
    engine::Plug light;   ///< what is connected there; null: nothing any more
    engine::Plug object;

    bool isWhole() const { return !light.isNull() && !object.isNull(); }
};

/// The link whose light or object a plug is; its kind is empty when the plug is neither.
LightLink lightLinkAt(const engine::Plug& plug);
/// The links of a light linker, kind by kind; none of another node.
std::vector<LightLink> lightLinksOf(engine::Node& node);

/// The elements of light linkers, in which one of these nodes is the light or the object.
std::vector<engine::Plug> lightLinkElementsOf(const std::vector<engine::Node*>& nodes);

/// The names in a `relationship` statement, in its order.
struct LightLinkNames
{
    std::string kind;
    std::string linker;
    std::string object;
    std::string light;
};
/// Makes a link. sameConnection when it is there already; doesNotExist, notFound or wrongKind when a name is
/// unknown or is not of such a link.
engine::Outcome makeLightLink(engine::Scene& scene, const LightLinkNames& names);

/// The links in the scene that are its own, as statements; those that a referenced node has part in are not.
std::string lightLinkStatements(engine::Node& node);

} // namespace tvxhost::scene
