// Reading a header of the API: which public functions its classes declare.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tvxhost::api {

/// One declaration; overloads are declarations of their own.
struct DeclaredFunction
{
    std::string name; ///< "MDagPath::hasFn"
    unsigned int parameters = 0;
    bool returnsStatus = false; ///< its result is an MStatus
    bool takesStatus = false;   ///< it has an MStatus* to write to
    bool isInline = false;      ///< defined in the header, or pure virtual: no library has it
};

/// The public functions of all classes that a header defines, in the order of their declarations; deleted
/// ones and those of classes within classes aside. The header is one of ours: formatted, with comments of one
/// line only.
std::vector<DeclaredFunction> functionsIn(std::string_view header);

} // namespace tvxhost::api
