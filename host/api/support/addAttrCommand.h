// The MEL command that makes an attribute like a given one.
#pragma once

#include "engine/attribute.h"

#include <string>

namespace tvxhost::api {

/// `addAttr -ci true -sn "s" -ln "long" … ;`, with long flag names when asked for. Children have commands of
/// their own.
std::string addAttrCommand(const engine::Attribute& attribute, bool longFlags);

} // namespace tvxhost::api
