// Scene: finding nodes, plugs and components by name, and the shortest names for them.
#include "scene.h"

#include "glob.h"
#include "nameTable.h"

#include <algorithm>
#include <array>

namespace tvxhost::engine {

namespace {

/// "a|b|c" in its parts; a leading bar gives an empty first part.
std::vector<std::string> splitPath(const std::string& path)
{
    std::vector<std::string> parts;
    std::size_t start = 0;
    for (std::size_t bar = path.find('|'); bar != std::string::npos; bar = path.find('|', start)) {
        parts.push_back(path.substr(start, bar - start));
        start = bar + 1;
    }
    parts.push_back(path.substr(start));
    return parts;
}

bool isComponentName(const std::string& name)
{
    constexpr std::array<const char*, 14> kNames = {"vtx", "e", "f", "map", "vtxFace", "cv", "ep",
                                                    "pt",  "u", "v", "uv",  "sf",      "cp", "particle"};
    return std::find(kNames.begin(), kNames.end(), name) != kNames.end();
}

Outcome noMatch(const std::string& name)
{
    return {Reason::doesNotExist, "No object matches name: " + name};
}

Outcome manyMatches(const std::string& name)
{
    return {Reason::ambiguous, "More than one object matches name: " + name};
}

SelectionItem itemOf(Node& node)
{
    SelectionItem item;
    item.node = Ref<Node>(&node);
    if (DagNode* dag = node.asDag())
        item.path = DagPath::firstTo(*dag);
    return item;
}

bool bySerial(const Node* a, const Node* b)
{
    return a->serial() < b->serial();
}

} // namespace

Scene::Found Scene::candidates(const std::string& name) const
{
    const auto named = [&](const std::string& full) { return m_names->nodesNamed(full); };
    if (!name.empty() && name[0] == ':')
        return named(name.substr(1));
    if (m_hasRelativeNames)
        if (Found found = named(absoluteName(name)); !found.empty())
            return found;
    return named(name);
}

std::vector<DagNode*> Scene::candidatesOfPath(const std::string& path) const
{
    const std::vector<std::string> parts = splitPath(path);
    std::vector<DagNode*> found;
    if (parts.front().empty())
        found.push_back(m_world);
    else
        for (Node* node : candidates(parts.front()))
            if (DagNode* dag = node->asDag())
                found.push_back(dag);

    for (std::size_t i = 1; i < parts.size(); ++i) {
        std::vector<DagNode*> below;
        for (const DagNode* node : found) {
            DagNode* child =
                m_hasRelativeNames ? m_names->childNamed(*node, absoluteName(parts[i])) : nullptr;
            if (!child)
                child = m_names->childNamed(*node, withoutColon(parts[i]));
            if (child)
                below.push_back(child);
        }
        found = std::move(below);
    }
    std::sort(found.begin(), found.end(), bySerial);
    found.erase(std::unique(found.begin(), found.end()), found.end());
    return found;
}

Expected<Node*> Scene::findNode(const std::string& name) const
{
    Found found;
    if (name.find('|') == std::string::npos)
        found = candidates(name);
    else if (name.find_first_not_of('|') != std::string::npos)
        for (DagNode* node : candidatesOfPath(name))
            found.push_back(node);
    if (found.empty())
        return noMatch(name);
    if (found.size() > 1)
        return manyMatches(name);
    return found.front();
}

namespace {

/// The path that a name with bars means: its last nodes are those that were named.
DagPath namedPath(DagNode& node, const std::string& name)
{
    if (name.find('|') == std::string::npos)
        return DagPath::firstTo(node);
    const std::vector<DagPath> all = DagPath::allTo(node);
    const std::string ending = name[0] == '|' ? name : "|" + name;
    for (const DagPath& path : all) {
        const std::string full = path.fullName();
        const bool ends = full.size() >= ending.size() &&
                          full.compare(full.size() - ending.size(), ending.size(), ending) == 0;
        if (name[0] == '|' ? full == name : ends)
            return path;
    }
    return all.front();
}

/// Turns an item of a node into one of its components: those of a transform are its shape's.
bool takeComponents(SelectionItem& item, const std::string& text)
{
    if (!item.isDag() || !isComponentName(text.substr(0, text.find('['))))
        return false;
    if (!item.path.node()->isShape()) {
        DagNode* shape = item.path.shapeBelow();
        if (!shape || !item.path.push(*shape))
            return false;
        item.node = Ref<Node>(shape);
    }
    item.components = text;
    return true;
}

/// Turns an item of a node into one of its plugs; a transform stands for its shape's attributes too.
Outcome takePlug(SelectionItem& item, const std::string& path, const std::string& wholeName)
{
    Expected<Plug> plug = item.node->findPlug(path);
    if (!plug && item.isDag())
        if (DagNode* shape = item.path.shapeBelow())
            plug = shape->findPlug(path);
    if (!plug)
        return noMatch(wholeName);
    item.plug = plug.value;
    if (item.plug.node() != item.node.get()) {
        const Outcome pushed = item.path.push(static_cast<DagNode&>(*item.plug.node()));
        item.node = Ref<Node>(item.plug.node());
        return pushed;
    }
    return {};
}

} // namespace

Expected<SelectionItem> Scene::findItem(const std::string& name) const
{
    const std::size_t dot = name.find('.');
    const std::string nodeName = name.substr(0, dot);
    Expected<Node*> node = findNode(nodeName);
    if (!node)
        return node.outcome.reason == Reason::ambiguous ? manyMatches(name) : noMatch(name);

    SelectionItem item;
    item.node = Ref<Node>(node.value);
    if (DagNode* dag = node.value->asDag())
        item.path = namedPath(*dag, nodeName);
    if (dot == std::string::npos)
        return item;
    const std::string rest = name.substr(dot + 1);
    if (node.value->findPlug(rest) || !takeComponents(item, rest))
        if (Outcome outcome = takePlug(item, rest, name); !outcome)
            return outcome;
    return item;
}

std::vector<SelectionItem> Scene::findItems(const std::string& pattern) const
{
    const std::size_t dot = pattern.find('.');
    const std::string nodePattern = pattern.substr(0, dot);
    std::vector<SelectionItem> found;
    const bool isPath = nodePattern.find('|') != std::string::npos;
    const Glob glob(isPath ? nodePattern : withoutColon(nodePattern));
    if (!glob.hasWildcards()) {
        const std::vector<DagNode*> dags = isPath ? candidatesOfPath(nodePattern) : std::vector<DagNode*>();
        const Found named = isPath ? Found() : candidates(nodePattern);
        std::vector<Node*> nodes(dags.begin(), dags.end());
        nodes.insert(nodes.end(), named.begin(), named.end());
        std::sort(nodes.begin(), nodes.end(), bySerial);
        for (Node* node : nodes)
            found.push_back(itemOf(*node));
    } else
        for (Node* node : m_nodes) {
            if (node == m_world)
                continue;
            DagNode* dag = node->asDag();
            if (isPath ? dag && glob.matchesPath(DagPath::firstTo(*dag).fullName())
                       : glob.matches(node->name()))
                found.push_back(itemOf(*node));
        }
    if (dot == std::string::npos)
        return found;

    std::vector<SelectionItem> withPlugs;
    const std::string rest = pattern.substr(dot + 1);
    for (SelectionItem& item : found)
        if (item.node->findPlug(rest) || !takeComponents(item, rest)) {
            if (takePlug(item, rest, pattern))
                withPlugs.push_back(item);
        } else
            withPlugs.push_back(item);
    return withPlugs;
}

Expected<Plug> Scene::findPlug(const std::string& name) const
{
    Expected<SelectionItem> item = findItem(name);
    if (!item)
        return item.outcome;
    if (item.value.plug.isNull())
        return noMatch(name);
    return item.value.plug;
}

std::string Scene::shortestName(const Node& node) const
{
    const DagNode* dag = node.asDag();
    if (!dag || dag->isWorld() || m_names->nodesNamed(node.name()).size() <= 1)
        return node.name();
    return DagPath::firstTo(const_cast<DagNode&>(*dag)).partialName();
}

std::size_t Scene::countPathsEndingIn(const std::vector<DagNode*>& ending) const
{
    std::size_t count = 0;
    for (const Node* top : m_names->nodesNamed(ending.front()->name())) {
        const DagNode* node = top->asDag();
        for (std::size_t i = 1; node && i < ending.size(); ++i)
            node = m_names->childNamed(*node, ending[i]->name());
        if (node)
            count += DagPath::countTo(*top->asDag());
        if (count > 1)
            break;
    }
    return count;
}

} // namespace tvxhost::engine
