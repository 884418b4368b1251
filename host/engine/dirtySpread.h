// Dirtiness: spreading it from values that changed, and the marks on cells.
#pragma once

#include "cell.h"

#include <vector>

namespace tvxhost::engine {

class DagNode;

/// Whether the value at a cell, or of something below it, has to be brought up to date.
bool isDirty(const Cell& cell);
/// Marks a cell and everything below it clean.
void markClean(Cell& cell);

/// Marks what hangs on changed values dirty, along declared affects and connections. What is dirty already is
/// not gone through again. No recursion: chains may be as long as the scene is large.
class DirtySpread
{
public:
    /// A value that is up to date itself but differs from what it was.
    void changed(const Plug& plug);
    /// A value that is not up to date any more.
    void outdated(Cell& cell);
    /// What a DAG node derives from its place in the world.
    void outdateWorldSpace(DagNode& node);
    void run();

private:
    void spreadFrom(const Plug& plug);
    void spreadAlongAffects(const Plug& plug);
    void outdatePlug(Node& node, Attribute& attribute, const Plug& cause);
    void outdateBelow(Cell& cell, const std::vector<Attribute*>& way, std::size_t level, const Plug& cause);
    void outdateDestinationsOf(const Cell& cell);
    void outdateDestinationsAtAndBelow(const Cell& cell);

    std::vector<Plug> m_pending;
};

/// A DAG node was moved to another place: its world-space values are out of date.
void dirtyWorldSpace(DagNode& node);

} // namespace tvxhost::engine
