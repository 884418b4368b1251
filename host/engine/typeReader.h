// TypeReader: reads the text tables of the built-in node types.
#pragma once

#include "nodeType.h"

#include <string_view>
#include <vector>

namespace tvxhost::engine {

/// Adds the types of a table to `types`; the format is described in types/README.md. The tables are part of
/// the program: a mistake in one is thrown as std::logic_error with the table's name and line.
void readTypes(TypeTable& types, std::string_view tableName, std::string_view text);

/// The built-in tables, in the order in which they have to be read.
struct TypeText
{
    std::string_view name;
    std::string_view text;
};
extern const std::vector<TypeText> kBuiltinTables;

/// The table of the nodes that a new scene begins with.
extern const std::string_view kDefaultNodes;

} // namespace tvxhost::engine
