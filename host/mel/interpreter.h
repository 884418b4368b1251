// Interpreter: runs MEL. Owns procedures and global variables; commands come from a CommandTable.
#pragma once

#include "ast.h"
#include "commandTable.h"
#include "parser.h"
#include "scope.h"
#include "scriptError.h"
#include "scriptPath.h"

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tvxhost::mel {

struct ProcedureEntry;
/// The procedures that only one script sees, by name.
using LocalProcedures = std::unordered_map<std::string, std::shared_ptr<const ProcedureEntry>>;

/// A procedure and where it came from.
struct ProcedureEntry
{
    std::shared_ptr<const ast::Procedure> procedure;
    std::string file;                  ///< empty: typed text
    LocalProcedures* locals = nullptr; ///< those of the script that defined it; the interpreter's
};

/// What a name in a script stands for: a procedure or a command.
struct Callable
{
    std::shared_ptr<const ProcedureEntry> procedure;
    std::shared_ptr<const CommandSpec> command;

    /// True when it is called with values, false when with the arguments as they stand.
    bool takesValues() const { return procedure != nullptr || command->isFunction(); }
};

class Interpreter
{
public:
    /// Nested calls, evals and sourced files that are allowed; fewer where the stack is small.
    static constexpr int kDepthLimit = 500;

    /// All three outlive the interpreter; `session` may be null when no command needs it.
    Interpreter(CommandTable& commands, engine::ScriptEditor& editor, Session* session = nullptr);
    Interpreter(const Interpreter&) = delete;
    Interpreter& operator=(const Interpreter&) = delete;

    /// Runs a text at the top level and returns the value of its last statement (none when it has none).
    /// `file` names the text in messages; empty for typed text. Throws ScriptError; nothing is shown.
    Value execute(std::string_view text, const std::string& file = {});
    /// The same as an entry point: shows the error that stopped the script. Empty when there was one.
    std::optional<Value> run(std::string_view text, const std::string& file = {});

    /// Runs the file at this path. Throws ScriptError when it cannot be read.
    Value sourceFile(const std::filesystem::path& file);
    /// `source NAME`: looks NAME up along the script path.
    Value source(const std::string& name, const Place& place);

    /// Runs one statement of a StatementReader at the top level, for scenes. Throws ScriptError.
    void executeStatement(StatementReader& reader, const std::string& file);

    /// Calls a procedure or command with values, as the function form does. Throws ScriptError.
    Value call(const std::string& name, std::vector<Value> arguments, const Place& place = {},
               const LocalProcedures* locals = nullptr);

    /// The procedure of that name, else the command, else the procedure that NAME.mel along the script path
    /// defines. Throws ScriptError when there is none.
    Callable resolve(const std::string& name, const Place& place, const LocalProcedures* locals = nullptr);
    /// Calls something that takes values. Throws ScriptError or ValueError.
    Value callWithValues(const Callable& callable, std::vector<Value>& arguments, const Place& place);
    /// Calls a command that takes arguments as they stand. Throws ScriptError or ValueError.
    Value callCommand(const Callable& callable, const ArgumentList& arguments, const Place& place);

    /// A procedure that is defined already, in the script's own first, then globally; null when there is
    /// none.
    std::shared_ptr<const ProcedureEntry> definedProcedure(const std::string& name,
                                                           const LocalProcedures* locals = nullptr) const;
    /// The global procedure that NAME.mel along the script path defines; the file is sourced. Null when there
    /// is no such file, or it does not define the procedure.
    std::shared_ptr<const ProcedureEntry> procedureFromPath(const std::string& name);
    /// The names of all global procedures, sorted.
    std::vector<std::string> globalProcedures() const;
    /// Makes the procedure known, globally or to its script only; replaces one of the same name.
    void define(std::shared_ptr<const ProcedureEntry> entry);
    /// The local procedures of a file, of typed text with an empty name.
    LocalProcedures& localProcedures(const std::string& file) { return m_localProcedures[file]; }

    Globals& globals() { return m_globals; }
    CommandTable& commands() { return m_commands; }
    engine::ScriptEditor& editor() { return m_editor; }
    Session* session() { return m_session; }
    ScriptPath& scriptPath() { return m_scriptPath; }

    /// `system` is refused unless this is set.
    void allowSystem(bool allowed) { m_systemAllowed = allowed; }
    bool systemAllowed() const { return m_systemAllowed; }

    /// Text to run when the program is idle (`evalDeferred`); lowest priority runs last.
    void defer(std::string script, bool lowestPriority);
    /// Runs the deferred texts, those they defer included; the number of those that failed.
    int runDeferred();
    /// What else is done at an idle moment, after the deferred texts; how many scripts of it failed. May be
    /// empty.
    std::function<int(Interpreter&)> idleWork;
    bool hasDeferred() const { return !m_deferred.empty() || !m_deferredLast.empty(); }

    /// Shows an error at its place.
    void report(const ScriptError& error);

    /// Counts a nested call, and stops the script where there are too many.
    class Depth
    {
    public:
        Depth(Interpreter& interpreter, const Place& place);
        ~Depth() { --m_interpreter.m_depth; }
        Depth(const Depth&) = delete;
        Depth& operator=(const Depth&) = delete;

    private:
        Interpreter& m_interpreter;
    };

private:
    int runQueues();
    Value runScript(const ast::Script& script);

    CommandTable& m_commands;
    engine::ScriptEditor& m_editor;
    Session* m_session;
    ScriptPath m_scriptPath;
    Globals m_globals;
    std::unordered_map<std::string, std::shared_ptr<const ProcedureEntry>> m_procedures;
    std::unordered_map<std::string, LocalProcedures> m_localProcedures; ///< by file; "" for typed text
    std::deque<std::string> m_deferred;
    std::deque<std::string> m_deferredLast;
    int m_depth = 0;
    bool m_systemAllowed = false;
};

/// Registers the commands that need no scene: strings, arrays, mathematics, files, messages, evaluation.
void registerLanguageCommands(CommandTable& table);

} // namespace tvxhost::mel
