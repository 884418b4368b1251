// The edits of references; see referenceEdits.h.
#include "referenceEdits.h"

#include "attributeDeclaration.h"
#include "connectionEnd.h"
#include "lineBreaker.h"
#include "nodeWriter.h"
#include "pendingCompounds.h"
#include "plugTarget.h"
#include "referenceStatements.h"
#include "references.h"
#include "setAttr.h"

#include "engine/data.h"
#include "mel/parser.h"

#include <algorithm>
#include <functional>
#include <map>

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
constexpr const char* kPlaceholders = ".placeHolderList[";

/// The kind of edits that say what a `relationship` statement says: a kind of link, its node, and as many
/// plugs as a number tells, with a further number behind them.
constexpr int kRelationship = 7;
constexpr std::size_t kRelationshipNames = 2;

std::string fullName(Node& node)
{
    DagNode* dag = node.asDag();
    return dag ? engine::DagPath::firstTo(*dag).fullName() : referenceName(node);
}

/// A plug as edits name it: long names, world-space arrays without an index.
std::string editName(const Plug& plug)
{
    engine::PlugNameStyle style;
    style.withNode = false;
    std::string path = plug.name(style);
    if (isPerInstance(*plug.attribute()) && path.find('[') != std::string::npos)
        path.erase(path.find('['), path.find(']') + 1 - path.find('['));
    return fullName(*plug.node()) + "." + path;
}

std::string connectionKey(const Plug& source, const Plug& destination)
{
    const auto key = [](const Plug& plug) {
        return std::to_string(plug.node()->serial()) + "." + filePath(plug);
    };
    return key(source) + ">" + key(destination);
}

// Edits as text

/// Words that follow a kind of edit.
int wordCount(int kind)
{
    switch (kind) {
    case ReferenceEdit::addAttribute:
        return 4;
    case ReferenceEdit::parent:
    case ReferenceEdit::setAttribute:
    case ReferenceEdit::disconnect:
        return 3;
    default:
        return 2;
    }
}

int connectionWordCount(int ends)
{
    return ends == ReferenceEdit::both ? 6 : 4;
}

/// Takes edits apart; false where they are not understood.
class EditReader
{
public:
    explicit EditReader(std::string text) : m_text("edits " + std::move(text) + ";"), m_statements(m_text, "")
    {
    }

    bool read(std::vector<ReferenceEdit>& edits)
    {
        try {
            if (!m_statements.next() || !m_statements.plain())
                return false;
        } catch (const mel::SyntaxError&) {
            return false;
        }
        const mel::ArgumentList& arguments = m_statements.plain()->arguments;
        Words words(arguments.begin(), arguments.end());
        words.text();
        while (!words.atEnd() && !words.failed()) {
            words.text();
            for (int left = words.integer(); left > 0 && !words.failed(); --left)
                edits.push_back(readOne(words));
        }
        return !words.failed();
    }

private:
    static ReferenceEdit readOne(Words& words)
    {
        ReferenceEdit edit;
        edit.kind = words.integer();
        if (edit.kind == kRelationship)
            return relationship(words);
        int count = wordCount(edit.kind);
        if (edit.kind == ReferenceEdit::connect) {
            edit.ends = words.integer();
            count = connectionWordCount(edit.ends);
        }
        for (; count > 0; --count)
            edit.words.push_back(words.text());
        return edit;
    }

    static ReferenceEdit relationship(Words& words)
    {
        ReferenceEdit edit;
        edit.kind = kRelationship;
        for (std::size_t i = 0; i < kRelationshipNames; ++i)
            edit.words.push_back(words.text());
        for (int left = words.integer(); left > 0 && !words.failed(); --left)
            edit.words.push_back(words.text());
        edit.words.push_back(std::to_string(words.integer()));
        return edit;
    }

    std::string m_text;
    mel::StatementReader m_statements;
};

