// SceneReader: statements that make, name, pick and place nodes.
#include "sceneReader.h"

#include "flagScanner.h"

#include "engine/deletion.h"
#include "engine/typeName.h"

namespace tvxhost::scene {

using engine::DagNode;
using engine::Expected;
using engine::Node;

namespace {

struct CreateRequest
{
    std::string type;
    std::string name;
    std::string parent;
    bool isShared = false;
};

CreateRequest parseCreate(const mel::ArgumentList& arguments)
{
    CreateRequest request;
    for (FlagScanner flags(arguments); flags.next();) {
        if (flags.is("n", "name"))
            request.name = flags.text();
        else if (flags.is("p", "parent"))
            request.parent = flags.text();
        else if (flags.is("s", "shared"))
            request.isShared = true;
        else if (flags.isPositional())
            request.type = flags.text();
    }
    return request;
}

/// What a new shape says of its visibility, a file says itself.
void forgetKeyableState(Node& node)
{
    engine::Attribute* visibility = node.type().isShape ? node.type().find("visibility") : nullptr;
    if (!visibility)
        return;
    const engine::Plug plug(node, *visibility);
    engine::PlugState state = engine::stateOf(plug);
    state.keyable.reset();
    engine::setState(plug, state);
}

} // namespace

void SceneReader::createNode(const SceneStatement& statement)
{
    m_section = {};
    const CreateRequest request = parseCreate(statement.arguments);
    if (request.type.empty()) {
        error("No object type was specified", statement.line);
        return;
    }
    DagNode* under = request.parent.empty() ? nullptr : parentNamed(request.parent, statement.line);
    Node* node = existingNode(request.type, request.name, request.isShared);
    if (node && m_reference && !m_created.contains(*node)) {
        // A node that every scene has: the scene's own stays as it is.
        ++m_summary.nodes[request.type];
        return;
    }
    if (!node) {
        const bool isKnown = m_scene.types().find(request.type) != nullptr;
        if (!isKnown && m_toldTypes.insert(request.type).second)
            warning("Unrecognized node type '" + request.type +
                        "'; its nodes are kept as they are in the file.",
                    statement.line);
        const auto made =
            isKnown ? m_scene.createNode(request.type, request.name, under)
                    : m_scene.createUnknown(request.type, request.name, under, !request.parent.empty());
        if (!made) {
            error(made.outcome.text, statement.line);
            return;
        }
        node = made.value;
        node->isShared = request.isShared;
        forgetKeyableState(*node);
    }
    ++m_summary.nodes[request.type];
    m_created.insert(*node);
    m_section.node = node;
    m_section.isUnknown = !node->unknownType.empty();
    if (m_section.isUnknown) {
        ++m_summary.unknownNodes[request.type];
        ++m_summary.keptStatements;
    }
}

/// A node that a new scene has already and that the file speaks of. Cameras and the like come back as the
/// file has them: what a new scene gives them must not shine through. Default nodes cannot go, so they stay.
Node* SceneReader::existingNode(const std::string& type, const std::string& name, bool isShared)
{
    if (name.empty())
        return nullptr;
    const Expected<Node*> found = m_scene.findNode(name);
    if (!found || typeNameOf(*found.value) != type)
        return nullptr;
    Node& node = *found.value;
    if (m_created.contains(node))
        return isShared ? &node : nullptr;
    if (!node.isDefaultNode && !node.isShared)
        return nullptr;
    if (node.isDefaultNode || m_reference)
        return &node;
    if (engine::isStartupCamera(node))
        engine::setStartupCamera(*node.asDag(), false);
    return m_scene.deleteNode(node) ? nullptr : &node;
}

DagNode* SceneReader::parentNamed(const std::string& name, int line)
{
    const Expected<Node*> found = m_scene.findNode(name);
    if (!found) {
        error(found.outcome.text, line);
        return nullptr;
    }
    DagNode* dag = found.value->asDag();
    const bool isUnknown = !found.value->unknownType.empty();
    if (isUnknown && (!dag || dag->isShape()))
        dag = turnIntoTransform(*found.value);
    if (!dag)
        error("'" + name + "' cannot be a parent", line);
    return dag;
}

/// A node of an unknown type could be anything, until something is put below it.
DagNode* SceneReader::turnIntoTransform(Node& node)
{
    DagNode* before = node.asDag();
    DagNode* above = before && !before->parents().front()->isWorld() ? before->parents().front() : nullptr;
    const std::string type = node.unknownType;
    const std::string name = node.name();
    const std::string uuid = node.uuid();
    const bool isShared = node.isShared;
    std::vector<std::string> lines = std::move(node.keptLines);
    if (!m_scene.deleteNode(node))
        return nullptr;
    const Expected<Node*> made = m_scene.createNode("unknownTransform", name, above);
    if (!made)
        return nullptr;
    made.value->unknownType = type;
    made.value->setUuid(uuid);
    made.value->isShared = isShared;
    made.value->keptLines = std::move(lines);
    m_created.insert(*made.value);
    return made.value->asDag();
}

void SceneReader::rename(const SceneStatement& statement)
{
    std::string uuid;
    std::vector<std::string> names;
    for (FlagScanner flags(statement.arguments); flags.next();) {
        if (flags.is("uid", "uuid"))
            uuid = flags.text();
        else if (flags.isPositional())
            names.emplace_back(flags.text());
    }
    Node* node = m_section.node;
    if (names.size() == 2 || (names.size() == 1 && !uuid.empty())) {
        const Expected<Node*> found = m_scene.findNode(names.front());
        if (!found) {
            error(found.outcome.text, statement.line);
            return;
        }
        node = found.value;
    }
    if (!node)
        return;
    if (!uuid.empty())
        node->setUuid(uuid);
    else if (!names.empty())
        if (const auto renamed = m_scene.rename(*node, names.back()); !renamed)
            error(renamed.outcome.text, statement.line);
}

void SceneReader::select(const SceneStatement& statement)
{
    m_section = {};
    std::string name;
    for (FlagScanner flags(statement.arguments); flags.next();)
        if (flags.isPositional())
            name = flags.text();
    if (name.empty())
        return;
    const Expected<Node*> found = m_scene.findNode(name);
    const bool isOfTheScene = m_reference && found && found.value->isDefaultNode;
    if (isOfTheScene || (m_reference && !found && name.front() == ':'))
        return;
    if (found) {
        m_section.node = found.value;
        m_section.isUnknown = !found.value->unknownType.empty();
    } else if (name.front() == ':') {
        m_section.isMissingDefault = true;
        keep(m_scene.keptConnections, statement);
    } else {
        error(found.outcome.text, statement.line);
    }
}

void SceneReader::lockNode(const SceneStatement& statement)
{
    if (keepForSection(statement))
        return;
    Node* node = m_section.node;
    bool isLocked = true;
    for (FlagScanner flags(statement.arguments); flags.next();) {
        if (flags.is("l", "lock"))
            isLocked = flags.truth();
        else if (flags.isPositional())
            if (const Expected<Node*> found = m_scene.findNode(std::string(flags.text())); found)
                node = found.value;
    }
    if (node)
        node->isLockedNode = isLocked;
}

void SceneReader::parent(const SceneStatement& statement)
{
    std::vector<std::string> names;
    bool adds = false;
    for (FlagScanner flags(statement.arguments); flags.next();) {
        adds |= flags.is("add", "addObject");
        if (flags.isPositional())
            names.emplace_back(flags.text());
    }
    if (names.size() < 2) {
        error("'parent' needs a node and its parent", statement.line);
        return;
    }
    DagNode* under = parentNamed(names.back(), statement.line);
    names.pop_back();
    for (const std::string& name : names) {
        const Expected<engine::SelectionItem> item = m_scene.findItem(name);
        DagNode* child = item ? item.value.node->asDag() : nullptr;
        if (!child || !under) {
            error(item ? "'" + name + "' cannot be parented" : item.outcome.text, statement.line);
            continue;
        }
        DagNode* from =
            item.value.path.length() > 1 ? item.value.path.nodeAt(item.value.path.length() - 2) : nullptr;
        const engine::Outcome done =
            adds ? m_scene.addParent(*child, *under) : m_scene.reparent(*child, from, under);
        if (!done)
            error(done.text, statement.line);
    }
}

} // namespace tvxhost::scene
