// ParsedArguments: the arguments of a command taken apart as its syntax says.
#include "parsedArguments.h"

#include "argumentValue.h"
#include "selectionItems.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace tvxhost::api {

using engine::Expected;
using engine::Outcome;
using engine::Reason;

namespace {

/// What an error calls an argument, in the order of MSyntax::MArgType.
constexpr std::array kArgumentNames = {
    "an invalid",  "no",         "a boolean", "an integer", "a number",  "a string",
    "an unsigned", "a distance", "an angle",  "a time",     "an object",
};

/// A dash and a letter: a negative number is no flag.
bool looksLikeFlag(const Argument& argument)
{
    const auto* text = std::get_if<std::string>(&argument);
    return text && text->size() > 1 && text->front() == '-' &&
           (std::isalpha(static_cast<unsigned char>((*text)[1])) || (*text)[1] == '_');
}

template <class Value>
bool canBe(const Argument& argument)
{
    Value value{};
    return take(argument, value);
}

/// The words that stand for a truth value in scripts.
bool takeKeyword(Argument& argument)
{
    const auto* text = std::get_if<std::string>(&argument);
    const auto isOneOf = [text](std::initializer_list<const char*> words) {
        return text && std::find(words.begin(), words.end(), *text) != words.end();
    };
    if (isOneOf({"on", "yes", "true"}))
        argument = 1;
    else if (isOneOf({"off", "no", "false"}))
        argument = 0;
    else
        return false;
    return true;
}

/// Whether an argument fits a type; a word for a truth value becomes its number.
bool fit(Argument& argument, MSyntax::MArgType type)
{
    switch (type) {
    case MSyntax::kBoolean:
        return takeKeyword(argument) || canBe<bool>(argument);
    case MSyntax::kLong:
        return takeKeyword(argument) || canBe<int>(argument);
    case MSyntax::kUnsigned: {
        double number = 0.0;
        return takeKeyword(argument) || (take(argument, number) && number >= 0.0);
    }
    case MSyntax::kDouble:
        return canBe<double>(argument);
    case MSyntax::kDistance:
        return canBe<MDistance>(argument);
    case MSyntax::kAngle:
        return canBe<MAngle>(argument);
    case MSyntax::kTime:
        return canBe<MTime>(argument);
    default:
        return true;
    }
}

/// Whether an argument of this type may begin with a dash.
bool isText(MSyntax::MArgType type)
{
    return type == MSyntax::kString || type == MSyntax::kSelectionItem;
}

enum class Mode
{
    create,
    query,
    edit
};

/// Works through the arguments of one call from left to right.
class Parser
{
public:
    Parser(const SyntaxTable& syntax, const Arguments& arguments, const std::string& command)
        : m_items(arguments.items), m_command(command)
    {
        m_parsed.syntax = syntax;
    }

    Expected<ParsedArguments> run()
    {
        for (const auto step :
             {&Parser::findMode, &Parser::readItems, &Parser::shareOut, &Parser::findObjects})
            if (Outcome outcome = (this->*step)(); !outcome)
                return outcome;
        return std::move(m_parsed);
    }

private:
    Mode modeOf(const Argument& argument) const
    {
        const std::string& word = std::get<std::string>(argument);
        if (m_parsed.syntax.canQuery && (word == "-q" || word == "-query"))
            return Mode::query;
        if (m_parsed.syntax.canEdit && (word == "-e" || word == "-edit"))
            return Mode::edit;
        return Mode::create;
    }

    /// The mode decides how flags are read, wherever its own flag stands.
    Outcome findMode()
    {
        for (const Argument& item : m_items) {
            const Mode mode = looksLikeFlag(item) ? modeOf(item) : Mode::create;
            m_parsed.isQuery |= mode == Mode::query;
            m_parsed.isEdit |= mode == Mode::edit;
        }
        if (m_parsed.isQuery && m_parsed.isEdit)
            return {Reason::failed, "Flags '-query' and '-edit' cannot be used together"};
        return {};
    }

    Outcome readItems()
    {
        while (m_next < m_items.size()) {
            const Argument& item = m_items[m_next];
            if (!looksLikeFlag(item))
                m_rest.push_back(m_items[m_next++]);
            else if (modeOf(item) != Mode::create)
                ++m_next;
            else if (Outcome outcome = readFlag(); !outcome)
                return outcome;
        }
        return {};
    }

    Outcome readFlag()
    {
        const std::string& word = std::get<std::string>(m_items[m_next]);
        const SyntaxTable::Flag* flag = m_parsed.syntax.find(word);
        if (!flag)
            return {Reason::failed, "Invalid flag '" + word + "'"};
        const auto index = static_cast<std::size_t>(flag - m_parsed.syntax.flags.data());
        ParsedArguments::Use use{index, static_cast<unsigned int>(m_next++), {}};
        if (Outcome outcome = readFlagArguments(*flag, use); !outcome)
            return outcome;
        auto& uses = m_parsed.uses;
        if (!flag->isMultiUse)
            uses.erase(std::remove_if(uses.begin(), uses.end(),
                                      [index](const auto& other) { return other.flag == index; }),
                       uses.end());
        uses.push_back(std::move(use));
        return {};
    }

