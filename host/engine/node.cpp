// Node: attributes, plugs by name and aliases.
#include "node.h"

#include "cell.h"
#include "duplicate.h"
#include "observers.h"
#include "scene.h"

#include <algorithm>
#include <cctype>
#include <charconv>

namespace tvxhost::engine {

namespace {

Attribute* findBelow(Attribute& attribute, const std::string& name)
{
    if (attribute.longName == name || attribute.shortName == name ||
        (!attribute.otherShortName.empty() && attribute.otherShortName == name))
        return &attribute;
    for (const Ref<Attribute>& child : attribute.children)
        if (Attribute* found = findBelow(*child, name))
            return found;
    return nullptr;
}

void markDynamic(Attribute& attribute)
{
    attribute.flags.dynamic = true;
    for (const Ref<Attribute>& child : attribute.children)
        markDynamic(*child);
}

Outcome checkNames(const Node& node, const Attribute& attribute)
{
    for (const std::string& name : {attribute.longName, attribute.shortName})
        if (node.findAttribute(name))
            return {Reason::nameTaken, "'" + node.name() + "' has an attribute named '" + name + "'"};
    for (const Ref<Attribute>& child : attribute.children)
        if (Outcome outcome = checkNames(node, *child); !outcome)
            return outcome;
    return {};
}

void tellAttribute(Happening what, Node& node, Attribute& attribute)
{
    Observers& observers = node.scene().observers();
    if (!observers.want(what))
        return;
    const Plug plug(node, attribute);
    observers.tell({what, &node, nullptr, &plug});
}

bool isLegalAttributeName(const std::string& name)
{
    const auto isWord = [](char c) { return std::isalnum(static_cast<unsigned char>(c)) || c == '_'; };
    return !name.empty() && !std::isdigit(static_cast<unsigned char>(name[0])) &&
           std::all_of(name.begin(), name.end(), isWord);
}

} // namespace

Node::Node(Scene& scene, NodeType& type)
    : Object(ObjectClass::node), m_type(&type), m_scene(&scene), m_cells(std::make_unique<CellStore>(*this))
{
}

Node::~Node() = default;

std::vector<Attribute*> Node::attributes() const
{
    std::vector<Attribute*> result;
    result.reserve(m_type->attributes().size() + m_dynamic.size());
    for (const Ref<Attribute>& attribute : m_type->attributes())
        result.push_back(attribute.get());
    for (const Ref<Attribute>& attribute : m_dynamic)
        result.push_back(attribute.get());
    return result;
}

Attribute* Node::findAttribute(const std::string& name) const
{
    if (Attribute* attribute = m_type->find(name))
        return attribute;
    for (const Ref<Attribute>& attribute : m_dynamic)
        if (Attribute* found = findBelow(*attribute, name))
            return found;
    for (const auto& [alias, path] : m_aliases)
        if (alias == name)
            return const_cast<Node*>(this)->findPlug(path).value.attribute();
    return nullptr;
}

bool Node::hasAttribute(const Attribute& attribute) const
{
    if (attribute.owner)
        return m_type->isA(*attribute.owner);
    const Attribute* top = attribute.topLevel();
    return std::any_of(m_dynamic.begin(), m_dynamic.end(),
                       [&](const Ref<Attribute>& own) { return own.get() == top; });
}

Outcome Node::addDynamicAttribute(const Ref<Attribute>& attribute)
{
    if (!attribute)
        return Reason::nullArgument;
    if (attribute->parent || attribute->owner || !attribute->isNestedWithinLimits())
        return {Reason::wrongKind, "'" + attribute->longName + "' cannot be added to a node"};
    if (isLockedNode)
        return {Reason::readOnly, "'" + m_name + "' is locked"};
    if (Outcome outcome = checkNames(*this, *attribute); !outcome)
        return outcome;
    markDynamic(*attribute);
    m_dynamic.push_back(attribute);
    m_scene->isModified = true;
    const auto remove = [node = Ref<Node>(this), attribute] {
        if (node->isAlive())
            node->removeAttribute(*attribute);
    };
    Journal& journal = m_scene->journal();
    if (journal.isRecording())
        journal.record(std::make_unique<Making<decltype(remove)>>(journal, remove));
    tellAttribute(Happening::attributeAdded, *this, *attribute);
    return {};
}

/// That an attribute was removed, with all that the node held for it; the removal itself is the first redo().
class Node::AttributeRemoval final : public Edit
{
public:
    AttributeRemoval(Node& node, Attribute& attribute) : m_node(&node), m_attribute(&attribute) {}
    void undo() override
    {
        if (!m_node->isAlive())
            return;
        auto& all = m_node->m_dynamic;
        all.insert(all.begin() + static_cast<std::ptrdiff_t>(std::min(m_place, all.size())), m_attribute);
        if (m_cell)
            m_node->cells().put(std::move(m_cell));
        tellAttribute(Happening::attributeAdded, *m_node, *m_attribute);
    }
    void redo() override
    {
        auto& all = m_node->m_dynamic;
        const auto found = std::find(all.begin(), all.end(), m_attribute);
        if (found == all.end())
            return;
        m_place = static_cast<std::size_t>(found - all.begin());
        tellAttribute(Happening::attributeRemoved, *m_node, *m_attribute);
        m_cell = m_node->cells().take(*m_attribute);
        all.erase(found);
    }

private:
    Ref<Node> m_node;
    Ref<Attribute> m_attribute;
    std::size_t m_place = 0;
    std::unique_ptr<Cell> m_cell;
};

void Node::removeAttribute(Attribute& attribute)
{
    for (const Plug& plug : connectedPlugs(*this)) {
        if (!plug.isAtOrBelow(Plug(*this, attribute)))
            continue;
        if (const Plug source = sourceOf(plug); !source.isNull())
            m_scene->breakConnection(source, plug);
        for (const Plug& destination : destinationsOf(plug))
            m_scene->breakConnection(plug, destination);
    }
    auto removal = std::make_unique<AttributeRemoval>(*this, attribute);
    removal->redo();
    m_scene->journal().record(std::move(removal));
    m_scene->isModified = true;
}

void Node::keepDeclaration(Attribute& attribute)
{
    Journal& journal = m_scene->journal();
    if (!journal.isRecording())
        return;
    const auto exchange = [now = Ref<Attribute>(&attribute), held = copyOf(attribute)] {
        now->swapDeclaration(*held);
    };
    journal.record(exchange, exchange);
}

void Node::setUuid(std::string uuid)
{
    Event change{Happening::uuidChanged, this};
    change.text = m_uuid;
    std::swap(m_uuid, uuid);
    m_scene->journal().keepFormer(m_uuid, std::move(uuid), Ref<Node>(this));
    m_scene->observers().tell(change);
}

void Node::setLocked(bool locked)
{
    m_scene->journal().keep(isLockedNode, Ref<Node>(this));
    isLockedNode = locked;
}

Outcome Node::removeDynamicAttribute(Attribute& attribute)
{
    const auto found = std::find_if(m_dynamic.begin(), m_dynamic.end(),
                                    [&](const Ref<Attribute>& own) { return own.get() == &attribute; });
    if (found == m_dynamic.end())
        return {Reason::notFound,
                "'" + attribute.longName + "' is not a dynamic attribute of '" + m_name + "'"};
    if (isLocked(Plug(*this, attribute)))
        return {Reason::lockedOrConnected, "'" + m_name + "." + attribute.longName + "' is locked"};
    dropAliasesOf(attribute);
    removeAttribute(attribute);
    return {};
}

/// Takes away the aliases of an attribute, of its elements and its children.
void Node::dropAliasesOf(const Attribute& attribute)
{
    const auto isOf = [&](const std::pair<std::string, std::string>& entry) {
        const Attribute* named = findAttribute(entry.second.substr(0, entry.second.find_first_of(".[")));
        return named && named->topLevel() == &attribute;
    };
    if (std::none_of(m_aliases.begin(), m_aliases.end(), isOf))
        return;
    m_scene->journal().keep(m_aliases, Ref<Node>(this));
    m_aliases.erase(std::remove_if(m_aliases.begin(), m_aliases.end(), isOf), m_aliases.end());
}

void Node::renameInAliases(const std::string& before, const std::string& after)
{
    m_scene->journal().keep(m_aliases, Ref<Node>(this));
    for (auto& [alias, path] : m_aliases)
        for (std::size_t start = 0; start < path.size();) {
            const std::size_t end = std::min(path.find_first_of(".[", start), path.size());
            if (path.compare(start, end - start, before) == 0)
                path.replace(start, end - start, after);
            start = std::min(path.find('.', start), path.size() - 1) + 1;
        }
}

Outcome Node::setAlias(const Plug& plug, const std::string& alias)
{
    PlugNameStyle style;
    style.withNode = false;
    const std::string path = plug.name(style);
    const auto sameName = std::find_if(m_aliases.begin(), m_aliases.end(),
                                       [&](const auto& entry) { return entry.first == alias; });
    if (!alias.empty()) {
        if (!isLegalAttributeName(alias))
            return {Reason::invalidName, "'" + alias + "' is not a legal name"};
        if (sameName != m_aliases.end() && sameName->second == path)
            return {};
        if (findAttribute(alias))
            return {Reason::nameTaken, "'" + m_name + "' has an attribute named '" + alias + "'"};
    }
    m_scene->journal().keep(m_aliases, Ref<Node>(this));
    m_aliases.erase(std::remove_if(m_aliases.begin(), m_aliases.end(),
                                   [&](const auto& entry) { return entry.second == path; }),
                    m_aliases.end());
    if (!alias.empty())
        m_aliases.emplace_back(alias, path);
    m_scene->isModified = true;
    return {};
}

std::string Node::aliasOf(const Plug& plug) const
{
    if (m_aliases.empty())
        return {};
    PlugNameStyle style;
    style.withNode = false;
    const std::string path = plug.name(style);
    for (const auto& [alias, aliasPath] : m_aliases)
        if (aliasPath == path)
            return alias;
    return {};
}

namespace {

/// Reads "name", "name[3]" and "[3]" pieces of a plug's path.
class PathReader
{
public:
    explicit PathReader(const std::string& path) : m_rest(path) {}

