// Putting objects into sets; see setEntry.h.
#include "setEntry.h"

#include "attributeFlags.h"
#include "setMembers.h"

#include "engine/components.h"

#include <algorithm>
#include <optional>

namespace tvxhost::mel {

using engine::DagNode;
using engine::Node;
using engine::SelectionItem;

namespace {

bool isRenderable(const Node& node)
{
    return node.type().isA("geometryShape") || node.type().isA("light");
}

void addShapesBelow(const SelectionItem& transform, bool deep, Members& shapes)
{
    for (DagNode* child : transform.path.node()->children()) {
        SelectionItem item;
        item.node = child;
        item.path = transform.path;
        if (!item.path.push(*child))
            continue;
        if (child->isShape() && !child->isIntermediate() && isRenderable(*child))
            shapes.push_back(item);
        else if (deep)
            addShapesBelow(item, deep, shapes);
    }
}

/// The sets of the partitions that a set is in, without itself: a member of one is in no other of them.
std::vector<Node*> rivalsOf(Node& set)
{
    std::vector<Node*> rivals;
    const auto own = set.findPlug("partition");
    if (!own)
        return rivals;
    for (const engine::Plug& place : engine::destinationsOf(own.value)) {
        const engine::Plug array = place.isElement() ? place.array() : place;
        for (const int index : engine::existingElements(array)) {
            const engine::Plug source = engine::sourceOf(array.element(index));
            if (!source.isNull() && source.node() != &set)
                rivals.push_back(source.node());
        }
    }
    return rivals;
}

/// The kind of components that an item names; empty for a whole object.
std::string kindOf(const SelectionItem& item)
{
    return item.components.substr(0, item.components.find('['));
}

bool isOfKind(const SelectionItem& item, const std::vector<std::string>& kinds)
{
    return std::find(kinds.begin(), kinds.end(), kindOf(item)) != kinds.end();
}

/// Why an object cannot be in a set, whatever is in the other sets.
std::optional<std::string> objection(const CommandContext& context, Node& set, const SelectionItem& item)
{
    const std::string cannot = "'" + item.name() + "' cannot be in '" + set.name() + "'";
    if (!item.plug.isNull())
        return cannot + ": sets hold objects and components here";
    if (!item.components.empty() && !engine::parseComponents(*item.path.node(), item.components))
        return cannot + ": sets hold vertices, edges and faces of meshes and points of curves here";
    for (const ComponentSet& row : kComponentSets)
        if (isMadeFor(context, set, row) && !isOfKind(item, row.kinds))
            return cannot + ", which holds only " + row.what;
    const bool isShadedPart = item.components.empty() || isOfKind(item, {"f"});
    if (set.type().isA("shadingEngine") && !(isRenderable(*item.node) && isShadedPart))
        return cannot + ": it cannot be rendered";
    return std::nullopt;
}

void refuse(const CommandContext& context, Entry entry, const std::string& why)
{
    if (entry == Entry::plain || entry == Entry::forced)
        context.fail(why);
    if (entry == Entry::lenient)
        context.warn(why);
}

void enterOne(const CommandContext& context, Node& set, const SelectionItem& item, Entry entry)
{
    if (const auto why = objection(context, set, item)) {
        refuse(context, entry, *why);
        return;
    }
    for (Node* rival : rivalsOf(set)) {
        if (membershipOf(*rival, item) == Membership::none)
            continue;
        if (entry != Entry::forced) {
            refuse(context, entry,
                   "'" + item.name() + "' is in '" + rival->name() + "' and cannot be in '" + set.name() +
                       "' of the same partition");
            return;
        }
        require(context, removeSetMember(*rival, item));
    }
    require(context, addSetMember(set, item));
}

} // namespace

const std::vector<ComponentSet> kComponentSets = {
    {"v", "vertices", "verticesOnlySet", "vertices", {"vtx", "cv"}},
    {"eg", "edges", "edgesOnlySet", "edges", {"e"}},
    {"fc", "facets", "facetsOnlySet", "facets", {"f"}},
    {"ep", "editPoints", "editPointsOnlySet", "edit points", {"ep"}},
};

bool isMadeFor(const CommandContext& context, Node& set, const ComponentSet& row)
{
    return valueOf(context, engine::readNumber(plugOf(context, set, row.attribute))).asReal() != 0.0;
}

Members membersMeant(Node& set, const SelectionItem& item)
{
    const bool isWhole = item.plug.isNull() && item.components.empty();
    if (!set.type().isA("shadingEngine") || !isWhole || !item.isDag() || !item.path.node()->isTransform())
        return {item};
    Members shapes;
    addShapesBelow(item, false, shapes);
    if (shapes.empty())
        addShapesBelow(item, true, shapes);
    return shapes.empty() ? Members{item} : shapes;
}

void enter(const CommandContext& context, Node& set, const SelectionItem& item, Entry entry)
{
    for (const SelectionItem& member : membersMeant(set, item))
        enterOne(context, set, member, entry);
}

} // namespace tvxhost::mel
