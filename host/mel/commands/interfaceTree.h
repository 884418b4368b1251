// InterfaceTree: the user interface as scripts made it: windows, menus, items, layouts and controls.
#pragma once

#include "../value.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tvxhost::mel {

/// How one edge of a form's child hangs.
struct InterfaceAttachment
{
    std::string flag; ///< "attachForm", "attachControl" …
    std::string child;
    std::string edge;  ///< "top", "left", "bottom" or "right"
    int offset = 0;    ///< pixels
    std::string other; ///< the child it hangs on
    int position = 0;  ///< of the form's grid
};

/// One element. Owned by the element above it.
class InterfaceElement
{
public:
    std::string kind;                        ///< the command that made it: "window", "menu", "menuItem" …
    std::string name;                        ///< without path
    std::map<std::string, Value> properties; ///< by the flag's long name
    bool isShown = false;                    ///< windows: showWindow was called
    std::vector<InterfaceAttachment> attachments; ///< forms: of the children, in the order they were made

    InterfaceElement* parent() const { return m_parent; }
    const std::vector<std::unique_ptr<InterfaceElement>>& children() const { return m_children; }
    /// "window1|menu1|item1"
    std::string path() const;

private:
    friend class InterfaceTree;
    InterfaceElement* m_parent = nullptr;
    std::vector<std::unique_ptr<InterfaceElement>> m_children;
};

/// All elements of a session. The main window is there from the start.
class InterfaceTree
{
public:
    /// The name of the main window, which the global `$gMainWindow` holds.
    static constexpr const char* kMainWindow = "MayaWindow";

    InterfaceTree();

    /// Makes an element; an empty name is the kind with a number, a taken one is refused with null. A null
    /// parent makes a top-level one.
    InterfaceElement* add(const std::string& kind, const std::string& name, InterfaceElement* parent);
    /// By path ("a|b") or by a name that is unique in the tree; null when there is none or several.
    InterfaceElement* find(const std::string& nameOrPath) const;
    /// Deletes an element with everything below it. The main window stays.
    bool remove(InterfaceElement& element);
    void removeChildren(InterfaceElement& element);

    const std::vector<std::unique_ptr<InterfaceElement>>& windows() const { return m_windows; }

    /// Where new elements go when they name no parent, menus apart from controls.
    InterfaceElement* currentParent() const { return m_parent; }
    InterfaceElement* currentMenu() const { return m_menu; }
    void setCurrentParent(InterfaceElement* element) { m_parent = element; }
    void setCurrentMenu(InterfaceElement* element) { m_menu = element; }
    /// What new radio buttons belong to.
    InterfaceElement* currentCollection() const { return m_collection; }
    void setCurrentCollection(InterfaceElement* element) { m_collection = element; }

    /// The camera that the view shows; empty until one is chosen: persp, or what a scene has instead.
    std::string viewCamera;

private:
    void collect(const std::vector<std::unique_ptr<InterfaceElement>>& elements, const std::string& name,
                 std::vector<InterfaceElement*>& found) const;
    std::string freeName(const std::string& kind) const;
    bool isAtOrBelow(const InterfaceElement* element, const InterfaceElement& top) const;

    std::vector<std::unique_ptr<InterfaceElement>> m_windows;
    InterfaceElement* m_parent = nullptr;
    InterfaceElement* m_menu = nullptr;
    InterfaceElement* m_collection = nullptr;
};

} // namespace tvxhost::mel
