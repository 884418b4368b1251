// Constant arguments; see constantArguments.h.
#include "constantArguments.h"

#include <optional>

namespace tvxhost::scene {

namespace {

using mel::Value;
namespace ast = mel::ast;

std::optional<Value> valueOf(const ast::Expression& expression);

/// Strings that are joined; `sum` grows in place, since such chains are long.
std::optional<Value> valueOf(const ast::Chain& chain)
{
    const std::optional<Value> first = valueOf(*chain.first);
    if (!first || first->type() != mel::Type::string)
        return std::nullopt;
    std::string sum = first->string();
    for (const ast::Chain::Link& link : chain.links) {
        const std::optional<Value> operand = valueOf(*link.operand);
        if (link.op != ast::Operator::add || !operand || operand->type() != mel::Type::string)
            return std::nullopt;
        sum += operand->string();
    }
    return Value(std::move(sum));
}

std::optional<Value> valueOf(const ast::Negation& negation)
{
    const std::optional<Value> operand = valueOf(*negation.operand);
    if (!operand)
        return std::nullopt;
    if (operand->type() == mel::Type::integer)
        return Value(-operand->integer());
    if (operand->type() == mel::Type::number)
        return Value(-operand->number());
    return std::nullopt;
}

std::optional<Value> valueOf(const ast::ArrayLiteral& list)
{
    Value::Strings strings;
    for (const ast::ExpressionPtr& element : list.elements) {
        const std::optional<Value> value = valueOf(*element);
        if (!value)
            return std::nullopt;
        strings.push_back(value->toString());
    }
    return Value(std::move(strings));
}

std::optional<Value> valueOf(const ast::Expression& expression)
{
    if (const auto* literal = std::get_if<ast::Literal>(&expression.node))
        return literal->value;
    if (const auto* chain = std::get_if<ast::Chain>(&expression.node))
        return valueOf(*chain);
    if (const auto* negation = std::get_if<ast::Negation>(&expression.node))
        return valueOf(*negation);
    if (const auto* list = std::get_if<ast::ArrayLiteral>(&expression.node))
        return valueOf(*list);
    return std::nullopt;
}

} // namespace

bool constantArguments(const ast::Statement& statement, std::string& name, mel::ArgumentList& arguments)
{
    const auto* wrapper = std::get_if<ast::ExpressionStatement>(&statement.node);
    const auto* command = wrapper ? std::get_if<ast::Command>(&wrapper->expression->node) : nullptr;
    if (!command)
        return false;
    arguments.clear();
    name = command->name;
    for (const ast::CommandArgument& argument : command->arguments) {
        if (!argument.expression) {
            arguments.addToken(argument.kind, argument.text);
            continue;
        }
        const std::optional<Value> value = valueOf(*argument.expression);
        if (!value)
            return false;
        arguments.addValue(*value);
    }
    return true;
}

} // namespace tvxhost::scene
