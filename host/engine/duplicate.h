// Duplicates of DAG nodes with all that hangs below them.
#pragma once

#include "node.h"
#include "outcome.h"

#include <string>

namespace tvxhost::engine {

struct DuplicateOptions
{
    std::string name;          ///< of the copy; empty: the original's with another number
    bool sharesLeaves = false; ///< shapes become instances instead of copies
    bool onlyParent = false;   ///< nothing below the node
};

/// An attribute of the same structure, flags and defaults that belongs to nothing.
Ref<Attribute> copyOf(const Attribute& attribute);

/// Makes a copy of a transform or shape below `parent`, with what hangs below it: values (what connections
/// bring is kept as it is now), added attributes, locks and membership in sets. Connections are not copied.
/// Intermediate shapes are left out.
Expected<DagNode*> duplicate(DagNode& original, DagNode& parent, const DuplicateOptions& options = {});

} // namespace tvxhost::engine
