// The kinds of elements of the user interface: which commands make them, and what is set and asked of each.
#pragma once

#include "commandSupport.h"

#include <string>
#include <vector>

namespace tvxhost::mel {

/// What an element is to those around it: where it goes, and what goes into it.
enum class Family
{
    window,     ///< stands alone
    menu,       ///< holds items
    menuItem,   ///< goes into the current menu
    layout,     ///< holds controls and layouts
    control,    ///< goes into the current layout
    collection, ///< says which radio buttons exclude one another
};

/// A flag whose arguments are kept with the element, and the value before it was ever set.
struct ElementProperty
{
    FlagSpec flag;
    Value otherwise;
};

using ElementProperties = std::vector<ElementProperty>;

/// What elements of some kinds have besides properties.
struct ElementPart
{
    std::vector<FlagSpec> flags;
    /// Does what the call's flags say.
    void (*change)(const CommandContext& context, InterfaceElement& element, const ParsedCommand& call);
    /// Answers the call's question; none when it asks for nothing of this part.
    Value (*tell)(const InterfaceElement& element, const ParsedCommand& call);
};

/// One command that makes, edits and tells elements.
struct ElementKind
{
    const char* name;
    const char* summary;
    Family family;
    ElementProperties properties;
    const ElementPart* part = nullptr; ///< null for most
    bool isGeneral = false;            ///< edits and tells what others of its family made, and makes nothing
};

const std::vector<ElementKind>& elementKinds();
/// The kind of an element.
const ElementKind& kindOf(const InterfaceElement& element);
/// Whether a command is about an element: its own kind, or any of the family of a general one.
bool isAbout(const ElementKind& kind, const InterfaceElement& element);
/// Whether new elements are put into this one when they name no parent.
bool holdsItems(const InterfaceElement& element);
bool holdsControls(const InterfaceElement& element);

} // namespace tvxhost::mel
