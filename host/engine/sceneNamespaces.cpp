// Scene: its namespaces, made, moved, renamed and taken away.
#include "scene.h"

#include "glob.h"
#include "observers.h"

#include <algorithm>

namespace tvxhost::engine {

namespace {

/// Whether a name is in a namespace, at any depth.
bool isBelow(const std::string& name, const std::string& space)
{
    return name.size() > space.size() + 1 && name[space.size()] == ':' &&
           name.compare(0, space.size(), space) == 0;
}

bool isAtOrBelow(const std::string& name, const std::string& space)
{
    return name == space || isBelow(name, space);
}

/// A name in one namespace as it is called in another one; the root is empty.
std::string rebased(const std::string& name, const std::string& from, const std::string& to)
{
    const std::string rest = name.substr(from.size() + 1);
    return to.empty() ? rest : to + ":" + rest;
}

std::string namespaceOf(const Reference& reference)
{
    const std::string above = reference.parent ? namespaceOf(*reference.parent) : std::string();
    if (reference.hasPrefix || reference.space.empty())
        return above;
    return above.empty() ? reference.space : above + ":" + reference.space;
}

Outcome noNamespace(const std::string& name)
{
    return {Reason::doesNotExist, "there is no namespace '" + name + "'"};
}

} // namespace

bool Scene::hasNamespace(const std::string& name) const
{
    const std::string bare = withoutColon(name);
    return bare.empty() || m_namespaces.count(bare) != 0;
}

std::vector<std::string> Scene::namespaces() const
{
    return {m_namespaces.begin(), m_namespaces.end()};
}

std::vector<Node*> Scene::nodesIn(const std::string& space) const
{
    const std::string bare = withoutColon(space);
    std::vector<Node*> found;
    std::copy_if(m_nodes.begin(), m_nodes.end(), std::back_inserter(found), [&](const Node* node) {
        return node != m_world && (bare.empty() || isBelow(node->name(), bare));
    });
    return found;
}

Outcome Scene::setCurrentNamespace(const std::string& name)
{
    if (!hasNamespace(name))
        return noNamespace(name);
    m_journal.keep(m_namespace);
    m_namespace = ":" + withoutColon(name);
    return {};
}

void Scene::setRelativeNames(bool on)
{
    m_journal.keep(m_hasRelativeNames);
    m_hasRelativeNames = on;
}

// Making

void Scene::putNamespace(const std::string& space)
{
    if (m_namespaces.insert(space).second && m_journal.isRecording())
        m_journal.record([this, space] { m_namespaces.erase(space); },
                         [this, space] { m_namespaces.insert(space); });
}

void Scene::addNamespaceOf(const std::string& name)
{
    for (std::size_t colon = name.find(':'); colon != std::string::npos; colon = name.find(':', colon + 1))
        putNamespace(name.substr(0, colon));
}

Outcome Scene::addNamespace(const std::string& name)
{
    const std::string bare = absoluteName(name);
    if (bare.empty() || bare != legalName(bare, false))
        return {Reason::invalidName, "'" + name + "' is not a legal namespace name"};
    if (hasNamespace(bare))
        return {Reason::nameTaken, "the namespace '" + name + "' exists already"};
    addNamespaceOf(bare + ":");
    return {};
}

// Changing

/// Whether all that is in a namespace may get other names.
Outcome Scene::checkNamespace(const std::string& space) const
{
    if (space.empty())
        return {Reason::readOnly, "the root namespace stays as it is"};
    if (!hasNamespace(space))
        return noNamespace(space);
    for (const auto& reference : references)
        if (isAtOrBelow(namespaceOf(*reference), space))
            return {Reason::readOnly, "the namespace '" + space + "' holds a reference"};
    for (const Node* node : nodesIn(space))
        if (hasFixedName(*node))
            return {Reason::readOnly, "'" + node->name() + "' cannot be renamed"};
    return {};
}

void Scene::dropNamespace(const std::string& space)
{
    m_namespaces.erase(space);
    m_journal.record([this, space] { m_namespaces.insert(space); },
                     [this, space] { m_namespaces.erase(space); });
    if (m_namespace == ":" + space)
        (void)setCurrentNamespace(":");
}

/// Gives all that is in a namespace the names that it has in the other one.
void Scene::moveContent(const std::string& from, const std::string& to)
{
    for (Node* node : nodesIn(from))
        setName(*node, uniqueName(rebased(node->name(), from, to), node, scopeOf(*node)));
    const std::string current = m_namespace.substr(1);
    std::vector<std::string> moved = namespaces();
    moved.erase(std::remove_if(moved.begin(), moved.end(),
                               [&](const std::string& space) { return !isBelow(space, from); }),
                moved.end());
    for (const std::string& space : moved)
        putNamespace(rebased(space, from, to));
    if (isBelow(current, from))
        (void)setCurrentNamespace(":" + rebased(current, from, to));
    for (auto space = moved.rbegin(); space != moved.rend(); ++space)
        dropNamespace(*space);
    isModified = true;
}

Outcome Scene::removeNamespace(const std::string& name)
{
    const std::string space = withoutColon(name);
    if (const Outcome allowed = checkNamespace(space); !allowed)
        return allowed;
    const bool isFull = std::any_of(m_namespaces.begin(), m_namespaces.end(),
                                    [&](const std::string& other) { return isBelow(other, space); });
    if (isFull || !nodesIn(space).empty())
        return {Reason::inUse, "the namespace '" + space + "' is not empty"};
    dropNamespace(space);
    isModified = true;
    return {};
}

Outcome Scene::deleteNamespace(const std::string& name)
{
    const std::string space = withoutColon(name);
    const std::vector<Node*> nodes = nodesIn(space);
    for (const Node* node : nodes)
        if (node->isLockedNode || node->isReferenced)
            return {Reason::readOnly, "'" + node->name() + "' cannot be deleted"};
    if (const Outcome allowed = checkNamespace(space); !allowed)
        return allowed;
    // One may take others with it.
    for (const Ref<Node>& node : std::vector<Ref<Node>>(nodes.begin(), nodes.end()))
        if (node->isAlive())
            if (Outcome deleted = deleteNode(*node); !deleted)
                return deleted;
    const std::vector<std::string> all = namespaces();
    for (auto other = all.rbegin(); other != all.rend(); ++other)
        if (isAtOrBelow(*other, space))
            dropNamespace(*other);
    isModified = true;
    return {};
}

Outcome Scene::moveNamespace(const std::string& from, const std::string& to, bool force)
{
    const std::string source = withoutColon(from);
    const std::string target = withoutColon(to);
    if (const Outcome allowed = checkNamespace(source); !allowed)
        return allowed;
    if (!hasNamespace(target))
        return noNamespace(target);
    if (isAtOrBelow(target, source))
        return {Reason::cycle, "the namespace '" + source + "' cannot be moved into itself"};
    if (!force)
        for (const Node* node : nodesIn(source))
            if (const std::string wish = rebased(node->name(), source, target);
                !isNameFree(wish, node, scopeOf(*node)))
                return {Reason::nameTaken, "there is an object named '" + wish + "' already"};
    moveContent(source, target);
    return {};
}

Outcome Scene::renameNamespace(const std::string& from, const std::string& to)
{
    const std::string source = withoutColon(from);
    const std::string target = withoutColon(to);
    if (const Outcome allowed = checkNamespace(source); !allowed)
        return allowed;
    if (target.empty() || target != legalName(target, false) || isBelow(target, source))
        return {Reason::invalidName, "'" + to + "' is not a legal name for the namespace"};
    if (hasNamespace(target))
        return {Reason::nameTaken, "the namespace '" + target + "' exists already"};
    addNamespaceOf(target + ":");
    const bool wasCurrent = m_namespace == ":" + source;
    moveContent(source, target);
    if (wasCurrent)
        (void)setCurrentNamespace(target);
    dropNamespace(source);
    const auto tell = [this](const std::string& before, const std::string& after) {
        Event event{Happening::namespaceRenamed};
        event.text = before;
        event.name = after;
        m_observers->tell(event);
    };
    m_journal.record([=] { tell(target, source); }, [=] { tell(source, target); });
    tell(source, target);
    return {};
}

} // namespace tvxhost::engine