/// The words of an edit as they stand in a file.
std::vector<std::string> fileWords(const ReferenceEdit& edit)
{
    std::vector<std::string> words;
    for (const std::string& word : edit.words)
        words.push_back(mel::quoted(word));
    if (edit.kind == kRelationship) {
        const std::size_t plugs = edit.words.size() - kRelationshipNames - 1;
        words.back() = edit.words.back();
        words.insert(words.begin() + kRelationshipNames, std::to_string(plugs));
    }
    return words;
}

std::string editText(const ReferenceEdit& edit)
{
    constexpr std::size_t kLongLine = 80;
    std::string text = "\n\t\t" + std::to_string(edit.kind);
    if (edit.kind == ReferenceEdit::connect)
        text += ' ' + std::to_string(edit.ends);
    std::size_t lineStart = 0;
    for (const std::string& word : fileWords(edit)) {
        text += ' ';
        if (text.size() - lineStart > kLongLine) {
            lineStart = text.size();
            text += "\n\t\t";
        }
        text += word;
    }
    return text;
}

// Applying

Plug destinationFedBy(const Plug& source, const Plug& destination)
{
    for (const Plug& fed : engine::destinationsOf(source))
        if (fed == destination || (destination.isArray() && fed.isElement() && fed.array() == destination))
            return fed;
    return destination;
}

/// Applies edits one after the other to a reference's nodes.
class EditApplier
{
public:
    EditApplier(Scene& scene, Reference& reference) : m_scene(scene), m_reference(reference) {}

    void apply(const ReferenceEdit& edit)
    {
        if (!isApplied(edit))
            m_reference.otherEdits.push_back(edit);
    }

private:
    bool isApplied(const ReferenceEdit& edit)
    {
        switch (edit.kind) {
        case ReferenceEdit::parent:
            return parent(edit.words[0], edit.words[1]);
        case ReferenceEdit::addAttribute:
            return addAttribute(edit);
        case ReferenceEdit::setAttribute:
            return setAttribute(edit);
        case ReferenceEdit::disconnect:
            return disconnect(edit.words[0], edit.words[1]);
        case ReferenceEdit::connect:
            return connect(edit);
        case ReferenceEdit::lock:
        case ReferenceEdit::unlock:
            return lock(edit);
        case ReferenceEdit::deleteAttribute:
            deleteAttribute(edit);
            return false;
        default:
            return false;
        }
    }

    Node* nodeNamed(const std::string& name) const
    {
        const auto found = m_scene.findNode(name);
        return found ? found.value : nullptr;
    }

    bool parent(const std::string& childName, const std::string& parentName)
    {
        const auto item = m_scene.findItem(childName);
        DagNode* child = item ? item.value.node->asDag() : nullptr;
        Node* under = parentName.empty() ? nullptr : nodeNamed(parentName);
        if (!child || (!parentName.empty() && (!under || !under->asDag())))
            return false;
        const auto& path = item.value.path;
        DagNode* from = path.length() > 1 ? path.nodeAt(path.length() - 2) : nullptr;
        return static_cast<bool>(m_scene.reparent(*child, from, under ? under->asDag() : nullptr));
    }

    bool addAttribute(const ReferenceEdit& edit)
    {
        Node* node = nodeNamed(edit.words[0]);
        if (!node)
            return false;
        const std::string text = "addAttr -ln " + mel::quoted(edit.words[1]) + " -sn " +
                                 mel::quoted(edit.words[2]) + edit.words[3] + ";";
        mel::StatementReader reader(text, "");
        try {
            if (!reader.next() || !reader.plain())
                return false;
            const auto flags = mel::parseArguments(m_addAttr, reader.plain()->arguments);
            const auto declaration = declarationFrom(flags, m_scene.units());
            return declaration && m_compounds.declare(*node, declaration.value);
        } catch (const mel::SyntaxError&) {
            return false;
        } catch (const mel::ValueError&) {
            return false;
        }
    }

