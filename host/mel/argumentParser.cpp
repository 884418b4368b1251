// Arguments taken apart as a command's declaration says.
#include "commandTable.h"

#include <algorithm>

namespace tvxhost::mel {

namespace {

const char* const kArgumentNames[] = {
    "a boolean", "an integer", "a number", "a string", "a name",
    "a time",    "a distance", "an angle", "a script", "an",
};

bool isNumeric(ArgumentType type)
{
    switch (type) {
    case ArgumentType::boolean:
    case ArgumentType::integer:
    case ArgumentType::number:
        return true;
    default:
        return false;
    }
}

/// The argument as the type asks; none when it is of another kind.
Value converted(const Argument& argument, ArgumentType type)
{
    bool isKeyword = false;
    const bool on = keywordBoolean(argument.text, isKeyword);
    switch (type) {
    case ArgumentType::any:
        return argument.asValue();
    case ArgumentType::boolean:
    case ArgumentType::integer:
    case ArgumentType::number: {
        const LeadingNumber number = argument.number();
        const Value value = isKeyword ? Value(on) : number.found ? Value(number.value) : Value();
        return value.isNone()                  ? value
               : type == ArgumentType::boolean ? Value(value.toBoolean())
               : type == ArgumentType::integer ? Value(value.toInteger())
                                               : Value(value.toNumber());
    }
    case ArgumentType::time:
    case ArgumentType::linear:
    case ArgumentType::angle:
        // A unit may follow the number: the command resolves it.
        if (argument.kind == ArgumentKind::word || argument.kind == ArgumentKind::string) {
            return argument.number().found ? Value(argument.text) : Value();
        }
        return argument.number().value;
    default:
        return argument.text;
    }
}

/// Works through the arguments of one call from left to right.
class Parser
{
public:
    Parser(const CommandSpec& spec, const ArgumentList& arguments, CommandMode mode)
        : m_spec(spec), m_arguments(arguments)
    {
        m_parsed.mode = mode;
    }

    /// False when the mode flag stands behind arguments that must be read in that mode.
    bool parse(CommandMode& mode)
    {
        while (m_next < m_arguments.size()) {
            const Argument& argument = m_arguments[m_next];
            if (!argument.looksLikeFlag()) {
                m_parsed.positional.push_back(positional(argument));
                ++m_next;
            } else if (const CommandMode asked = modeOf(argument.text.substr(1));
                       asked != CommandMode::create) {
                ++m_next;
                if (m_parsed.mode != asked) {
                    mode = asked;
                    return false;
                }
            } else {
                parseFlag(argument);
            }
        }
        checkCount();
        return true;
    }

    ParsedCommand result() { return std::move(m_parsed); }

private:
    CommandMode modeOf(std::string_view name) const
    {
        if (m_spec.queryable && (name == "q" || name == "query")) {
            return CommandMode::query;
        }
        if (m_spec.editable && (name == "e" || name == "edit")) {
            return CommandMode::edit;
        }
        return CommandMode::create;
    }

    void parseFlag(const Argument& argument)
    {
        const FlagSpec* flag = m_spec.flag(argument.text.substr(1));
        if (flag == nullptr) {
            throw ValueError("Invalid flag '" + std::string(argument.text) + "'");
        }
        if ((flag->modes & kRefused) != 0) {
            throw ValueError("Flag '-" + flag->longName + "' of " + m_spec.name +
                             " is refused: " + flag->help);
        }
        ++m_next;
        checkMode(*flag);
        if ((flag->modes & kMultiUse) == 0 && m_parsed.has(flag->longName)) {
            // The last use counts, as in Maya.
            m_parsed.flags.erase(std::find_if(m_parsed.flags.begin(), m_parsed.flags.end(),
                                              [flag](const FlagUse& use) { return use.flag == flag; }));
        }
        FlagUse use{flag, {}};
        if (m_parsed.mode != CommandMode::query || (flag->modes & kQueryWithArguments) != 0) {
            readArguments(use);
        }
        m_parsed.flags.push_back(std::move(use));
    }

    void checkMode(const FlagSpec& flag) const
    {
        static constexpr struct
        {
            CommandMode mode;
            unsigned bits;
            const char* name;
        } kModes[] = {{CommandMode::create, kCreate, "create"},
                      {CommandMode::edit, kEdit, "edit"},
                      {CommandMode::query, kQuery | kQueryWithArguments, "query"}};
        for (const auto& row : kModes) {
            if (row.mode == m_parsed.mode && (flag.modes & row.bits) == 0) {
                throw ValueError("Flag '-" + flag.longName + "' cannot be used in " + row.name + " mode");
            }
        }
    }

    void readArguments(FlagUse& use)
    {
        for (const ArgumentType type : use.flag->arguments) {
            use.arguments.push_back(flagArgument(*use.flag, type));
        }
        while ((use.flag->modes & kVariable) != 0 && m_next < m_arguments.size() &&
               !m_arguments[m_next].looksLikeFlag()) {
            use.arguments.push_back(flagArgument(*use.flag, use.flag->arguments.back()));
        }
    }

