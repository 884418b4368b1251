// Messages about connections, as commands and the reader give them.
#pragma once

#include "engine/outcome.h"
#include "engine/plug.h"

#include <string>

namespace tvxhost::scene {

/// Why a connection was not made.
std::string connectMessage(const engine::Outcome& outcome, const engine::Plug& source,
                           const engine::Plug& destination);
/// Why a connection was not taken away.
std::string disconnectMessage(const engine::Outcome& outcome, const engine::Plug& source,
                              const engine::Plug& destination);

} // namespace tvxhost::scene
