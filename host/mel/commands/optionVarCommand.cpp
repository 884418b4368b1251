// optionVar: the user's option variables.
#include "optionVarCommand.h"

#include "commandSupport.h"

#include <type_traits>
#include <variant>

namespace tvxhost::mel {

using engine::OptionValue;
using engine::OptionVars;

namespace {

Value toValue(const OptionValue& value)
{
    return std::visit([](const auto& held) { return Value(held); }, value);
}

template <class T>
void append(OptionVars& variables, const std::string& name, T element)
{
    std::vector<T> elements;
    if (const OptionValue* value = variables.find(name)) {
        if (const auto* array = std::get_if<std::vector<T>>(value))
            elements = *array;
        else if (const auto* single = std::get_if<T>(value))
            elements = {*single};
    }
    elements.push_back(std::move(element));
    variables.set(name, std::move(elements));
}

template <class Held>
constexpr bool kIsArray = !std::is_arithmetic_v<Held> && !std::is_same_v<Held, std::string>;

/// What is no array counts as one element.
std::size_t sizeOf(const OptionValue* value)
{
    return value ? std::visit(
                       [](const auto& held) -> std::size_t {
                           if constexpr (kIsArray<std::decay_t<decltype(held)>>)
                               return held.size();
                           else
                               return 1;
                       },
                       *value)
                 : 0;
}

/// Changes an array; what is none stays as it is.
template <class Change>
void changeArray(OptionVars& variables, const std::string& name, Change change)
{
    const OptionValue* value = variables.find(name);
    if (!value)
        return;
    OptionValue changed = *value;
    std::visit(
        [&](auto& held) {
            if constexpr (kIsArray<std::decay_t<decltype(held)>>)
                change(held);
        },
        changed);
    variables.set(name, std::move(changed));
}

void clearArray(OptionVars& variables, const std::string& name)
{
    changeArray(variables, name, [](auto& elements) { elements.clear(); });
}

void removeElement(OptionVars& variables, const std::string& name, int index)
{
    changeArray(variables, name, [&](auto& elements) {
        if (index >= 0 && static_cast<std::size_t>(index) < elements.size())
            elements.erase(elements.begin() + index);
    });
}

/// One flag of optionVar that changes a variable.
struct OptionChange
{
    const char* shortName;
    const char* longName;
    std::vector<ArgumentType> arguments; ///< behind the variable's name
    const char* help;
    void (*apply)(OptionVars& variables, const std::string& name, const std::vector<Value>& arguments);
};

const std::vector<OptionChange>& optionChanges()
{
    using A = ArgumentType;
    using Values = std::vector<Value>;
    static const std::vector<OptionChange> changes = {
        {"iv",
         "intValue",
         {A::integer},
         "sets a whole number",
         [](OptionVars& v, const std::string& n, const Values& a) { v.set(n, a[1].toInteger()); }},
        {"fv",
         "floatValue",
         {A::number},
         "sets a number",
         [](OptionVars& v, const std::string& n, const Values& a) { v.set(n, a[1].toNumber()); }},
        {"sv",
         "stringValue",
         {A::string},
         "sets a string",
         [](OptionVars& v, const std::string& n, const Values& a) { v.set(n, a[1].toString()); }},
        {"iva",
         "intValueAppend",
         {A::integer},
         "adds a whole number to an array",
         [](OptionVars& v, const std::string& n, const Values& a) { append(v, n, a[1].toInteger()); }},
        {"fva",
         "floatValueAppend",
         {A::number},
         "adds a number to an array",
         [](OptionVars& v, const std::string& n, const Values& a) { append(v, n, a[1].toNumber()); }},
        {"sva",
         "stringValueAppend",
         {A::string},
         "adds a string to an array",
         [](OptionVars& v, const std::string& n, const Values& a) { append(v, n, a[1].toString()); }},
        {"ca",
         "clearArray",
         {},
         "empties an array",
         [](OptionVars& v, const std::string& n, const Values&) { clearArray(v, n); }},
        {"rfa",
         "removeFromArray",
         {A::integer},
         "takes one element out of an array",
         [](OptionVars& v, const std::string& n, const Values& a) { removeElement(v, n, a[1].toInteger()); }},
    };
    return changes;
}

Value optionVar(CommandContext& context, const ParsedCommand& call)
{
    OptionVars& variables = sceneOf(context).optionVars();
    if (call.has("exists"))
        return Value(variables.exists(call.string("exists")));
    if (call.has("list"))
        return Value(Value::Strings(variables.names()));
    if (call.has("arraySize"))
        return Value(static_cast<int>(sizeOf(variables.find(call.string("arraySize")))));
    if (call.queries()) {
        if (call.positional.empty())
            context.fail("optionVar: which variable is asked for?");
        const OptionValue* value = variables.find(call.names().front());
        return value ? toValue(*value) : Value(0);
    }
    // Whatever their order, variables go before others are set.
    for (const FlagUse* use : call.uses("remove"))
        variables.remove(use->arguments.front().toString());
    for (const FlagUse& use : call.flags)
        for (const OptionChange& change : optionChanges())
            if (use.flag->longName == change.longName)
                change.apply(variables, use.arguments.front().toString(), use.arguments);
    return {};
}

} // namespace

CommandSpec optionVarCommand()
{
    using A = ArgumentType;
    std::vector<FlagSpec> flags = {
        valueFlag("ex", "exists", A::string, "whether there is such a variable",
                  kCreateQuery | kQueryWithArguments),
        valueFlag("as", "arraySize", A::string, "how many elements it has",
                  kCreateQuery | kQueryWithArguments),
        switchFlag("l", "list", "the names of all", kCreateQuery),
        valueFlag("rm", "remove", A::string, "deletes the variable", kCreate | kMultiUse),
        valueFlag("v", "version", A::integer, "of a file of preferences: there is only one"),
    };
    for (const OptionChange& change : optionChanges()) {
        std::vector<A> arguments = {A::string};
        arguments.insert(arguments.end(), change.arguments.begin(), change.arguments.end());
        flags.push_back(
            {change.shortName, change.longName, std::move(arguments), kCreate | kMultiUse, change.help});
    }
    return makeCommand("optionVar", "Sets and tells the user's option variables", std::move(flags),
                       names(0, 1), optionVar, kQuery);
}

} // namespace tvxhost::mel
