// How commands reach the recorded user interface.
#pragma once

#include "commandSupport.h"

#include <string>

namespace tvxhost::mel {

InterfaceTree& treeOf(const CommandContext& context);
/// Stops the script in batch mode, where there is no user interface.
void refuseInBatch(const CommandContext& context);
/// By name or path; stops the script when there is none.
InterfaceElement& elementNamed(const CommandContext& context, const std::string& name);

} // namespace tvxhost::mel
