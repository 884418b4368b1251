// What a scene has changed about the nodes of a reference; see textOf() in referenceEdits.h.
#include "referenceEdits.h"

#include "connectionEnd.h"
#include "lightLinks.h"
#include "referenceNames.h"
#include "referenceStatements.h"
#include "references.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

namespace tvxhost::scene {

using engine::DagNode;
using engine::Expected;
using engine::Node;
using engine::Outcome;
using engine::Plug;
using engine::Reason;
using engine::Reference;
using engine::ReferenceEdit;
using engine::Scene;

namespace {

constexpr const char* kParentFlags = "-s -r ";

/// Placeholders of a reference within another one: its own file says what is connected to them.
bool isForeignPlaceholder(const Plug& plug)
{
    return plug.node()->isReferenced && plug.node()->type().name == "reference";
}

/// Whether connections say `-na` of this destination.
bool isNextAvailable(const Plug& destination)
{
    return destination.isElement() && !destination.attribute()->flags.indexMatters;
}

/// Writes what has become of the nodes of one reference, and of those below it.
class EditCollector
{
public:
    EditCollector(Scene& scene, Reference& reference)
        : m_scene(scene), m_reference(reference), m_nodes(allNodes(scene, reference)),
          m_own(m_nodes.begin(), m_nodes.end())
    {
        for (const auto& each : scene.references) {
            for (const engine::Ref<Node>& node : each->nodes)
                m_owners[node.get()] = each.get();
            if (&topReference(*each) == &reference)
                m_parts.push_back(each.get());
        }
        m_text.referenceNode = reference.nodeName;
        m_text.placeholders = lastKeptPlaceholder();
    }

    ReferenceText collect()
    {
        for (Node* node : m_nodes)
            collectParent(*node);
        collectFosterChildren();
        for (Node* node : m_nodes)
            collectDeclarations(*node);
        collectKnownValues();
        for (Node* node : m_nodes)
            collectValues(*node);
        for (const auto& [source, destination] : m_reference.baseline.connections)
            collectCut(source, destination);
        for (Node* node : m_nodes)
            collectConnections(*node);
        for (Node* node : m_nodes)
            collectLinks(*node);
        collectKeptEdits();
        return std::move(m_text);
    }

private:
    void add(const Reference& owner, ReferenceEdit edit, std::string otherEnd = {})
    {
        m_text.edits.push_back({owner.nodeName, std::move(edit), false, std::move(otherEnd)});
    }
    const Reference& ownerOf(const Node& node) const { return *m_owners.at(&node); }

    void collectParent(Node& node)
    {
        const auto before = m_reference.baseline.parents.find(&node);
        DagNode* dag = node.asDag();
        if (!dag || before == m_reference.baseline.parents.end() ||
            dag->parents().front() == before->second.first)
            return;
        DagNode& now = *dag->parents().front();
        add(ownerOf(node),
            {ReferenceEdit::parent,
             ReferenceEdit::both,
             {before->second.second, now.isWorld() ? std::string() : editName(now), kParentFlags}});
    }

    void collectFosterChildren()
    {
        for (Node* node : m_nodes) {
            DagNode* dag = node->asDag();
            if (!dag)
                continue;
            for (DagNode* child : dag->children()) {
                if (child->isReferenced || child->doNotWrite || child->parents().front() != dag)
                    continue;
                m_text.fosterChildren.emplace_back(child, fosterName(m_reference));
                add(ownerOf(*node),
                    {ReferenceEdit::parent,
                     ReferenceEdit::both,
                     {"|" + fosterName(m_reference) + "|" + child->name(), editName(*dag), kParentFlags}});
            }
        }
    }

    void collectDeclarations(Node& node)
    {
        const auto before = m_reference.baseline.values.find(&node);
        for (const NodeStatement& statement : statementsOf(m_scene, node)) {
            if (!statement.isDeclaration || before == m_reference.baseline.values.end() ||
                before->second.count(statement.path) != 0)
                continue;
            add(ownerOf(node), {ReferenceEdit::addAttribute,
                                ReferenceEdit::both,
                                {editName(node), statement.longName, statement.path, statement.words}});
        }
    }

    /// Attributes that edits have set once stay in the edits, whatever their value is now.
    void collectKnownValues()
    {
        for (const auto& [node, path] : m_reference.setByEdits) {
            const auto plug =
                node->isAlive() ? node->findPlug(path) : Expected<Plug>(Outcome(Reason::notFound));
            if (plug && m_own.count(node.get()) != 0)
                addValue(plug.value, statementOf(m_scene, plug.value));
        }
    }

    void collectValues(Node& node)
    {
        const auto known = m_reference.baseline.values.find(&node);
        if (known == m_reference.baseline.values.end())
            return;
        std::unordered_set<std::string> written;
        for (const NodeStatement& statement : statementsOf(m_scene, node)) {
            if (statement.isDeclaration)
                continue;
            written.insert(statement.path);
            const auto before = known->second.find(statement.path);
            if (before != known->second.end() && before->second == statement.digest())
                continue;
            const auto plug = node.findPlug(statement.path);
            if (plug)
                addValue(plug.value, statement.words);
            else if (m_told.insert(editName(node) + "." + statement.path).second)
                add(ownerOf(node), {ReferenceEdit::setAttribute,
                                    ReferenceEdit::both,
                                    {editName(node), statement.path, statement.words}});
        }
        std::vector<std::string> gone;
        for (const auto& entry : known->second)
            if (written.count(entry.first) == 0)
                gone.push_back(entry.first);
        std::sort(gone.begin(), gone.end());
        for (const std::string& path : gone)
            if (const auto plug = node.findPlug(path); plug && !engine::isFedAnywhere(plug.value))
                addValue(plug.value, statementOf(m_scene, plug.value));
    }

