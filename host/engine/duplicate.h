// Duplicates of nodes; of DAG nodes with all that hangs below them.
#pragma once

#include "node.h"
#include "outcome.h"

#include <functional>
#include <string>

namespace tvxhost::engine {

struct DuplicateOptions
{
    std::string name;          ///< of the copy; empty: the original's with another number
    bool sharesLeaves = false; ///< shapes become instances instead of copies
    bool onlyParent = false;   ///< nothing below the node
    /// Called for each copy once it has its values: what a node's own code keeps elsewhere is copied here.
    std::function<void(Node& original, Node& copy)> onCopy{};
};

/// An attribute of the same structure, flags and defaults that belongs to nothing.
Ref<Attribute> copyOf(const Attribute& attribute);

/// Makes a copy of a transform or shape below `parent`, with what hangs below it: values (what connections
/// bring is kept as it is now), added attributes, locks and membership in sets. Connections are not copied.
/// Intermediate shapes are left out.
Expected<DagNode*> duplicate(DagNode& original, DagNode& parent, const DuplicateOptions& options = {});

/// Makes a copy of a node that is not in the DAG: values, added attributes and locks. wrongKind for one that
/// is.
Expected<Node*> duplicateNode(Node& original, const DuplicateOptions& options = {});

} // namespace tvxhost::engine
