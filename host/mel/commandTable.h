// CommandTable: the commands by name, each declared as data: flags, arguments, results, help.
#pragma once

#include "arguments.h"
#include "scriptError.h"
#include "value.h"

#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <variant>
#include <vector>

namespace tvxhost::engine {
class Journal;
}

namespace tvxhost::mel {

class Interpreter;
class ParsedCommand;

/// What the commands of a program work on. The program derives its own and gives it to the interpreter.
class Session
{
public:
    virtual ~Session() = default;
    /// Where what commands edit is remembered for undo; null when it is not.
    virtual engine::Journal* journal() { return nullptr; }
};

/// What a running command can reach.
class CommandContext
{
public:
    CommandContext(Interpreter& interpreter, std::string_view command, Place place);

    Interpreter& interpreter() const { return m_interpreter; }
    engine::ScriptEditor& editor() const;
    /// The name the command was called by.
    const std::string& command() const { return m_command; }
    /// Where the call stands.
    const Place& place() const { return m_place; }

    /// The program's session as the type it is. Throws a ScriptError when there is none of that type.
    template <class S>
    S& session() const
    {
        if (auto* found = dynamic_cast<S*>(anySession())) {
            return *found;
        }
        fail("'" + m_command + "' needs a scene");
    }

    /// Stops the script with this error.
    [[noreturn]] void fail(const std::string& message) const;
    void warn(const std::string& message) const;

private:
    Session* anySession() const;

    Interpreter& m_interpreter;
    std::string m_command;
    Place m_place;
};

/// What a flag or a positional argument takes.
enum class ArgumentType
{
    boolean, ///< on/off, yes/no, true/false or a number
    integer,
    number,
    string,
    name,   ///< of a node, an attribute or a component
    time,   ///< a number, in the current unit unless it ends in one ("10f", "2sec")
    linear, ///< a number, in the current unit unless it ends in one ("5cm")
    angle,  ///< a number, in the current unit unless it ends in one ("90deg")
    script, ///< text to run later
    any,
};
/// As `help` shows it: "on|off", "Int", "String".
const char* argumentTypeName(ArgumentType type);

/// Where a flag may stand.
enum FlagMode : unsigned
{
    kCreate = 1,
    kEdit = 2,
    kQuery = 4,
    kQueryWithArguments = 8, ///< takes its arguments in query mode too
    kMultiUse = 16,          ///< may be given more than once; each use counts
    kVariable = 32,          ///< the last argument type repeats until the next flag
    kRefused = 64,           ///< known, but an error that names it: the help says why
    kCreateEdit = kCreate | kEdit,
    kCreateQuery = kCreate | kQuery,
    kAllModes = kCreate | kEdit | kQuery,
};

/// One flag; names are written without their dash.
struct FlagSpec
{
    std::string shortName;
    std::string longName;
    std::vector<ArgumentType> arguments;
    unsigned modes = kCreate;
    std::string help; ///< one line
};

/// How many arguments stand beside the flags, and of which type.
struct PositionalRule
{
    static constexpr std::size_t kAny = static_cast<std::size_t>(-1);

    ArgumentType type = ArgumentType::string;
    std::size_t least = 0;
    std::size_t most = 0;
};

/// One parameter of a function: a command without flags that takes values in order.
struct Parameter
{
    enum class Kind
    {
        any,
        integer,
        number,
        string,
        vector,
        matrix,
        integerArray,
        numberArray,
        stringArray,
        anyArray,
    };
    Kind kind = Kind::any;
    bool optional = false;
    bool repeats = false; ///< any number of arguments from here on
};

/// Flags and typed arguments are parsed before it runs.
using ParsedHandler = std::function<Value(CommandContext&, const ParsedCommand&)>;
/// Receives the arguments as they stand, and parses them itself.
using RawHandler = std::function<Value(CommandContext&, const ArgumentList&)>;
/// Receives values converted to its parameters; arrays are those of the caller, not copies.
using FunctionHandler = std::function<Value(CommandContext&, std::vector<Value>&)>;

struct CommandSpec
{
    std::string name;
    std::string summary; ///< one line
    std::vector<FlagSpec> flags;
    PositionalRule positional;
    std::vector<Parameter> parameters; ///< of a function
    std::variant<std::monostate, ParsedHandler, RawHandler, FunctionHandler> handler;
    bool queryable = false; ///< has -query/-q
    bool editable = false;  ///< has -edit/-e
    /// Of a command that takes its arguments apart itself: what `help` tells instead of this.
    std::function<CommandSpec()> described;

    /// The flag with this short or long name (no dash); null when there is none. No abbreviations.
    const FlagSpec* flag(std::string_view name) const;
    bool isFunction() const { return std::holds_alternative<FunctionHandler>(handler); }
    bool isRaw() const { return std::holds_alternative<RawHandler>(handler); }
};

class CommandTable
{
public:
    /// Adds a command; false (and no change) when the name is taken.
    bool add(CommandSpec spec);
    /// Adds the commands of a family. Throws std::logic_error for a name that is taken: two families declare
    /// it.
    void add(std::initializer_list<CommandSpec> specs);
    /// Takes a command away, as unloading a plug-in does; false when there is none. A call under way keeps
    /// it.
    bool remove(std::string_view name);
    /// Null when there is no such command.
    std::shared_ptr<const CommandSpec> find(std::string_view name) const;
    /// All names, sorted.
    std::vector<std::string> names() const;

private:
    std::unordered_map<std::string, std::shared_ptr<const CommandSpec>> m_commands;
};

enum class CommandMode
{
    create,
    edit,
    query
};

/// One use of a flag with its arguments, converted to the declared types.
struct FlagUse
{
    const FlagSpec* flag = nullptr;
    std::vector<Value> arguments;
};

/// The arguments of a call, taken apart as the command's declaration says. Flags are asked for by long name.
class ParsedCommand
{
public:
    CommandMode mode = CommandMode::create;
    std::vector<FlagUse> flags;    ///< in the order they were given
    std::vector<Value> positional; ///< in order, converted to the declared type

    bool queries() const { return mode == CommandMode::query; }
    bool edits() const { return mode == CommandMode::edit; }
    bool has(std::string_view longName) const { return use(longName) != nullptr; }
    /// The last use of the flag; null when it was not given.
    const FlagUse* use(std::string_view longName) const;
    std::vector<const FlagUse*> uses(std::string_view longName) const;

    /// The first argument of the flag's last use, or the default when it was not given.
    bool boolean(std::string_view longName, bool otherwise = false) const;
    int integer(std::string_view longName, int otherwise = 0) const;
    double number(std::string_view longName, double otherwise = 0.0) const;
    std::string string(std::string_view longName, const std::string& otherwise = {}) const;
    /// The positional arguments as strings.
    std::vector<std::string> names() const;
};

/// Takes the arguments of a call apart. Throws ValueError with the message for the script's author.
ParsedCommand parseArguments(const CommandSpec& spec, const ArgumentList& arguments);

/// Converts the arguments of a function to its parameters' types; optional ones may be missing. Throws
/// ValueError for a wrong number of arguments or a type that does not convert.
void convertArguments(const CommandSpec& spec, std::vector<Value>& arguments);

/// What `help NAME` prints: the synopsis and one line per flag, or per parameter list of a function.
std::string commandHelp(const CommandSpec& spec);

} // namespace tvxhost::mel
