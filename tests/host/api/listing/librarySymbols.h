// The functions that the API's libraries export.
#pragma once

#include <string>
#include <vector>

namespace tvxhost::api::test {

struct LibraryFunction
{
    std::string name;      ///< "MDagPath::hasFn"
    std::string signature; ///< with parameters, as compilers spell them
    unsigned int parameters;
    bool takesStatus;
    void* address;
};

/// Those of all classes whose names begin with M, by the tables of the libraries that this program is linked
/// with.
std::vector<LibraryFunction> libraryFunctions();

} // namespace tvxhost::api::test
