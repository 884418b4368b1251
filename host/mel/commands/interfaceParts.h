// What some elements of the user interface have besides properties: items, choices, attachments.
#pragma once

#include "interfaceKinds.h"

namespace tvxhost::mel {

/// Stops the script with the command's name in front.
[[noreturn]] inline void failFor(const CommandContext& context, const std::string& message)
{
    context.fail(context.command() + ": " + message);
}

/// The lines of a list, and those that are selected.
const ElementPart& listPart();
/// The choice among the items of an option menu.
const ElementPart& choicePart();
/// How the children of a form hang on its edges and on each other.
const ElementPart& formPart();
/// The labels of tabs, and which is in front.
const ElementPart& tabPart();
/// Which radio button of a collection is on.
const ElementPart& collectionPart();
/// How far a progress bar is.
const ElementPart& progressPart();

} // namespace tvxhost::mel
