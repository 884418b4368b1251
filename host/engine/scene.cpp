// Scene: the life of a session: nodes made, named, deleted; selection; time.
#include "scene.h"

#include "animCurve.h"
#include "cell.h"
#include "defaultNodes.h"
#include "deletion.h"
#include "dirtySpread.h"
#include "glob.h"
#include "nameTable.h"
#include "observers.h"
#include "pluginData.h"
#include "uuid.h"

#include <algorithm>
#include <cctype>

namespace tvxhost::engine {

namespace {

Scene* g_current = nullptr;

constexpr const char* kUnknownShape = "unknownDag";
constexpr const char* kUnknownTransform = "unknownTransform";

bool isLegalIn(char c)
{
    return std::isalnum(static_cast<unsigned char>(c)) || c == '_';
}

/// "fooShape2" = "foo" + "2": the name of the transform for a shape of that name; empty for other names.
std::string transformNameFor(const std::string& shapeName)
{
    constexpr std::string_view kShape = "Shape";
    const std::size_t digits = shapeName.find_last_not_of("0123456789") + 1;
    const std::string stem = shapeName.substr(0, digits);
    if (stem.size() <= kShape.size() || stem.compare(stem.size() - kShape.size(), kShape.size(), kShape) != 0)
        return {};
    return stem.substr(0, stem.size() - kShape.size()) + shapeName.substr(digits);
}

std::string defaultNameOf(const NodeType& type)
{
    return type.baseName.empty() ? type.name + "1" : type.baseName + "Shape1";
}

std::string defaultTransformNameOf(const NodeType& type)
{
    return type.baseName.empty() ? "transform1" : type.baseName + "1";
}

/// A new shape is shown and hidden by its transform: its own visibility is not offered for keys.
void makeVisibilityNonKeyable(Node& shape)
{
    Attribute* visibility = shape.type().find("visibility");
    if (!visibility)
        return;
    PlugState state;
    state.keyable = false;
    setState(Plug(shape, *visibility), state);
}

/// What a node computes may hang on things that changed while it was away.
void outdateComputed(Node& node)
{
    DirtySpread spread;
    for (const std::unique_ptr<Cell>& root : node.cells().roots())
        if (node.isOutput(root->attribute()))
            spread.outdated(*root);
    spread.run();
}

} // namespace

Scene::Scene(bool batch)
    : m_batch(batch), m_observers(std::make_unique<Observers>()),
      m_dataTypes(std::make_unique<PluginDataTypes>()), m_types(std::make_unique<TypeTable>()),
      m_names(std::make_unique<NameTable>()), m_journal(!batch)
{
    if (!g_current)
        g_current = this;
    m_world = &makeWorld();
    makeDefaultNodes(*this);
    isModified = false;
}

Scene::~Scene()
{
    // Those who listened may be gone before the scene is.
    m_observers = std::make_unique<Observers>();
    emptyScene();
    takeOut(*m_world);
    dispose(*m_world);
    if (g_current == this)
        g_current = nullptr;
}

Scene& Scene::current()
{
    static std::unique_ptr<Scene> own;
    if (!g_current)
        own = std::make_unique<Scene>();
    return *g_current;
}

void Scene::makeCurrent(Scene* scene)
{
    g_current = scene;
}

DagNode& Scene::makeWorld()
{
    auto* world = new DagNode(*this, *m_types->find("world"));
    world->isDefaultNode = true;
    world->doNotWrite = true;
    world->m_name = "world";
    world->m_uuid = makeUuid();
    world->retain();
    world->m_serial = m_nextSerial++;
    world->m_place = m_nodes.insert(m_nodes.end(), world);
    ++world->type().liveNodes;
    return *world;
}

void Scene::adopt(Node& node, const std::string& name)
{
    node.retain();
    node.m_name = name;
    node.m_uuid = makeUuid();
    node.m_serial = m_nextSerial++;
    node.m_place = m_nodes.insert(m_nodes.end(), &node);
    m_names->add(node);
    addNamespaceOf(name);
    ++node.type().liveNodes;
}

/// That a node left the scene. It can come back for as long as one of these lives.
class Scene::Departure final : public Edit
{
public:
    Departure(Node& node, Ref<Node> next) : m_node(&node), m_next(std::move(next)) { ++m_node->m_departures; }
    ~Departure() override
    {
        if (--m_node->m_departures == 0 && m_node->m_isWaiting)
            m_node->scene().dispose(*m_node);
    }
    void undo() override
    {
        if (m_node->m_isWaiting)
            m_node->scene().comeBack(*m_node, m_next);
    }
    void redo() override
    {
        if (!m_node->isAlive())
            return;
        m_node->scene().observers().tell({Happening::nodeRemoved, m_node.get()});
        m_next = m_node->scene().leave(*m_node);
        m_node->scene().wait(*m_node);
    }

private:
    Ref<Node> m_node;
    Ref<Node> m_next;
};

void Scene::retireNode(Node& node)
{
    const Ref<Node> next = leave(node);
    if (!m_journal.isRecording() && node.m_departures == 0) {
        dispose(node);
        return;
    }
    wait(node);
    if (m_journal.isRecording())
        m_journal.record(std::make_unique<Departure>(node, next));
}

/// Takes a node out with all that it holds; gives the one that follows it.
Ref<Node> Scene::leave(Node& node)
{
    m_names->remove(node);
    return takeOut(node);
}

/// The same for a node whose name has been forgotten.
Ref<Node> Scene::takeOut(Node& node)
{
    const auto next = m_nodes.erase(node.m_place);
    --node.type().liveNodes;
    node.setAlive(false);
    return next == m_nodes.end() ? Ref<Node>() : Ref<Node>(*next);
}

/// Keeps a node that left, so that it can come back.
void Scene::wait(Node& node)
{
    ++node.type().waitingNodes;
    node.m_isWaiting = true;
    m_waiting.insert(&node);
}

void Scene::comeBack(Node& node, const Ref<Node>& next)
{
    // Nodes made without being recorded may have taken the name.
    const bool isTaken =
        node.asDag() ? m_names->isTakenByDependencyNode(node.name()) : m_names->isTaken(node.name());
    if (isTaken)
        node.m_name = m_names->nextFree(node.name());
    m_names->add(node);
    auto place = next && next->isAlive() ? next->m_place : m_nodes.end();
    while (!next && place != m_nodes.begin() && (*std::prev(place))->m_serial > node.m_serial)
        --place;
    node.m_place = m_nodes.insert(place, &node);
    ++node.type().liveNodes;
    --node.type().waitingNodes;
    node.m_isWaiting = false;
    m_waiting.erase(&node);
    node.setAlive(true);
    outdateComputed(node);
    m_observers->tell({Happening::nodeAdded, &node});
}

/// Ends a node that cannot come back any more.
void Scene::dispose(Node& node)
{
    if (node.m_isWaiting) {
        m_waiting.erase(&node);
        node.m_isWaiting = false;
        --node.type().waitingNodes;
    }
    m_observers->tell({Happening::nodeDestroyed, &node});
    m_observers->forget(node);
    node.m_behaviour.reset();
    node.m_cells->clear();
    node.release();
}

Expected<Node*> Scene::createNode(const std::string& type, const std::string& name, DagNode* parent)
{
    NodeType* found = m_types->find(type);
    if (!found)
        return {Reason::doesNotExist, "Unknown object type: " + type};
    return createNode(*found, name, parent);
}

Expected<Node*> Scene::createNode(NodeType& type, const std::string& name, DagNode* parent)
{
    if (type.isAbstract)
        return {Reason::wrongKind, "Unknown object type: " + type.name};
    if (parent && !type.isDag)
        return {Reason::wrongKind, "a node of type '" + type.name + "' has no place below another"};
    if (parent && parent->type().name == kUnknownShape)
        becomeTransform(*parent);
    if (parent && parent->isShape())
        return {Reason::wrongKind, "'" + parent->name() + "' is a shape and cannot have children"};

    Expected<Node*> made = makeNode(type, name, parent);
    if (!made || !type.isDag)
        return made;
    auto& node = static_cast<DagNode&>(*made.value);
    if (!parent && type.isShape) {
        const std::string wish = name.empty() ? std::string() : transformNameFor(node.name());
        parent = createNode("transform", wish.empty() ? uniqueName(defaultTransformNameOf(type)) : ":" + wish)
                     .value->asDag();
    }
    link(parent ? *parent : *m_world, node);
    return made;
}

Expected<Node*> Scene::makeNode(NodeType& type, const std::string& name, DagNode* parent)
{
    const DagNode* scope = parent ? parent : (type.isDag && !type.isShape) ? m_world : nullptr;
    const bool isNamed = !name.empty() && name.back() != ':';
    const std::string wish = isNamed ? legalName(name, true) : defaultNameOf(type);
    const std::string fixedName = uniqueName(absoluteName(wish), nullptr, isNamed ? scope : nullptr);

    Ref<Node> node(type.isDag ? new DagNode(*this, type) : new Node(*this, type));
    adopt(*node, fixedName);
    node->m_madeInStep = m_journal.currentStep();
    if (Outcome outcome = complete(*node, isNamed ? fixedName : std::string()); !outcome)
        return outcome;
    const auto remove = [node] {
        if (node->isAlive())
            node->scene().erase(*node);
    };
    if (m_journal.isRecording())
        m_journal.record(std::make_unique<Making<decltype(remove)>>(m_journal, remove));
    isModified = true;
    m_observers->tell({Happening::nodeAdded, node.get()});
    return node.get();
}

/// What a node's type and its code make of it. What that edits comes and goes with the node.
Outcome Scene::complete(Node& node, const std::string& fixedName)
{
    const Journal::Into nothing(m_journal, nullptr);
    NodeType& type = node.type();
    if (type.isShape)
        makeVisibilityNonKeyable(node);
    const NodeType* coded = &type;
    while (coded && !coded->behaviour)
        coded = coded->parent;
    if (!coded)
        return {};
    node.m_behaviour = coded->behaviour(node);
    if (!node.m_behaviour) {
        retireNode(node);
        return {Reason::failed, "the code of '" + type.name + "' made no node"};
    }
    node.m_behaviour->postConstructor();
    if (!fixedName.empty() && node.name() != fixedName)
        putName(node, fixedName);
    return {};
}

Expected<Node*> Scene::createUnknown(const std::string& type, const std::string& name, DagNode* parent,
                                     bool isDag)
{
    // What stands below something is taken for a shape until it turns out to have children.
    const char* placeholder = !isDag || !parent ? (isDag ? kUnknownTransform : "unknown") : kUnknownShape;
    Expected<Node*> made = createNode(*m_types->find(placeholder), name, parent);
    if (made)
        made.value->unknownType = type;
    return made;
}

void Scene::becomeTransform(DagNode& placeholder)
{
    --placeholder.type().liveNodes;
    placeholder.m_type = m_types->find(kUnknownTransform);
    ++placeholder.type().liveNodes;
}

Outcome Scene::deleteNode(Node& node)
{
    if (!node.isAlive())
        return {Reason::doesNotExist, "the node was deleted"};
    if (Outcome allowed = checkDeletion(node); !allowed)
        return allowed;

    const Ref<Node> keptAlive(&node);
    m_observers->tell({Happening::nodeAboutToBeDeleted, &node});
    if (node.isAlive())
        erase(node);
    return {};
}

void Scene::erase(Node& node)
{
    // What hangs below goes too unless it hangs elsewhere as well: listed first, parents before children.
    std::vector<Ref<Node>> doomed = {Ref<Node>(&node)};
    for (std::size_t i = 0; i < doomed.size(); ++i) {
        DagNode* dag = doomed[i]->asDag();
        if (!dag)
            continue;
        if (i == 0)
            while (!dag->m_parents.empty())
                unlink(*dag->m_parents.front(), *dag);
        while (!dag->m_children.empty()) {
            DagNode& child = *dag->m_children.back();
            unlink(*dag, child);
            if (child.m_parents.empty())
                doomed.emplace_back(&child);
        }
    }
    for (const Ref<Node>& each : doomed) {
        m_observers->tell({Happening::nodeLeaving, each.get()});
        disconnectAll(*each);
    }
    for (const Ref<Node>& each : doomed) {
        deselect(m_selection, *each);
        deselect(m_hilite, *each);
        m_observers->tell({Happening::nodeRemoved, each.get()});
        retireNode(*each);
    }
    isModified = true;
}

void Scene::deselect(SelectionList& list, const Node& node)
{
    const std::vector<SelectionList::Placed> items = list.removeNode(node);
    if (items.empty())
        return;
    m_journal.record(
        [&list, items] { list.putBack(items); },
        [&list, removed = Ref<Node>(items.front().second.node)] { (void)list.removeNode(*removed); });
    if (&list == &m_selection)
        m_observers->tell({Happening::selectionChanged});
}

void Scene::makeUnknown(NodeType& type)
{
    NodeType* retired = nullptr;
    const auto convert = [&](Node* node, int NodeType::*count) {
        if (&node->type() != &type)
            return;
        if (!retired)
            retired = &m_types->retire(type);
        node->m_behaviour.reset();
        node->unknownType = type.name;
        node->unknownPlugin = type.plugin;
        node->m_type = retired;
        --(type.*count);
        ++(retired->*count);
    };
    for (Node* node : m_nodes)
        convert(node, &NodeType::liveNodes);
    for (Node* node : m_waiting)
        convert(node, &NodeType::waitingNodes);
}

// Names

std::string Scene::absoluteName(const std::string& name) const
{
    if (!name.empty() && name[0] == ':')
        return name.substr(1);
    return m_namespace == ":" ? name : m_namespace.substr(1) + ":" + name;
}

std::string Scene::legalName(const std::string& name, bool warn)
{
    std::string result = name;
    bool atStart = true;
    bool changed = false;
    for (char& c : result) {
        const bool isDigit = std::isdigit(static_cast<unsigned char>(c));
        if (c != ':' && (!isLegalIn(c) || (atStart && isDigit))) {
            c = '_';
            changed = true;
        }
        atStart = c == ':';
    }
    if (changed && warn)
        m_scriptEditor.warning(
            "New name contains invalid characters. Illegal characters were converted to \"_\".");
    return result;
}

bool Scene::isNameFree(const std::string& name, const Node* except, const DagNode* parent) const
{
    if (parent) {
        const DagNode* sibling = m_names->childNamed(*parent, name);
        return (!sibling || sibling == except) && !m_names->isTakenByDependencyNode(name);
    }
    const NameTable::Holders& holders = m_names->nodesNamed(name);
    return holders.empty() || (holders.size() == 1 && holders.front() == except);
}

std::string Scene::uniqueName(const std::string& wish, const Node* except, const DagNode* parent) const
{
    return isNameFree(wish, except, parent) ? wish : m_names->nextFree(wish);
}

void Scene::setName(Node& node, const std::string& name)
{
    if (m_journal.isRecording()) {
        const auto take = [this, named = Ref<Node>(&node)](const std::string& wish) {
            const DagNode* dag = named->asDag();
            const bool isFloating = dag && dag->m_parents.empty(); // about to be put in its place
            if (named->isAlive())
                putName(*named, isFloating
                                    ? wish
                                    : uniqueName(wish, named.get(), dag ? dag->m_parents.front() : nullptr));
        };
        m_journal.record([take, before = node.name()] { take(before); }, [take, name] { take(name); });
    }
    putName(node, name);
}

void Scene::putName(Node& node, const std::string& name)
{
    Event renaming{Happening::nodeRenamed, &node};
    renaming.text = node.name();
    DagNode* dag = node.asDag();
    if (dag)
        for (const DagNode* parent : dag->m_parents)
            m_names->removeChild(*parent, *dag);
    m_names->remove(node);
    node.m_name = name;
    m_names->add(node);
    if (dag)
        for (const DagNode* parent : dag->m_parents)
            m_names->addChild(*parent, *dag);
    if (renaming.text != name)
        m_observers->tell(renaming);
}

bool Scene::hasFixedName(const Node& node)
{
    return node.isDefaultNode || node.isShared || node.isLockedNode || node.isReferenced;
}

const DagNode* Scene::scopeOf(const Node& node)
{
    const DagNode* dag = node.asDag();
    return dag && !dag->m_parents.empty() ? dag->m_parents.front() : nullptr;
}

Expected<std::string> Scene::rename(Node& node, const std::string& name, bool createNamespace)
{
    if (!node.isAlive())
        return {Reason::doesNotExist, "the node was deleted"};
    if (hasFixedName(node))
        return {Reason::readOnly, "'" + node.name() + "' cannot be renamed"};
    if (name.empty() || name.find_first_not_of(':') == std::string::npos || name.back() == ':')
        return {Reason::invalidName, "'" + name + "' is not a legal name"};

    const bool wantsNumber = name.back() == '#';
    const std::string legal = legalName(wantsNumber ? name.substr(0, name.size() - 1) : name, true);
    const std::string wish = absoluteName(legal);
    const std::size_t colon = wish.rfind(':');
    if (!createNamespace && colon != std::string::npos && !hasNamespace(":" + wish.substr(0, colon)))
        return {Reason::doesNotExist, "there is no namespace '" + wish.substr(0, colon) + "'"};

    const std::string unique =
        wantsNumber ? m_names->firstFree(wish) : uniqueName(wish, &node, scopeOf(node));
    setName(node, unique);
    addNamespaceOf(unique);
    isModified = true;
    return unique;
}

// Selection, time, files

void Scene::setSelection(SelectionList selection)
{
    if (selection == m_selection)
        return;
    std::swap(m_selection, selection);
    m_journal.keepFormer(m_selection, std::move(selection));
    m_observers->tell({Happening::selectionChanged});
}

void Scene::setHilite(SelectionList hilite)
{
    if (hilite == m_hilite)
        return;
    std::swap(m_hilite, hilite);
    m_journal.keepFormer(m_hilite, std::move(hilite));
}

void Scene::setTime(double seconds)
{
    if (seconds == m_time)
        return;
    const auto go = [this](double time) {
        m_time = time;
        outdateTimedCurves(*this);
    };
    m_journal.record([go, before = m_time] { go(before); }, [go, seconds] { go(seconds); });
    go(seconds);
    if (Expected<Node*> clock = findNode(":time1"))
        if (Expected<Plug> out = clock.value->findPlug("outTime"))
            storeInternal(out.value, Number(seconds));
    m_observers->tell({Happening::timeChanged});
}

void Scene::emptyScene()
{
    m_journal.flush();
    const Journal::Into nothing(m_journal, nullptr);
    setSelection({});
    m_hilite.clear();
    std::vector<Node*> all(m_nodes.begin(), m_nodes.end());
    for (Node* node : all)
        if (node != m_world)
            m_observers->tell({Happening::nodeLeaving, node});
    for (Node* node : all)
        if (node != m_world)
            m_observers->tell({Happening::nodeRemoved, node});
    m_names->clear();
    for (Node* node : all) {
        if (DagNode* dag = node->asDag()) {
            dag->m_parents.clear();
            dag->m_children.clear();
        }
        node->m_cells->clear();
    }
    for (Node* node : all)
        if (node != m_world) {
            takeOut(*node);
            dispose(*node);
        }
    disposeWaiting();
}

/// In the order in which they were made, so that observers hear the same each time.
void Scene::disposeWaiting()
{
    std::vector<Ref<Node>> nodes(m_waiting.begin(), m_waiting.end());
    std::sort(nodes.begin(), nodes.end(),
              [](const Ref<Node>& a, const Ref<Node>& b) { return a->m_serial < b->m_serial; });
    for (const Ref<Node>& node : nodes)
        if (node->m_isWaiting)
            dispose(*node);
}

void Scene::newScene()
{
    const Journal::Into nothing(m_journal, nullptr);
    emptyScene();
    m_namespaces.clear();
    m_namespace = ":";
    m_hasRelativeNames = false;
    m_units = Units();
    m_time = 0.0;
    m_playback = Playback();
    fileName.clear();
    fileInfo.clear();
    requirements.clear();
    keptConnections.clear();
    references.clear();
    makeDefaultNodes(*this);
    isModified = false;
}

} // namespace tvxhost::engine
