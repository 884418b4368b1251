// PendingCompounds: see pendingCompounds.h.
#include "pendingCompounds.h"

#include <algorithm>

namespace tvxhost::scene {

using engine::Attribute;
using engine::Node;
using engine::Outcome;
using engine::Reason;

namespace {

Outcome nameTaken(const Node& node, const Attribute& attribute)
{
    return {Reason::nameTaken, "Found existing attribute '" + attribute.longName + "' on '" + node.name() +
                                   "': an attribute with that name cannot be added"};
}

/// A group of numbers is one only when its children turn out to be such numbers (angles and distances are).
void settleGroup(Attribute& compound)
{
    if (compound.kind != engine::AttributeKind::numeric)
        return;
    const bool areEqual =
        std::all_of(compound.children.begin(), compound.children.end(), [&](const auto& child) {
            return child->number == compound.number && child->children.empty() && !child->isArray();
        });
    if (!areEqual)
        compound.kind = engine::AttributeKind::compound;
}

} // namespace

Outcome PendingCompounds::declare(Node& node, const AttributeDeclaration& declaration)
{
    const Attribute& attribute = *declaration.attribute;
    if (node.findAttribute(attribute.longName) || node.findAttribute(attribute.shortName))
        return nameTaken(node, attribute);
    return declaration.parent.empty() ? begin(node, declaration) : addChild(node, declaration);
}

Outcome PendingCompounds::begin(Node& node, const AttributeDeclaration& declaration)
{
    if (declaration.childCount == 0)
        return node.addDynamicAttribute(declaration.attribute);
    Waiting waiting{&node, declaration.attribute, {}};
    waiting.gaps.push_back({declaration.attribute.get(), declaration.childCount});
    m_waiting.push_back(std::move(waiting));
    return {};
}

Outcome PendingCompounds::addChild(Node& node, const AttributeDeclaration& declaration)
{
    for (auto waiting = m_waiting.begin(); waiting != m_waiting.end(); ++waiting) {
        if (waiting->node.get() != &node)
            continue;
        const auto gap =
            std::find_if(waiting->gaps.begin(), waiting->gaps.end(), [&](const Waiting::Gap& candidate) {
                return candidate.compound->longName == declaration.parent ||
                       candidate.compound->shortName == declaration.parent;
            });
        if (gap == waiting->gaps.end())
            continue;
        Attribute& compound = *gap->compound;
        compound.addChild(declaration.attribute);
        if (--gap->missing == 0) {
            settleGroup(compound);
            waiting->gaps.erase(gap);
        }
        if (declaration.childCount > 0)
            waiting->gaps.push_back({declaration.attribute.get(), declaration.childCount});
        if (!waiting->gaps.empty())
            return {};
        const engine::Ref<Attribute> whole = waiting->root;
        m_waiting.erase(waiting);
        return node.addDynamicAttribute(whole);
    }
    return {Reason::notFound, "There is no compound attribute '" + declaration.parent + "' of '" +
                                  node.name() + "' that waits for children"};
}

std::vector<std::string> PendingCompounds::abandon()
{
    std::vector<std::string> names;
    for (const Waiting& waiting : m_waiting)
        names.push_back(waiting.node->name() + "." + waiting.root->longName);
    m_waiting.clear();
    return names;
}

} // namespace tvxhost::scene