    bool setAttribute(const ReferenceEdit& edit)
    {
        Node* node = nodeNamed(edit.words[0]);
        if (!node)
            return false;
        const std::string text = "setAttr " + mel::quoted("." + edit.words[1]) + edit.words[2] + ";";
        mel::StatementReader reader(text, "");
        try {
            if (!reader.next() || !reader.plain())
                return false;
        } catch (const mel::SyntaxError&) {
            return false;
        }
        auto request = parseSetAttr(reader.plain()->arguments);
        const auto target = findTarget(*node, edit.words[1]);
        if (!request || !target)
            return false;
        request.value.source = text;
        if (!applySetAttr(target.value, request.value, {m_scene.units(), engine::Limits::ignore}))
            return false;
        if (!target.value.isRange && request.value.hasValues())
            m_reference.setByEdits.emplace_back(node, filePath(target.value.plug));
        return true;
    }

    bool lock(const ReferenceEdit& edit)
    {
        const auto plug = m_scene.findPlug(edit.words[0] + "." + edit.words[1]);
        if (!plug)
            return false;
        engine::PlugState state = engine::stateOf(plug.value);
        state.locked = edit.kind == ReferenceEdit::lock;
        engine::setState(plug.value, state);
        return true;
    }

    void deleteAttribute(const ReferenceEdit& edit)
    {
        Node* node = nodeNamed(edit.words[0]);
        engine::Attribute* attribute = node ? node->findAttribute(edit.words[1]) : nullptr;
        if (attribute)
            (void)node->removeDynamicAttribute(*attribute);
    }

    bool disconnect(const std::string& sourceName, const std::string& destinationName)
    {
        const auto source = connectionEnd(m_scene, sourceName);
        const auto destination = connectionEnd(m_scene, destinationName);
        return source && destination &&
               m_scene.disconnect(source.value, destinationFedBy(source.value, destination.value));
    }

    bool connect(const ReferenceEdit& edit)
    {
        const std::vector<std::string>& words = edit.words;
        if (edit.ends == ReferenceEdit::both)
            return connectInside(words);
        const auto own = connectionEnd(m_scene, words[1]);
        const auto placeholder = m_scene.findPlug(words[2]);
        if (!own || !placeholder)
            return false;
        if (edit.ends == ReferenceEdit::source)
            return passOn(own.value, placeholder.value);
        if (edit.ends != ReferenceEdit::destination)
            return false;
        const Plug source = engine::sourceOf(placeholder.value);
        if (source.isNull())
            return false;
        m_scene.breakConnection(source, placeholder.value);
        return join(source, own.value);
    }

    bool connectInside(const std::vector<std::string>& words)
    {
        const auto source = connectionEnd(m_scene, words[1]);
        const auto destination = connectionEnd(m_scene, words[2]);
        const auto from = m_scene.findPlug(words[3]);
        const auto to = m_scene.findPlug(words[4]);
        if (from && to)
            m_scene.breakConnection(from.value, to.value);
        return source && destination && join(source.value, destination.value);
    }

    /// What the placeholder feeds is fed by the node of the reference.
    bool passOn(const Plug& source, const Plug& placeholder)
    {
        const std::vector<Plug> destinations = engine::destinationsOf(placeholder);
        bool isDone = !destinations.empty();
        for (const Plug& destination : destinations) {
            m_scene.breakConnection(placeholder, destination);
            isDone = join(source, destination) && isDone;
        }
        return isDone;
    }

    bool join(const Plug& source, const Plug& destination)
    {
        const Plug to = destination.isArray() ? m_scene.nextAvailable(destination) : destination;
        return static_cast<bool>(m_scene.connect(source, to, true));
    }

    Scene& m_scene;
    Reference& m_reference;
    PendingCompounds m_compounds;
    mel::CommandSpec m_addAttr = addAttrSpec();
};

/// The values of placeholders mean nothing.
void dropPlaceholderLines(Node& node)
{
    auto& lines = node.keptLines;
    lines.erase(std::remove_if(lines.begin(), lines.end(),
                               [](const std::string& line) {
                                   return line.find("\".phl\"") != std::string::npos ||
                                          line.find("\".phl[") != std::string::npos;
                               }),
                lines.end());
}

