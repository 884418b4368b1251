// Typed values in scene files: the words after `-type "T"`, and back.
#pragma once

#include "words.h"

#include "engine/data.h"
#include "engine/outcome.h"

#include <string>
#include <string_view>

namespace tvxhost::scene {

/// True for the types whose values are plain numbers ("float3", "double2", "long3" …).
bool isNumericTypeName(std::string_view typeName);

/// False for types whose values the host only keeps.
bool isKnownDataType(std::string_view typeName);

/// Makes the data object that the words describe; of a type that the host only keeps KeptData with the words.
/// typeMismatch when the words do not fit the type.
engine::Expected<engine::Ref<engine::Data>> parseData(std::string_view typeName, Words& words);

/// The ` -type "T" values` part of a `setAttr` for a data object, from the blank before -type up to but not
/// including the semicolon. `path` of the attribute: where lines end depends on its length.
std::string dataWords(const engine::Data& data, std::string_view path);

} // namespace tvxhost::scene
