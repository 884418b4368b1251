// Plugs: who is connected with whom.
#include "cell.h"
#include "node.h"
#include "plug.h"

#include <algorithm>

namespace tvxhost::engine {

namespace {

const Cell* cellOf(const Plug& plug)
{
    return plug.isValid() ? plug.node()->cells().find(plug) : nullptr;
}

bool anyFedAtOrBelow(const Cell& cell)
{
    if (cell.linkedCells() == 0)
        return false;
    return cell.source() ||
           std::any_of(cell.below().begin(), cell.below().end(),
                       [](const std::unique_ptr<Cell>& below) { return below && anyFedAtOrBelow(*below); });
}

void collectLinked(const Cell& cell, std::vector<Plug>& plugs)
{
    if (cell.linkedCells() == 0)
        return;
    if (cell.links())
        plugs.push_back(cell.plug());
    for (const std::unique_ptr<Cell>& below : cell.below())
        if (below)
            collectLinked(*below, plugs);
}

} // namespace

Plug sourceOf(const Plug& plug)
{
    const Cell* cell = cellOf(plug);
    return cell && cell->source() ? cell->source()->plug() : Plug();
}

std::vector<Plug> destinationsOf(const Plug& plug)
{
    std::vector<Plug> plugs;
    const Cell* cell = cellOf(plug);
    if (!cell || !cell->links())
        return plugs;
    for (const Cell* destination : cell->links()->destinations())
        if (destination)
            plugs.push_back(destination->plug());
    return plugs;
}

bool isConnected(const Plug& plug)
{
    const Cell* cell = cellOf(plug);
    return cell && cell->links();
}

bool isFedAnywhere(const Plug& plug)
{
    if (!plug.isValid())
        return false;
    const CellStore& cells = plug.node()->cells();
    for (const Cell* cell = cells.findNearest(plug); cell; cell = cell->parent())
        if (cell->source())
            return true;
    const Cell* cell = cells.find(plug);
    return cell && anyFedAtOrBelow(*cell);
}

std::vector<Plug> connectedPlugs(const Node& node)
{
    std::vector<const Cell*> roots;
    for (const std::unique_ptr<Cell>& root : node.cells().roots())
        if (root->linkedCells() > 0)
            roots.push_back(root.get());
    const auto& dynamic = node.dynamicAttributes();
    const auto place = [&](const Cell* root) {
        const Attribute& attribute = root->attribute();
        if (attribute.index >= 0)
            return static_cast<std::ptrdiff_t>(attribute.index);
        const auto at = std::find(dynamic.begin(), dynamic.end(), Ref<Attribute>(&root->attribute()));
        return static_cast<std::ptrdiff_t>(node.type().attributes().size()) + (at - dynamic.begin());
    };
    std::sort(roots.begin(), roots.end(), [&](const Cell* a, const Cell* b) { return place(a) < place(b); });
    std::vector<Plug> plugs;
    for (const Cell* root : roots)
        collectLinked(*root, plugs);
    return plugs;
}

} // namespace tvxhost::engine