    Outcome readFlagArguments(const SyntaxTable::Flag& flag, ParsedArguments::Use& use)
    {
        if (m_parsed.isQuery && !flag.isQueriedWithArguments)
            return {};
        const bool areOptional = m_parsed.isQuery && flag.areQueryArgumentsOptional;
        if (areOptional && (m_next == m_items.size() || looksLikeFlag(m_items[m_next])))
            return {};
        for (const MSyntax::MArgType type : flag.arguments) {
            const bool isThere = m_next < m_items.size() && (isText(type) || !looksLikeFlag(m_items[m_next]));
            Argument argument = isThere ? m_items[m_next] : Argument();
            if (!isThere || !fit(argument, type))
                return {Reason::failed, "Flag '-" + flag.longName + "' must be passed " +
                                            kArgumentNames.at(static_cast<std::size_t>(type)) + " argument"};
            use.arguments.push_back(std::move(argument));
            ++m_next;
        }
        return {};
    }

    /// What is no flag are the arguments, then the objects.
    Outcome shareOut()
    {
        const SyntaxTable& syntax = m_parsed.syntax;
        const std::size_t count = syntax.arguments.size();
        const bool takesObjects = syntax.objectFormat != MSyntax::kNone;
        if (m_rest.size() < count || (m_rest.size() > count && !takesObjects))
            return {Reason::failed, "Wrong number of arguments on call to " + m_command + "."};
        for (std::size_t i = 0; i < count; ++i) {
            if (!fit(m_rest[i], syntax.arguments[i]))
                return {Reason::failed,
                        "Invalid argument " + std::to_string(i + 1) + " of " + m_command + ": expected " +
                            kArgumentNames.at(static_cast<std::size_t>(syntax.arguments[i])) + " argument"};
            m_parsed.arguments.push_back(m_rest[i]);
        }
        for (std::size_t i = count; i < m_rest.size(); ++i) {
            MString name;
            (void)take(m_rest[i], name);
            m_parsed.objects.push_back(tvxAccess::text(name));
        }
        return {};
    }

    Outcome findObjects()
    {
        const SyntaxTable& syntax = m_parsed.syntax;
        if (syntax.objectFormat == MSyntax::kNone)
            return {};
        if (m_parsed.objects.empty() && syntax.usesSelection)
            takeSelection();
        else if (syntax.objectFormat == MSyntax::kSelectionList)
            if (Outcome outcome = lookUp(); !outcome)
                return outcome;
        return checkCount();
    }

    void takeSelection()
    {
        m_parsed.selection = engine::Scene::current().selection();
        for (const engine::SelectionItem& item : m_parsed.selection.items())
            m_parsed.objects.push_back(item.name());
    }

    Outcome lookUp()
    {
        for (const std::string& name : m_parsed.objects) {
            const auto found = itemsNamed(engine::Scene::current(), name);
            if (!found)
                return {Reason::doesNotExist, "No object matches name: " + name};
            for (const engine::SelectionItem& item : found.value)
                m_parsed.selection.add(item);
        }
        return {};
    }

    Outcome checkCount() const
    {
        const SyntaxTable& syntax = m_parsed.syntax;
        const std::size_t count = m_parsed.objects.size();
        if (count < syntax.minimumObjects)
            return {Reason::failed, m_command + " needs at least " + std::to_string(syntax.minimumObjects) +
                                        " object(s), " + std::to_string(count) + " given"};
        if (syntax.maximumObjects && count > *syntax.maximumObjects)
            return {Reason::failed, m_command + " takes at most " + std::to_string(*syntax.maximumObjects) +
                                        " object(s), " + std::to_string(count) + " given"};
        return {};
    }

    const std::vector<Argument>& m_items;
    const std::string& m_command;
    std::size_t m_next = 0;
    std::vector<Argument> m_rest; ///< what is no flag and no argument of one
    ParsedArguments m_parsed;
};

} // namespace

std::vector<const ParsedArguments::Use*> ParsedArguments::usesOf(const char* flag) const
{
    std::vector<const Use*> found;
    const SyntaxTable::Flag* wanted = flag ? syntax.find(flag) : nullptr;
    for (const Use& use : uses)
        if (wanted == &syntax.flags[use.flag])
            found.push_back(&use);
    return found;
}

Expected<ParsedArguments> parse(const SyntaxTable& syntax, const Arguments& arguments,
                                const std::string& command)
{
    return Parser(syntax, arguments, command).run();
}

} // namespace tvxhost::api
