// TypeTable: see nodeType.h.
#include "builtinTypes.h"
#include "nodeType.h"
#include "typeReader.h"

#include <algorithm>

namespace tvxhost::engine {

namespace {

/// Above all four-letter codes.
constexpr std::uint32_t kFirstNamelessId = 0xFF000000;

} // namespace

TypeTable::TypeTable()
{
    for (const TypeText& table : kBuiltinTables)
        readTypes(*this, table.name, table.text);
    addBuiltinComputes(*this);
}

TypeTable::~TypeTable() = default;

NodeType* TypeTable::find(const std::string& name) const
{
    const auto found = m_byName.find(name);
    return found == m_byName.end() ? nullptr : found->second;
}

NodeType* TypeTable::find(std::uint32_t id) const
{
    const auto found = m_byId.find(id);
    return found == m_byId.end() ? nullptr : found->second;
}

std::vector<NodeType*> TypeTable::all() const
{
    std::vector<NodeType*> types;
    for (const std::unique_ptr<NodeType>& type : m_types)
        types.push_back(type.get());
    return types;
}

std::vector<NodeType*> TypeTable::ofPlugin(const std::string& plugin) const
{
    std::vector<NodeType*> types;
    for (const std::unique_ptr<NodeType>& type : m_types)
        if (type->plugin == plugin)
            types.push_back(type.get());
    return types;
}

std::uint32_t TypeTable::nextNamelessId()
{
    return kFirstNamelessId + m_lastNamelessId++;
}

Expected<NodeType*> TypeTable::add(std::string name, std::uint32_t id, NodeType& parent)
{
    return insert(std::make_unique<NodeType>(std::move(name), id, &parent));
}

Expected<NodeType*> TypeTable::addRoot(std::string name, std::uint32_t id)
{
    return insert(std::make_unique<NodeType>(std::move(name), id, nullptr));
}

Expected<NodeType*> TypeTable::insert(std::unique_ptr<NodeType> type)
{
    if (type->name.empty())
        return {Reason::invalidName, "a node type needs a name"};
    if (find(type->name))
        return {Reason::nameTaken, "there is a node type '" + type->name + "' already"};
    if (const NodeType* other = find(type->id))
        return {Reason::nameTaken, "the id of '" + type->name + "' belongs to '" + other->name + "'"};
    NodeType* added = type.get();
    m_byName[added->name] = added;
    m_byId[added->id] = added;
    m_types.push_back(std::move(type));
    return added;
}

Outcome TypeTable::remove(NodeType& type)
{
    if (find(type.name) != &type)
        return {Reason::notFound, "there is no node type '" + type.name + "'"};
    if (type.liveNodes + type.waitingNodes > 0)
        return {Reason::inUse, "nodes of type '" + type.name + "' exist"};
    for (const std::unique_ptr<NodeType>& other : m_types)
        if (other->parent == &type)
            return {Reason::inUse, "'" + other->name + "' is derived from '" + type.name + "'"};
    // Handles may hold the attributes for longer.
    for (const Ref<Attribute>& attribute : type.attributes())
        if (attribute->owner == &type)
            setOwner(*attribute, nullptr);
    m_byName.erase(type.name);
    m_byId.erase(type.id);
    const auto place = std::find_if(m_types.begin(), m_types.end(),
                                    [&](const std::unique_ptr<NodeType>& own) { return own.get() == &type; });
    m_types.erase(place);
    return {};
}

NodeType& TypeTable::retire(NodeType& type)
{
    const char* placeholder = type.isShape ? "unknownDag" : type.isDag ? "unknownTransform" : "unknown";
    auto retired = std::make_unique<NodeType>(placeholder, find(placeholder)->id, type.parent);
    retired->m_attributes = type.m_attributes;
    retired->m_names = type.m_names;
    for (const Ref<Attribute>& attribute : retired->m_attributes)
        if (attribute->owner == &type)
            setOwner(*attribute, retired.get());
    m_retired.push_back(std::move(retired));
    return *m_retired.back();
}

} // namespace tvxhost::engine
