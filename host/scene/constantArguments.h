// Constant arguments: statements of a scene whose values are joined strings or lists in braces.
#pragma once

#include "mel/arguments.h"
#include "mel/ast.h"

#include <string>

namespace tvxhost::scene {

/// Fills in the name and the arguments of a command whose arguments are all tokens or constant expressions
/// (`("a" + "b")`, `{"a", "b"}`, `-1`). False when the statement is anything else.
bool constantArguments(const mel::ast::Statement& statement, std::string& name, mel::ArgumentList& arguments);

} // namespace tvxhost::scene