    Value flagArgument(const FlagSpec& flag, ArgumentType type)
    {
        Value value;
        // What follows is the argument even when it begins with a dash, unless only a number would do.
        if (m_next < m_arguments.size() && !(isNumeric(type) && m_arguments[m_next].looksLikeFlag())) {
            value = converted(m_arguments[m_next], type);
        }
        if (value.isNone()) {
            throw ValueError("Flag '-" + flag.longName + "' must be passed " +
                             kArgumentNames[static_cast<std::size_t>(type)] + " argument");
        }
        ++m_next;
        return value;
    }

    Value positional(const Argument& argument) const
    {
        Value value = converted(argument, m_spec.positional.type);
        if (value.isNone()) {
            throw ValueError("Invalid argument '" + std::string(argument.text) + "' of " + m_spec.name +
                             ": expected " +
                             kArgumentNames[static_cast<std::size_t>(m_spec.positional.type)]);
        }
        return value;
    }

    void checkCount() const
    {
        const std::size_t count = m_parsed.positional.size();
        if (count < m_spec.positional.least || count > m_spec.positional.most) {
            throw ValueError("Wrong number of arguments on call to " + m_spec.name + ".");
        }
    }

    const CommandSpec& m_spec;
    const ArgumentList& m_arguments;
    std::size_t m_next = 0;
    ParsedCommand m_parsed;
};

} // namespace

const FlagUse* ParsedCommand::use(std::string_view longName) const
{
    const auto found = std::find_if(flags.rbegin(), flags.rend(), [longName](const FlagUse& candidate) {
        return candidate.flag->longName == longName;
    });
    return found == flags.rend() ? nullptr : &*found;
}

std::vector<const FlagUse*> ParsedCommand::uses(std::string_view longName) const
{
    std::vector<const FlagUse*> result;
    for (const FlagUse& candidate : flags) {
        if (candidate.flag->longName == longName) {
            result.push_back(&candidate);
        }
    }
    return result;
}

bool ParsedCommand::boolean(std::string_view longName, bool otherwise) const
{
    const FlagUse* found = use(longName);
    return found == nullptr || found->arguments.empty() ? otherwise : found->arguments.front().toBoolean();
}

int ParsedCommand::integer(std::string_view longName, int otherwise) const
{
    const FlagUse* found = use(longName);
    return found == nullptr || found->arguments.empty() ? otherwise : found->arguments.front().toInteger();
}

double ParsedCommand::number(std::string_view longName, double otherwise) const
{
    const FlagUse* found = use(longName);
    return found == nullptr || found->arguments.empty() ? otherwise : found->arguments.front().toNumber();
}

std::string ParsedCommand::string(std::string_view longName, const std::string& otherwise) const
{
    const FlagUse* found = use(longName);
    return found == nullptr || found->arguments.empty() ? otherwise : found->arguments.front().toString();
}

std::vector<std::string> ParsedCommand::names() const
{
    std::vector<std::string> result;
    result.reserve(positional.size());
    for (const Value& value : positional) {
        result.push_back(value.toString());
    }
    return result;
}

ParsedCommand parseArguments(const CommandSpec& spec, const ArgumentList& arguments)
{
    CommandMode mode = CommandMode::create;
    Parser parser(spec, arguments, mode);
    if (parser.parse(mode)) {
        return parser.result();
    }
    Parser inMode(spec, arguments, mode);
    CommandMode other = mode;
    if (!inMode.parse(other)) {
        throw ValueError("Flags '-query' and '-edit' cannot be used together");
    }
    return inMode.result();
}

namespace {

/// The type a parameter converts to; none: as it is.
Type typeOf(Parameter::Kind kind)
{
    switch (kind) {
    case Parameter::Kind::integer:
        return Type::integer;
    case Parameter::Kind::number:
        return Type::number;
    case Parameter::Kind::string:
        return Type::string;
    case Parameter::Kind::vector:
        return Type::vector;
    case Parameter::Kind::matrix:
        return Type::matrix;
    case Parameter::Kind::integerArray:
        return Type::integerArray;
    case Parameter::Kind::numberArray:
        return Type::numberArray;
    case Parameter::Kind::stringArray:
        return Type::stringArray;
    case Parameter::Kind::any:
    case Parameter::Kind::anyArray:
        break;
    }
    return Type::none;
}

} // namespace

void convertArguments(const CommandSpec& spec, std::vector<Value>& arguments)
{
    const auto& parameters = spec.parameters;
    const bool repeats = !parameters.empty() && parameters.back().repeats;
    const auto least = static_cast<std::size_t>(
        std::count_if(parameters.begin(), parameters.end(),
                      [](const Parameter& parameter) { return !parameter.optional && !parameter.repeats; }));
    if (arguments.size() < least || (!repeats && arguments.size() > parameters.size())) {
        throw ValueError("Wrong number of arguments on call to " + spec.name + ".");
    }
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const Parameter::Kind kind = parameters[std::min(i, parameters.size() - 1)].kind;
        if (kind == Parameter::Kind::anyArray && !isArray(arguments[i].type())) {
            throw ValueError(std::string("Cannot convert data of type ") + typeName(arguments[i].type()) +
                             " to an array.");
        }
        if (const Type type = typeOf(kind); type != Type::none) {
            arguments[i] = arguments[i].to(type);
        }
    }
}

} // namespace tvxhost::mel