/// The transform that held the scene's own nodes while the reference's were not there.
void dropFosterParent(Scene& scene, const Reference& reference)
{
    const auto found = scene.findNode("|" + fosterName(reference));
    if (found && found.value->type().name == "fosterParent" && found.value->asDag()->children().empty())
        (void)scene.deleteNode(*found.value);
}

// Finding out

/// Writes what has become of the nodes of one reference, and of those below it.
class EditCollector
{
public:
    EditCollector(Scene& scene, Reference& reference)
        : m_scene(scene), m_reference(reference), m_nodes(allNodes(scene, reference)),
          m_own(m_nodes.begin(), m_nodes.end())
    {
        for (const auto& each : scene.references)
            for (const engine::Ref<Node>& node : each->nodes)
                m_owners[node.get()] = each.get();
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
        for (const ReferenceEdit& edit : m_reference.otherEdits)
            add(m_reference, edit);
        writeEdits();
        return std::move(m_text);
    }

private:
    void add(const Reference& owner, ReferenceEdit edit) { m_edits[&owner].push_back(std::move(edit)); }
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
             {before->second.second, now.isWorld() ? std::string() : fullName(now), kParentFlags}});
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
                     {"|" + fosterName(m_reference) + "|" + child->name(), fullName(*dag), kParentFlags}});
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
                                {fullName(node), statement.longName, statement.path, statement.words}});
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
            else if (m_told.insert(fullName(node) + "." + statement.path).second)
                add(ownerOf(node), {ReferenceEdit::setAttribute,
                                    ReferenceEdit::both,
                                    {fullName(node), statement.path, statement.words}});
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
        const std::string node = fullName(*plug.node());
        add(ownerOf(*plug.node()),
            {ReferenceEdit::setAttribute, ReferenceEdit::both, {node, name.substr(node.size() + 1), words}});
    }

    void collectCut(const Plug& source, const Plug& destination)
    {
        if (engine::sourceOf(destination) == source || !source.isValid() || !destination.isValid())
            return;
        const Node& node = m_own.count(source.node()) != 0 ? *source.node() : *destination.node();
        const bool isNext = destination.isElement() && !destination.attribute()->flags.indexMatters;
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

    void collectConnection(const Plug& source, const Plug& destination)
    {
        if (m_reference.baseline.connectionKeys.count(connectionKey(source, destination)) != 0)
            return;
        const bool ownsSource = m_own.count(source.node()) != 0;
        const bool ownsDestination = m_own.count(destination.node()) != 0;
        const bool isNext = destination.isElement() && !destination.attribute()->flags.indexMatters;
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
        add(ownerOf(ownsDestination ? *destination.node() : *source.node()), std::move(edit));
        m_text.connections.push_back(std::move(placeholder));
    }

    /// A further placeholder: its name in edits; `shortName` is that in connections.
    std::string nextPlaceholder(std::string& shortName)
    {
        const std::string number = std::to_string(++m_text.placeholders) + "]";
        shortName = m_reference.nodeName + ".phl[" + number;
        return m_reference.nodeName + kPlaceholders + number;
    }

    void writeEdits()
    {
        std::string& lines = m_text.edits;
        lines = " \n\t\t" + mel::quoted(m_reference.nodeName);
        const auto writeGroup = [&](const Reference& owner, const std::vector<ReferenceEdit>& edits) {
            lines += "\n\t\t" + mel::quoted(owner.nodeName) + ' ' + std::to_string(edits.size());
            for (const ReferenceEdit& edit : edits)
                lines += editText(edit);
        };
        writeGroup(m_reference, m_edits[&m_reference]);
        for (const auto& other : m_scene.references)
            if (other.get() != &m_reference && m_edits.count(other.get()) != 0)
                writeGroup(*other, m_edits[other.get()]);
    }

    Scene& m_scene;
    Reference& m_reference;
    std::vector<Node*> m_nodes;
    std::unordered_set<const Node*> m_own;
    std::unordered_map<const Node*, const Reference*> m_owners;
    std::map<const Reference*, std::vector<ReferenceEdit>> m_edits;
    std::unordered_set<std::string> m_told; ///< plugs whose value has been written
    ReferenceText m_text;
};

} // namespace

