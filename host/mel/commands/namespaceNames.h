// Names of namespaces: plain ones have no leading colon, and that of the root is empty.
#pragma once

#include "../commandTable.h"

#include "engine/scene.h"

#include <optional>
#include <string>

namespace tvxhost::mel {

bool isAbsolute(const std::string& name);
/// The name without the colon that means the root.
std::string plainName(const std::string& name);
/// What stands before the last colon, and behind it.
std::string parentNamespace(const std::string& plain);
std::string baseName(const std::string& plain);
/// Whether a name is in a namespace: directly, or anywhere below it.
bool isIn(const std::string& name, const std::string& space, bool isDeep);

/// The plain name of the namespace that a script names: one of the current one before one of the root. None
/// when there is no such namespace.
std::optional<std::string> findNamespace(const engine::Scene& scene, const std::string& name);
/// The same; stops the script when there is none.
std::string existingNamespace(const CommandContext& context, const std::string& name);

/// namespaceInfo.
void registerNamespaceInfoCommands(CommandTable& table);

} // namespace tvxhost::mel
