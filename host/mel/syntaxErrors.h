// From the grammar's errors to those a script's author sees.
#pragma once

#include "lineIndex.h"
#include "scriptError.h"
#include "syntaxTree.h"

#include <string>

namespace tvxhost::mel {

SyntaxError syntaxError(const GrammarError& error, const LineIndex& lines, const std::string& file);

} // namespace tvxhost::mel
