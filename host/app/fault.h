// Fault: a call of the API that is to fail.
#pragma once

#include <maya/MStatus.h>

#include <cstddef>
#include <optional>
#include <string>

namespace tvxhost::app {

struct Fault
{
    std::string function; ///< "MFnPlugin::registerNode"
    std::size_t call = 1; ///< the n-th call from now on; 0: every call
    MStatus::MStatusCode code = MStatus::kFailure;
};

/// Reads "FUNCTION[:N[:CODE]]", for example "MFnPlugin::registerNode:2:kFailure"; N is 1 and CODE kFailure
/// when they are left out. Empty when it is nothing of the kind.
std::optional<Fault> parseFault(const std::string& text);

} // namespace tvxhost::app
