// Flags that stand for attributes; see attributeFlags.h.
#include "attributeFlags.h"

#include <algorithm>
#include <cctype>

namespace tvxhost::mel {

using engine::AttributeKind;
using engine::Node;
using engine::Plug;

namespace {

using A = ArgumentType;

bool hasUnit(A type)
{
    return type == A::linear || type == A::angle || type == A::time;
}

/// Angles, distances and plain numbers of a flag in internal units.
double numberOf(const CommandContext& context, const Value& value, A type)
{
    return hasUnit(type) ? toInternal(context, value, type) : value.toNumber();
}

std::string lowerCase(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    return text;
}

/// A text, or the field of an enum that has this name.
engine::Outcome writeWord(const CommandContext& context, const Plug& plug, const std::string& word)
{
    if (plug.attribute()->kind != AttributeKind::enumeration)
        return writeString(plug, word);
    for (const engine::EnumField& field : plug.attribute()->fields)
        if (lowerCase(field.name) == lowerCase(word))
            return writeNumber(plug, static_cast<int>(field.value));
    context.fail("'" + word + "' is no value of " + plug.name());
}

Value wordOf(const CommandContext& context, const Plug& plug)
{
    if (plug.attribute()->kind != AttributeKind::enumeration)
        return Value(valueOf(context, readString(plug)));
    const auto field = static_cast<short>(valueOf(context, readNumber(plug)).asWhole());
    return Value(lowerCase(plug.attribute()->fieldName(field).value_or("")));
}

void set(const CommandContext& context, const Plug& plug, const AttributeFlag& flag,
         const std::vector<Value>& arguments)
{
    if (flag.type == A::string) {
        require(context, writeWord(context, plug, arguments.front().toString()));
        return;
    }
    std::vector<double> numbers;
    for (const Value& argument : arguments)
        numbers.push_back(numberOf(context, argument, flag.type));
    require(context, flag.count == 1 ? writeNumber(plug, numbers.front()) : writeNumbers(plug, numbers));
}

Value told(const CommandContext& context, const Plug& plug, const AttributeFlag& flag)
{
    if (flag.type == A::string)
        return wordOf(context, plug);
    const double unit = hasUnit(flag.type) ? toInternal(context, Value(1.0), flag.type) : 1.0;
    if (flag.count > 1) {
        std::vector<double> numbers = valueOf(context, readNumbers(plug));
        for (double& number : numbers)
            number /= unit;
        return Value(Value::Numbers(std::move(numbers)));
    }
    const engine::Number number = valueOf(context, readNumber(plug));
    if (flag.type == A::boolean)
        return Value(number.asWhole() != 0);
    return flag.type == A::integer ? Value(static_cast<int>(number.asWhole()))
                                   : Value(number.asReal() / unit);
}

} // namespace

std::vector<FlagSpec> specsOf(const AttributeFlags& flags)
{
    std::vector<FlagSpec> specs;
    for (const AttributeFlag& flag : flags)
        specs.push_back(
            {flag.shortName, flag.longName, std::vector<A>(flag.count, flag.type), kAllModes, flag.help});
    return specs;
}

void setAttributes(const CommandContext& context, const ParsedCommand& call, const AttributeFlags& flags,
                   Node& node)
{
    for (const AttributeFlag& flag : flags)
        if (const FlagUse* use = call.use(flag.longName))
            set(context, plugOf(context, node, flag.attribute), flag, use->arguments);
}

std::optional<Value> queriedAttribute(const CommandContext& context, const ParsedCommand& call,
                                      const AttributeFlags& flags, Node& node)
{
    for (const AttributeFlag& flag : flags)
        if (call.has(flag.longName))
            return told(context, plugOf(context, node, flag.attribute), flag);
    return std::nullopt;
}

Plug plugOf(const CommandContext& context, Node& node, const char* attribute)
{
    return valueOf(context, node.findPlug(attribute));
}

Node* nodeOfType(const engine::SelectionItem& item, const char* type)
{
    Node* node = item.node.get();
    if (node->type().isA(type))
        return node;
    if (engine::DagNode* dag = node->asDag(); dag && dag->isTransform())
        for (engine::DagNode* child : dag->children())
            if (child->type().isA(type))
                return child;
    return nullptr;
}

engine::SelectionItem onlyItem(const CommandContext& context, const ParsedCommand& call)
{
    const std::vector<engine::SelectionItem> items = itemsOrSelection(context, call.names());
    if (items.size() != 1)
        context.fail("'" + context.command() + "' needs exactly one object to query or edit");
    return items.front();
}

} // namespace tvxhost::mel
