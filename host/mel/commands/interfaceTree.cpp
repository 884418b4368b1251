// InterfaceTree: see interfaceTree.h.
#include "interfaceTree.h"

#include <algorithm>

namespace tvxhost::mel {

std::string InterfaceElement::path() const
{
    return m_parent ? m_parent->path() + "|" + name : name;
}

InterfaceTree::InterfaceTree()
{
    add("window", kMainWindow, nullptr)->isShown = true;
}

InterfaceElement* InterfaceTree::add(const std::string& kind, const std::string& name,
                                     InterfaceElement* parent)
{
    auto& siblings = parent ? parent->m_children : m_windows;
    const bool isTaken = std::any_of(siblings.begin(), siblings.end(),
                                     [&](const auto& element) { return element->name == name; });
    if (isTaken)
        return nullptr;
    auto element = std::make_unique<InterfaceElement>();
    element->kind = kind;
    element->name = name.empty() ? freeName(kind) : name;
    element->m_parent = parent;
    siblings.push_back(std::move(element));
    return siblings.back().get();
}

InterfaceElement* InterfaceTree::find(const std::string& nameOrPath) const
{
    const std::size_t bar = nameOrPath.rfind('|');
    std::vector<InterfaceElement*> found;
    collect(m_windows, nameOrPath.substr(bar == std::string::npos ? 0 : bar + 1), found);
    if (bar != std::string::npos)
        found.erase(
            std::remove_if(found.begin(), found.end(),
                           [&](const InterfaceElement* element) { return element->path() != nameOrPath; }),
            found.end());
    return found.size() == 1 ? found.front() : nullptr;
}

void InterfaceTree::collect(const std::vector<std::unique_ptr<InterfaceElement>>& elements,
                            const std::string& name, std::vector<InterfaceElement*>& found) const
{
    for (const auto& element : elements) {
        if (element->name == name)
            found.push_back(element.get());
        collect(element->m_children, name, found);
    }
}

bool InterfaceTree::isAtOrBelow(const InterfaceElement* element, const InterfaceElement& top) const
{
    while (element && element != &top)
        element = element->m_parent;
    return element != nullptr;
}

bool InterfaceTree::remove(InterfaceElement& element)
{
    if (!element.m_parent && element.name == kMainWindow)
        return false;
    if (isAtOrBelow(m_parent, element))
        m_parent = element.m_parent;
    if (isAtOrBelow(m_menu, element))
        m_menu = nullptr;
    if (isAtOrBelow(m_collection, element))
        m_collection = nullptr;
    auto& siblings = element.m_parent ? element.m_parent->m_children : m_windows;
    siblings.erase(std::find_if(siblings.begin(), siblings.end(),
                                [&](const auto& candidate) { return candidate.get() == &element; }));
    return true;
}

void InterfaceTree::removeChildren(InterfaceElement& element)
{
    while (!element.m_children.empty())
        remove(*element.m_children.back());
}

std::string InterfaceTree::freeName(const std::string& kind) const
{
    std::vector<InterfaceElement*> found;
    for (int number = 1;; ++number) {
        found.clear();
        std::string name = kind + std::to_string(number);
        collect(m_windows, name, found);
        if (found.empty())
            return name;
    }
}

} // namespace tvxhost::mel
