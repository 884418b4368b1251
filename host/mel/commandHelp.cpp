// Help texts, made from the declarations of commands.
#include "commandTable.h"

#include <algorithm>

namespace tvxhost::mel {

namespace {

// In the order of ArgumentType and of Parameter::Kind.
const char* const kArgumentTypes[] = {"on|off", "Int",    "Float", "String", "Name",
                                      "Time",   "Length", "Angle", "Script", "Any"};
const char* const kParameterTypes[] = {"any",    "int",   "float",   "string",   "vector",
                                       "matrix", "int[]", "float[]", "string[]", "any[]"};

constexpr std::size_t kShortWidth = 4;
constexpr std::size_t kLongWidth = 22;

std::string padded(const std::string& text, std::size_t width)
{
    return text + std::string(width > text.size() ? width - text.size() : 0, ' ');
}

std::string flagLine(const std::string& shortName, const std::string& longName, const std::string& types)
{
    const std::string dashed = '-' + shortName;
    std::string line = std::string(dashed.size() < kShortWidth ? kShortWidth - dashed.size() : 0, ' ') +
                       dashed + ' ' + padded('-' + longName, kLongWidth) + ' ' + types;
    line.erase(line.find_last_not_of(' ') + 1);
    return "  " + line + '\n';
}

std::string flagLine(const FlagSpec& flag)
{
    std::string types;
    for (const ArgumentType type : flag.arguments) {
        types += (types.empty() ? "" : " ") + std::string(argumentTypeName(type));
    }
    types += (flag.modes & kVariable) != 0 ? "..." : "";
    types += (flag.modes & kMultiUse) != 0 ? " (multi-use)" : "";
    types += (flag.modes & kRefused) != 0 ? "(refused)" : "";
    std::string line = flagLine(flag.shortName, flag.longName, types);
    if (!flag.help.empty()) {
        line += std::string(2 + kShortWidth + 2, ' ') + flag.help + '\n';
    }
    return line;
}

std::string synopsis(const CommandSpec& spec)
{
    std::string text = spec.name;
    if (spec.isFunction()) {
        for (const Parameter& parameter : spec.parameters) {
            const std::string type = kParameterTypes[static_cast<std::size_t>(parameter.kind)];
            text += parameter.repeats    ? " [" + type + "...]"
                    : parameter.optional ? " [" + type + ']'
                                         : ' ' + type;
        }
        return text;
    }
    if (!spec.flags.empty() || spec.queryable || spec.editable) {
        text += " [flags]";
    }
    const std::string type = argumentTypeName(spec.positional.type);
    for (std::size_t i = 0; i < spec.positional.least; ++i) {
        text += ' ' + type;
    }
    if (spec.positional.most == PositionalRule::kAny) {
        text += " [" + type + "...]";
    } else {
        for (std::size_t i = spec.positional.least; i < spec.positional.most; ++i) {
            text += " [" + type + ']';
        }
    }
    return text;
}

} // namespace

const char* argumentTypeName(ArgumentType type)
{
    return kArgumentTypes[static_cast<std::size_t>(type)];
}

std::string commandHelp(const CommandSpec& spec)
{
    std::string text = "Synopsis: " + synopsis(spec) + '\n';
    if (!spec.summary.empty()) {
        text += "  " + spec.summary + '\n';
    }
    std::string flags;
    if (spec.editable) {
        flags += flagLine("e", "edit", "");
    }
    if (spec.queryable) {
        flags += flagLine("q", "query", "");
    }
    for (const FlagSpec& flag : spec.flags) {
        flags += flagLine(flag);
    }
    return flags.empty() ? text : text + "Flags:\n" + flags;
}

} // namespace tvxhost::mel
