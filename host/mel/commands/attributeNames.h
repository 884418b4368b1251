// The names of an attribute that users see.
#pragma once

#include "commandSupport.h"

#include <string>

namespace tvxhost::mel {

/// The name in editors: the one that was given, else the long name in words ("translateX": "Translate X").
std::string niceNameOf(const engine::Attribute& attribute);

} // namespace tvxhost::mel
