// Units between what the user types and what attributes store; see uiUnits.h.
#include "uiUnits.h"

namespace tvxhost::scene {

namespace {

bool isNumber(const engine::Attribute& attribute)
{
    return attribute.children.empty() && (attribute.kind == engine::AttributeKind::numeric ||
                                          attribute.kind == engine::AttributeKind::unit ||
                                          attribute.kind == engine::AttributeKind::enumeration);
}

bool collect(engine::Attribute& attribute, std::vector<engine::Attribute*>& leaves)
{
    if (isNumber(attribute)) {
        leaves.push_back(&attribute);
        return true;
    }
    if (attribute.children.empty())
        return false;
    for (const auto& child : attribute.children)
        if (child->isArray() || !collect(*child, leaves))
            return false;
    return true;
}

} // namespace

double internalPerUi(const engine::Attribute& leaf, const engine::Units& units)
{
    switch (leaf.unit) {
    case engine::UnitKind::angle:
        return engine::radiansPer(units.angle);
    case engine::UnitKind::distance:
        return engine::centimetresPer(units.linear);
    case engine::UnitKind::time:
        return engine::secondsPer(units.time);
    case engine::UnitKind::none:
        break;
    }
    return 1.0;
}

std::vector<engine::Attribute*> numberLeaves(engine::Attribute& attribute)
{
    std::vector<engine::Attribute*> leaves;
    if (!collect(attribute, leaves))
        leaves.clear();
    return leaves;
}

} // namespace tvxhost::scene
