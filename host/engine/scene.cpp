// Scene: the life of a session: nodes made; selection; time. Names are in sceneNames.cpp, what leaves the
// scene is in sceneDepartures.cpp.
#include "scene.h"

#include "animCurve.h"
#include "defaultNodes.h"
#include "nameTable.h"
#include "observers.h"
#include "pluginData.h"
#include "uuid.h"

#include <string_view>
#include <utility>

namespace tvxhost::engine {

namespace {

Scene* g_current = nullptr;

constexpr const char* kUnknownShape = "unknownDag";
constexpr const char* kUnknownTransform = "unknownTransform";

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