    void addValue(const Plug& plug, const std::string& words)
    {
        const std::string name = editName(plug);
        if (words.empty() || !m_told.insert(name).second)
            return;
        const std::string node = editName(*plug.node());
        add(ownerOf(*plug.node()),
            {ReferenceEdit::setAttribute, ReferenceEdit::both, {node, name.substr(node.size() + 1), words}});
    }

    void collectCut(const Plug& source, const Plug& destination)
    {
        if (!source.isValid() || !destination.isValid() || engine::sourceOf(destination) == source ||
            isForeignPlaceholder(source) || isForeignPlaceholder(destination))
            return;
        const Node& node = m_own.count(source.node()) != 0 ? *source.node() : *destination.node();
        const bool isNext = isNextAvailable(destination);
        add(ownerOf(node),
            {ReferenceEdit::disconnect,
             ReferenceEdit::both,
             {editName(source), editName(isNext ? destination.array() : destination), isNext ? "-na" : ""}});
    }

    void collectConnections(Node& node)
    {
        for (const Plug& plug : engine::connectedPlugs(node)) {
            if (const Plug source = engine::sourceOf(plug); !source.isNull())
                collectConnection(source, plug);
            for (const Plug& destination : engine::destinationsOf(plug))
                if (m_own.count(destination.node()) == 0)
                    collectConnection(plug, destination);
        }
    }

    bool wasThere(const Plug& source, const Plug& destination) const
    {
        return m_reference.baseline.connectionKeys.count(connectionKey(source, destination)) != 0;
    }

    /// Links of lights are edits of their own.
    void collectLinks(Node& node)
    {
        for (const Plug& plug : engine::connectedPlugs(node))
            for (const Plug& destination : engine::destinationsOf(plug))
                if (const LightLink link = lightLinkAt(destination);
                    link.isWhole() && !wasThere(plug, destination))
                    collectLink(plug, link);
    }

    void collectLink(const Plug& own, const LightLink& link)
    {
        // A link of two nodes of the reference is told once.
        if (own == link.light && m_own.count(link.object.node()) != 0)
            return;
        add(ownerOf(*own.node()),
            {kRelationshipEdit,
             ReferenceEdit::both,
             {link.kind, editName(*link.element.node()), editName(link.object), editName(link.light), "0"}});
    }

    void collectConnection(const Plug& source, const Plug& destination)
    {
        if (wasThere(source, destination) || isForeignPlaceholder(source) ||
            isForeignPlaceholder(destination) || lightLinkAt(destination).isWhole())
            return;
        const bool ownsSource = m_own.count(source.node()) != 0;
        const bool ownsDestination = m_own.count(destination.node()) != 0;
        const bool isNext = isNextAvailable(destination);
        const Plug named = isNext ? destination.array() : destination;
        ReferenceText::Placeholder placeholder{source, destination, {}, {}};
        ReferenceEdit edit;
        edit.kind = ReferenceEdit::connect;
        edit.words = {m_reference.nodeName};
        if (ownsSource)
            edit.words.push_back(editName(source));
        if (ownsDestination)
            edit.words.push_back(editName(named));
        if (ownsSource)
            edit.words.push_back(nextPlaceholder(placeholder.sourceName));
        if (ownsDestination)
            edit.words.push_back(nextPlaceholder(placeholder.destinationName));
        edit.words.push_back(ownsSource && isNext ? connectionName(destination, true) : "");
        edit.ends = ownsSource && ownsDestination ? ReferenceEdit::both
                    : ownsSource                  ? ReferenceEdit::source
                                                  : ReferenceEdit::destination;
        const std::string otherEnd = !ownsSource        ? editName(source)
                                     : !ownsDestination ? editName(named)
                                                        : std::string();
        add(ownerOf(ownsDestination ? *destination.node() : *source.node()), std::move(edit), otherEnd);
        m_text.connections.push_back(std::move(placeholder));
    }

    /// A further placeholder: its name in edits; `shortName` is that in connections.
    std::string nextPlaceholder(std::string& shortName)
    {
        ++m_text.placeholders;
        shortName = m_reference.nodeName + ".phl[" + std::to_string(m_text.placeholders) + "]";
        return placeholderName(m_reference.nodeName, m_text.placeholders);
    }

    /// What no node shows: edits that failed, and those of other kinds.
    void collectKeptEdits()
    {
        for (const Reference* part : m_parts)
            for (const ReferenceEdit& edit : part->otherEdits)
                m_text.edits.push_back({part->nodeName, edit, hasFailed(m_scene, edit), {}});
    }

    /// Placeholders of edits that failed keep their numbers.
    std::size_t lastKeptPlaceholder() const
    {
        int last = 0;
        for (const Reference* part : m_parts)
            for (const ReferenceEdit& edit : part->otherEdits)
                for (const std::size_t at : placeholdersOf(edit))
                    last = std::max(last, placeholderIndex(edit.words[at]));
        return static_cast<std::size_t>(last);
    }

    Scene& m_scene;
    Reference& m_reference;
    std::vector<Node*> m_nodes;
    std::unordered_set<const Node*> m_own;
    std::unordered_map<const Node*, const Reference*> m_owners;
    std::vector<const Reference*> m_parts;  ///< the reference and those below it
    std::unordered_set<std::string> m_told; ///< plugs whose value has been written
    ReferenceText m_text;
};

} // namespace

ReferenceText textOf(Scene& scene, Reference& reference)
{
    return EditCollector(scene, reference).collect();
}

} // namespace tvxhost::scene
