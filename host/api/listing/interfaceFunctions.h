// The functions of the interface that the host offers, and which of them can be told to fail.
#pragma once

#include "headerReader.h"

#include <optional>
#include <string>
#include <vector>

namespace tvxhost::api {

/// Why a function that could tell a failure cannot be made to fail.
struct ReasonNotToFail
{
    std::string function; ///< "Class::function"
    std::string reason;
};

/// Every public function of every class, as the headers declare them.
std::vector<DeclaredFunction> declaredFunctions();
/// From the data beside this header.
std::vector<ReasonNotToFail> reasonsNotToFail();

/// One name, which all overloads share.
struct InterfaceFunction
{
    std::string name;
    std::optional<std::string> whyNot; ///< none: it can be told to fail
};

/// In alphabetical order.
std::vector<InterfaceFunction> interfaceFunctions();

} // namespace tvxhost::api
