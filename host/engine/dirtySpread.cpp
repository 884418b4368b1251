// Dirtiness: see dirtySpread.h.
#include "dirtySpread.h"

#include "node.h"
#include "observers.h"
#include "scene.h"

#include <algorithm>

namespace tvxhost::engine {

namespace {

/// A cell's own state or the nearest one above it.
bool isOutdated(const Cell& cell)
{
    for (const Cell* at = &cell; at; at = at->parent())
        if (at->freshness != Freshness::inherited)
            return at->freshness == Freshness::dirty;
    return cell.store().node().isOutput(cell.attribute());
}

bool anyBelow(const Cell& cell, Freshness freshness)
{
    return std::any_of(cell.below().begin(), cell.below().end(), [&](const std::unique_ptr<Cell>& below) {
        return below && (below->freshness == freshness || (below->mixedBelow && anyBelow(*below, freshness)));
    });
}

void inheritBelow(Cell& cell)
{
    if (!cell.mixedBelow)
        return;
    cell.mixedBelow = false;
    for (const std::unique_ptr<Cell>& below : cell.below())
        if (below) {
            below->freshness = Freshness::inherited;
            inheritBelow(*below);
        }
}

void mark(Cell& cell, Freshness freshness)
{
    inheritBelow(cell);
    cell.freshness = freshness;
    for (Cell* above = cell.parent(); above && !above->mixedBelow; above = above->parent())
        above->mixedBelow = true;
}

} // namespace

bool isDirty(const Cell& cell)
{
    return isOutdated(cell) || (cell.mixedBelow && anyBelow(cell, Freshness::dirty));
}

void markClean(Cell& cell)
{
    mark(cell, Freshness::clean);
}

bool isDirty(const Plug& plug)
{
    if (!plug.isValid())
        return false;
    const CellStore& cells = plug.node()->cells();
    if (const Cell* cell = cells.find(plug))
        return isDirty(*cell);
    const Cell* above = cells.findNearest(plug);
    for (; above; above = above->parent())
        if (above->freshness != Freshness::inherited)
            return above->freshness == Freshness::dirty;
    return plug.node()->isOutput(*plug.attribute());
}

void setClean(const Plug& plug)
{
    if (!plug.isValid())
        return;
    if (Cell* cell = plug.node()->cells().make(plug))
        markClean(*cell);
}

void spreadDirty(const Plug& plug)
{
    if (!plug.isValid())
        return;
    DirtySpread spread;
    spread.changed(plug);
    spread.run();
}

void DirtySpread::changed(const Plug& plug)
{
    m_pending.push_back(plug);
}

void DirtySpread::outdated(Cell& cell)
{
    const bool wasOutdated = isOutdated(cell);
    if (wasOutdated && !cell.mixedBelow)
        return;
    const bool hadCleanBelow = cell.mixedBelow && anyBelow(cell, Freshness::clean);
    mark(cell, Freshness::dirty);
    if (!wasOutdated || hadCleanBelow)
        m_pending.push_back(cell.plug());
}

void DirtySpread::run()
{
    while (!m_pending.empty()) {
        const Plug plug = std::move(m_pending.back());
        m_pending.pop_back();
        spreadFrom(plug);
    }
}

void DirtySpread::outdateDestinationsOf(const Cell& cell)
{
    if (!cell.links())
        return;
    for (Cell* destination : cell.links()->destinations())
        if (destination)
            outdated(*destination);
}

void DirtySpread::outdateDestinationsAtAndBelow(const Cell& cell)
{
    if (cell.linkedCells() == 0)
        return;
    outdateDestinationsOf(cell);
    for (const std::unique_ptr<Cell>& below : cell.below())
        if (below)
            outdateDestinationsAtAndBelow(*below);
}

void DirtySpread::spreadFrom(const Plug& plug)
{
    Node& node = *plug.node();
    node.scene().observers().tell({Happening::plugOutdated, &node, nullptr, &plug});
    const Cell* cell = node.cells().findNearest(plug);
    if (cell && node.cells().find(plug) == cell) {
        outdateDestinationsAtAndBelow(*cell);
        cell = cell->parent();
    }
    for (; cell; cell = cell->parent())
        outdateDestinationsOf(*cell);

    spreadAlongAffects(plug);

    if (NodeBehaviour* behaviour = node.behaviour()) {
        std::vector<Plug> further;
        behaviour->setDependentsDirty(plug, further);
        for (const Plug& dependent : further)
            if (dependent.isValid())
                outdatePlug(*dependent.node(), *dependent.attribute(), dependent);
    }
    if (DagNode* dag = node.asDag(); dag && plug.attribute()->longName == "worldMatrix")
        for (DagNode* child : dag->children())
            outdateWorldSpace(*child);
}

void DirtySpread::spreadAlongAffects(const Plug& plug)
{
    // Of what was added to a node the type knows nothing.
    if (plug.attribute()->flags.dynamic)
        return;
    for (Attribute* output : plug.node()->type().affectedBy(*plug.attribute()))
        outdatePlug(*plug.node(), *output, plug);
}

void DirtySpread::outdatePlug(Node& node, Attribute& attribute, const Plug& cause)
{
    std::vector<Attribute*> way;
    for (Attribute* step = &attribute; step; step = step->parent)
        way.insert(way.begin(), step);
    // Without a cell nothing of it was ever computed: it is dirty as it is.
    if (Cell* root = node.cells().find(*way.front()))
        outdateBelow(*root, way, 0, cause);
}

void DirtySpread::outdateBelow(Cell& cell, const std::vector<Attribute*>& way, std::size_t level,
                               const Plug& cause)
{
    const bool isLast = level + 1 == way.size();
    if (cell.isArray()) {
        // Inputs and outputs of one array element belong together; else all elements are meant.
        const int depth = cell.attribute().arrayDepth();
        const bool shared = cause.attribute()->isAtOrBelow(cell.attribute()) && cause.indexCount() >= depth;
        const int index = shared ? cause.indices()[static_cast<std::size_t>(depth - 1)] : Plug::kNoIndex;
        if (index != Plug::kNoIndex) {
            Cell* element = isOutdated(cell) ? cell.findElement(index) : &cell.makeElement(index);
            if (element)
                outdateBelow(*element, way, level, cause);
            return;
        }
        if (isLast || cell.freshness == Freshness::clean) {
            outdated(cell);
            return;
        }
        for (const std::unique_ptr<Cell>& element : cell.below())
            if (element)
                outdateBelow(*element, way, level, cause);
        return;
    }
    if (isLast) {
        outdated(cell);
        return;
    }
    Attribute& next = *way[level + 1];
    if (Cell* child = cell.findChild(next))
        outdateBelow(*child, way, level + 1, cause);
    else if (!isOutdated(cell))
        outdateBelow(cell.makeChild(next), way, level + 1, cause);
}

void DirtySpread::outdateWorldSpace(DagNode& node)
{
    for (const char* name : {"parentMatrix", "parentInverseMatrix", "worldMatrix", "worldInverseMatrix"})
        if (const Attribute* attribute = node.type().find(name))
            if (Cell* cell = node.cells().find(*attribute))
                outdated(*cell);
}

void dirtyWorldSpace(DagNode& node)
{
    DirtySpread spread;
    spread.outdateWorldSpace(node);
    spread.run();
}

} // namespace tvxhost::engine
