// Reports about the nodes of a scene: what there is, and what the nodes of plug-ins evaluate to.
#pragma once

#include "engine/scene.h"

#include <string>
#include <vector>

namespace tvxhost::app {

/// "TYPE NAME" of every node but the world, in the order of creation; DAG nodes by their full path, unknown
/// nodes by the type that the scene gave them.
std::vector<std::string> listNodes(engine::Scene& scene);

/// What the nodes of plug-ins' types evaluate to.
struct Evaluation
{
    std::vector<std::string> lines;    ///< "node.attribute = value", strings as MEL writes them
    std::vector<std::string> failures; ///< "node.attribute: why"
};

/// Evaluates, for every node of a type of a plug-in, the outputs of its type; all attributes of its type
/// where there are no outputs. Inherited attributes do not count; a node that has no others has a line that
/// says so.
Evaluation evaluatePluginNodes(engine::Scene& scene);

} // namespace tvxhost::app
