// The syntax of a plug-in's command as the engine tells it to the language.
#pragma once

#include "engine/scene.h"

#include <maya/MSyntax.h>

namespace tvxhost::api {

/// What a command's description needs to know of its syntax.
engine::PluginSyntax describeSyntax(const MSyntax& syntax);

} // namespace tvxhost::api