    bool atEnd() const { return m_rest.empty(); }
    std::string name()
    {
        const std::size_t end = std::min(m_rest.find_first_of(".["), m_rest.size());
        std::string result(m_rest.substr(0, end));
        m_rest.remove_prefix(end);
        return result;
    }
    bool skip(char c)
    {
        if (m_rest.empty() || m_rest[0] != c)
            return false;
        m_rest.remove_prefix(1);
        return true;
    }
    /// A whole index with its closing bracket; nothing when it is malformed.
    std::optional<int> index()
    {
        int value = 0;
        const auto [end, error] = std::from_chars(m_rest.data(), m_rest.data() + m_rest.size(), value);
        if (error != std::errc() || value < Plug::kNoIndex)
            return std::nullopt;
        m_rest.remove_prefix(static_cast<std::size_t>(end - m_rest.data()));
        return skip(']') ? std::optional(value) : std::nullopt;
    }

private:
    std::string_view m_rest;
};

} // namespace

Expected<Plug> Node::findPlug(const std::string& path)
{
    const auto notFound = [&] {
        return Outcome(Reason::notFound, "'" + m_name + "' has no attribute '" + path + "'");
    };
    PathReader reader(path);
    std::vector<std::pair<Attribute*, int>> indices;
    Attribute* attribute = nullptr;
    std::string alias;
    do {
        const std::string step = reader.name();
        Attribute* next = attribute ? findBelow(*attribute, step) : findAttribute(step);
        if (!next || next == attribute)
            return notFound();
        if (!attribute && next->longName != step && next->shortName != step)
            alias = step;
        attribute = next;
        if (!reader.skip('['))
            continue;
        const std::optional<int> index = reader.index();
        if (!index || !attribute->isArray())
            return notFound();
        indices.emplace_back(attribute, *index);
    } while (reader.skip('.'));
    if (!reader.atEnd())
        return notFound();

    for (const auto& [name, aliasPath] : m_aliases)
        if (!alias.empty() && name == alias)
            return findPlug(aliasPath + path.substr(alias.size()));

    Plug plug(*this, *attribute);
    for (const auto& [array, index] : indices)
        if (index != Plug::kNoIndex || array != attribute)
            plug.selectIndex(*array, index);
    return plug;
}

} // namespace tvxhost::engine
