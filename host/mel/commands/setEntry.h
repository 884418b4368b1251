// Who may be a member of a set: what the set is for, and the partitions it is in.
#pragma once

#include "commandSupport.h"
#include "memberLists.h"

namespace tvxhost::mel {

/// A set that holds one sort of components only.
struct ComponentSet
{
    const char* shortName;
    const char* longName;
    const char* attribute;
    const char* what;
    std::vector<std::string> kinds; ///< of the components, as they are named
};
extern const std::vector<ComponentSet> kComponentSets;
bool isMadeFor(const CommandContext& context, engine::Node& set, const ComponentSet& row);

/// What an item stands for where members are meant: in a shading group the shapes of a transform.
Members membersMeant(engine::Node& set, const engine::SelectionItem& item);

/// How new members are put into a set.
enum class Entry
{
    plain,   ///< an error for what cannot be in it
    lenient, ///< such objects are left out, with a warning
    silent,  ///< the same without one
    forced   ///< what is in another set of the same partition leaves that one
};

/// Puts an object into a set, or what it stands for.
void enter(const CommandContext& context, engine::Node& set, const engine::SelectionItem& item, Entry entry);

} // namespace tvxhost::mel
