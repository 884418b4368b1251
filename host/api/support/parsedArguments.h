// ParsedArguments: the arguments of a command taken apart as its syntax says.
#pragma once

#include "arguments.h"
#include "commandState.h"
#include "engine/outcome.h"
#include "engine/selection.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tvxhost::api {

/// What MArgParser and MArgDatabase hold.
struct ParsedArguments
{
    /// One use of a flag.
    struct Use
    {
        std::size_t flag;      ///< its index in the syntax
        unsigned int position; ///< of the flag among the arguments
        std::vector<Argument> arguments;
    };

    /// The uses of a flag, by short or long name with or without its dash, in the order of the call. Of a
    /// flag that is not made for several uses only the last one is kept.
    std::vector<const Use*> usesOf(const char* flag) const;

    SyntaxTable syntax;
    std::vector<Use> uses;
    std::vector<Argument> arguments;  ///< those behind the flags that the syntax has a type for
    std::vector<std::string> objects; ///< as they were written; names of the selection when it stands in
    engine::SelectionList selection;  ///< the objects themselves, when the syntax asks for them
    bool isQuery = false;
    bool isEdit = false;
};

/// Takes arguments apart. In query mode a flag has no arguments unless the syntax says that it has. `command`
/// is the name that errors show. Objects that the scene does not have are an error when the syntax asks for a
/// selection list.
OPENMAYA_EXPORT engine::Expected<ParsedArguments> parse(const SyntaxTable& syntax, const Arguments& arguments,
                                                        const std::string& command);

} // namespace tvxhost::api
