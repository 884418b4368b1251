// SceneSummary: what a scene file held, counted while it was read.
#pragma once

#include "meshSummary.h"

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace tvxhost::scene {

struct SceneSummary
{
    std::string file;
    std::string version; ///< what follows `requires maya`
    std::size_t statements = 0;
    std::map<std::string, std::size_t> commands; ///< statements by command
    /// Nodes that the file creates, by type: unknown ones under the type's own name, shared ones whether they
    /// existed or not.
    std::map<std::string, std::size_t> nodes;
    std::map<std::string, std::size_t> unknownNodes; ///< those of `nodes` whose type nobody knows
    /// Those of the scene now; empty until summarizeMeshes was asked, because history has to be evaluated.
    std::vector<MeshSummary> meshes;
    std::vector<std::string> plugins; ///< that the file requires, in its order, each once
    std::size_t connections = 0;      ///< made
    std::size_t keptStatements = 0;   ///< not understood and kept as they stood, to be saved again
    std::size_t peakMemory = 0;       ///< bytes of memory that the process has had at most; 0: not asked for
    std::size_t warnings = 0;
    std::size_t errors = 0;
};

/// The most memory that this process has had, in bytes.
std::size_t peakMemory();

/// The summary for people, several lines, ends with a line end.
std::string toText(const SceneSummary& summary);
/// The summary as one JSON object on one line.
std::string toJson(const SceneSummary& summary);

} // namespace tvxhost::scene