std::string fosterName(const Reference& reference)
{
    return reference.nodeName + "fosterParent1";
}

void takeBaseline(Scene& scene, Reference& reference)
{
    engine::ReferenceBaseline& baseline = reference.baseline;
    baseline = {};
    for (Node* node : allNodes(scene, reference)) {
        auto& values = baseline.values[node];
        for (const NodeStatement& statement : statementsOf(scene, *node))
            values[statement.path] = statement.digest();
        if (DagNode* dag = node->asDag(); dag && !dag->parents().empty())
            baseline.parents[node] = {dag->parents().front(), fullName(*node)};
        const auto note = [&](const Plug& source, const Plug& destination) {
            if (baseline.connectionKeys.insert(connectionKey(source, destination)).second)
                baseline.connections.emplace_back(source, destination);
        };
        for (const Plug& plug : engine::connectedPlugs(*node)) {
            if (const Plug source = engine::sourceOf(plug); !source.isNull())
                note(source, plug);
            for (const Plug& destination : engine::destinationsOf(plug))
                note(plug, destination);
        }
    }
}

void applyEdits(Scene& scene, Reference& reference)
{
    const auto node = scene.findNode(":" + reference.nodeName);
    if (!node)
        return;
    const auto edits = node.value->findPlug("ed");
    const auto data = edits ? engine::readData(edits.value) : Expected<engine::Ref<engine::Data>>();
    if (!data || !data.value || data.value->type() != engine::DataType::plugin)
        return;
    std::vector<ReferenceEdit> all;
    if (!EditReader(static_cast<const engine::KeptData&>(*data.value).text).read(all)) {
        scene.scriptEditor().warning("The edits of reference '" + reference.nodeName +
                                     "' are not understood; they are kept.");
        reference.keepsEdits = true;
        return;
    }
    EditApplier applier(scene, reference);
    for (const ReferenceEdit& edit : all)
        applier.apply(edit);
    engine::storeInternal(edits.value, engine::Ref<engine::Data>());
    dropPlaceholderLines(*node.value);
    if (const auto placeholders = node.value->findPlug("phl"))
        for (const int index : engine::existingElements(placeholders.value))
            if (!engine::isConnected(placeholders.value.element(index)))
                (void)engine::removeElement(placeholders.value, index);
    dropFosterParent(scene, reference);
}

void giveEditsBack(Scene& scene, Reference& reference, const ReferenceText& text)
{
    const auto node = scene.findNode(":" + reference.nodeName);
    if (!node || reference.keepsEdits)
        return;
    if (const auto edits = node.value->findPlug("ed"))
        engine::storeInternal(
            edits.value, engine::Ref<engine::Data>(new engine::KeptData("dataReferenceEdits", text.edits)));
    for (std::size_t i = 1; i <= text.placeholders; ++i)
        node.value->keptLines.push_back("setAttr \".phl[" + std::to_string(i) + "]\" 0;");
    for (const ReferenceText::Placeholder& placeholder : text.connections) {
        const auto source = placeholder.sourceName.empty() ? Expected<Plug>(placeholder.source)
                                                           : scene.findPlug(placeholder.sourceName);
        const auto destination = placeholder.destinationName.empty()
                                     ? Expected<Plug>(placeholder.destination)
                                     : scene.findPlug(placeholder.destinationName);
        if (source && destination && source.value.isValid() && destination.value.isValid())
            (void)scene.connect(source.value, destination.value, true);
    }
}

ReferenceText textOf(Scene& scene, Reference& reference)
{
    return EditCollector(scene, reference).collect();
}

} // namespace tvxhost::scene
