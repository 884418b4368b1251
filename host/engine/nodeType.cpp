// NodeType: see nodeType.h.
#include "nodeType.h"

#include "relatedAttributes.h"

#include <algorithm>
#include <unordered_set>

namespace tvxhost::engine {

namespace {

/// All names of an attribute and of what is below it.
void collectNames(const Attribute& attribute, std::vector<std::pair<std::string, Attribute*>>& names)
{
    auto* self = const_cast<Attribute*>(&attribute);
    names.emplace_back(attribute.longName, self);
    if (attribute.shortName != attribute.longName)
        names.emplace_back(attribute.shortName, self);
    for (const Ref<Attribute>& child : attribute.children)
        collectNames(*child, names);
}

void collectOtherNames(Attribute& attribute, std::vector<std::pair<std::string, Attribute*>>& names)
{
    if (!attribute.otherShortName.empty())
        names.emplace_back(attribute.otherShortName, &attribute);
    for (const Ref<Attribute>& child : attribute.children)
        collectOtherNames(*child, names);
}

} // namespace

void setOwner(Attribute& attribute, const NodeType* owner)
{
    attribute.owner = owner;
    for (const Ref<Attribute>& child : attribute.children)
        setOwner(*child, owner);
}

NodeType::NodeType(std::string typeName, std::uint32_t typeId, NodeType* parentType)
    : name(std::move(typeName)), id(typeId), parent(parentType)
{
    if (!parent)
        return;
    isDag = parent->isDag;
    isShape = parent->isShape;
    m_attributes = parent->m_attributes;
}

bool NodeType::isA(const NodeType& other) const
{
    const NodeType* type = this;
    while (type && type != &other)
        type = type->parent;
    return type != nullptr;
}

bool NodeType::isA(const std::string& typeName) const
{
    const NodeType* type = this;
    while (type && type->name != typeName)
        type = type->parent;
    return type != nullptr;
}

Attribute* NodeType::find(const std::string& attributeName) const
{
    for (const NodeType* type = this; type; type = type->parent) {
        const auto found = type->m_names.find(attributeName);
        if (found != type->m_names.end())
            return found->second;
    }
    return nullptr;
}

Attribute* NodeType::intermediateObject() const
{
    if (!m_intermediateObject)
        m_intermediateObject = find("intermediateObject");
    return m_intermediateObject;
}

Outcome NodeType::addAttribute(const Ref<Attribute>& attribute)
{
    if (!attribute)
        return Reason::nullArgument;
    if (attribute->parent || attribute->owner || !attribute->isNestedWithinLimits())
        return {Reason::wrongKind, "'" + attribute->longName + "' cannot be added to a node type"};

    std::vector<std::pair<std::string, Attribute*>> names;
    collectNames(*attribute, names);
    std::unordered_set<std::string> own;
    for (const auto& [attributeName, holder] : names)
        if (find(attributeName) || !own.insert(attributeName).second)
            return {Reason::nameTaken, "'" + name + "' has an attribute named '" + attributeName + "'"};

    for (const auto& entry : names)
        m_names.insert(entry);
    // A second short name gives way to any real one.
    names.clear();
    collectOtherNames(*attribute, names);
    for (const auto& entry : names)
        if (!find(entry.first))
            m_names.insert(entry);

    setOwner(*attribute, this);
    attribute->index = static_cast<int>(m_attributes.size());
    m_attributes.push_back(attribute);
    return {};
}

Outcome NodeType::addAffects(const Attribute& input, const Attribute& output)
{
    const auto isMine = [&](const Attribute& attribute) { return attribute.owner && isA(*attribute.owner); };
    if (!isMine(input) || !isMine(output))
        return {Reason::notFound, "both attributes must have been added to '" + name + "'"};
    if (output.flags.keyable)
        return {Reason::wrongKind, "'" + output.longName + "' is keyable and cannot be an output"};
    m_affects.emplace_back(const_cast<Attribute*>(&input), const_cast<Attribute*>(&output));
    m_affectedCache.clear();
    m_outputCache.clear();
    return {};
}

void NodeType::addComputed(const Attribute& output)
{
    m_computed.push_back(&output);
    m_outputCache.clear();
}

const std::vector<Attribute*>& NodeType::affectedBy(const Attribute& input) const
{
    const auto known = m_affectedCache.find(&input);
    if (known != m_affectedCache.end())
        return known->second;

    std::vector<Attribute*> outputs = parent ? parent->affectedBy(input) : std::vector<Attribute*>();
    for (const auto& [source, output] : m_affects)
        if (areRelated(*source, input) && std::find(outputs.begin(), outputs.end(), output) == outputs.end())
            outputs.push_back(output);
    return m_affectedCache[&input] = std::move(outputs);
}

bool NodeType::isOutput(const Attribute& attribute) const
{
    const auto known = m_outputCache.find(&attribute);
    if (known != m_outputCache.end())
        return known->second;
    const auto concerns = [&](const Attribute* output) { return areRelated(*output, attribute); };
    const bool isReached = (parent && parent->isOutput(attribute)) ||
                           std::any_of(m_affects.begin(), m_affects.end(),
                                       [&](const auto& affects) { return concerns(affects.second); }) ||
                           std::any_of(m_computed.begin(), m_computed.end(), concerns);
    return m_outputCache[&attribute] = isReached;
}

} // namespace tvxhost::engine
