// Scene: the names of nodes.
#include "scene.h"

#include "nameTable.h"
#include "observers.h"

#include <cctype>

namespace tvxhost::engine {

namespace {

bool isLegalIn(char c)
{
    return std::isalnum(static_cast<unsigned char>(c)) || c == '_';
}

} // namespace

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

} // namespace tvxhost::engine
