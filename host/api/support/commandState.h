// What stands behind a plug-in's command: its state, its flags, and the results of the commands that run.
#pragma once

#include "engine/scene.h"

#include <maya/MSyntax.h>
#include <maya/MTypes.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tvxhost::api {

/// What MSyntax holds.
struct SyntaxTable
{
    struct Flag
    {
        std::string shortName;
        std::string longName;
        std::vector<MSyntax::MArgType> arguments;
        bool isMultiUse = false;
        bool isQueriedWithArguments = false;
        bool areQueryArgumentsOptional = false;
    };

    /// By short or long name, with or without its dash; null when there is none.
    Flag* find(const std::string& name);
    const Flag* find(const std::string& name) const;

    std::vector<Flag> flags;
    std::vector<MSyntax::MArgType> arguments;
    MSyntax::MObjectFormat objectFormat = MSyntax::kNone;
    unsigned int minimumObjects = 0;
    std::optional<unsigned int> maximumObjects;
    bool usesSelection = false;
    bool canQuery = false;
    bool canEdit = false;
};

/// What MPxCommand holds.
struct CommandState
{
    std::string text; ///< the name, unless the command sets another
    MSyntax syntax;
    bool isHistoryOn = true;
    std::optional<bool> isUndoable; ///< when the command says so itself
};

/// The results of the commands that run now, the innermost last.
class RunningCommands
{
public:
    using Result = engine::ScriptRunner::Result;

    explicit RunningCommands(std::string name) { running().push_back({std::move(name), {}}); }
    ~RunningCommands() { running().pop_back(); }
    RunningCommands(const RunningCommands&) = delete;
    RunningCommands& operator=(const RunningCommands&) = delete;

    /// Of the innermost command; of no one, when none runs.
    static Result& current();
    /// The name of the innermost command; empty when none runs.
    static std::string currentName();

private:
    struct Running
    {
        std::string name;
        Result result;
    };
    static std::vector<Running>& running();
};

} // namespace tvxhost::api
