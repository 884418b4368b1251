// Expressions: what the evaluator does with each kind.
#include "evaluator.h"

#include "operators.h"

#include <algorithm>

namespace tvxhost::mel {

namespace {

/// The type an array literal's elements have in common.
Type commonType(const std::vector<Value>& elements)
{
    Type common = Type::integer;
    for (const Value& element : elements) {
        if (isArray(element.type()) || element.type() == Type::matrix || element.isNone()) {
            throw ValueError(std::string("An array cannot hold data of type ") + typeName(element.type()) +
                             ".");
        }
        // A string takes in everything, a vector every number.
        const auto rank = [](Type type) { return type == Type::string ? Type::matrix : type; };
        common = rank(element.type()) > rank(common) ? element.type() : common;
    }
    return common;
}

double& elementOf(Matrix& matrix, const std::vector<std::size_t>& indices, const std::string& name)
{
    if (indices.size() != 2) {
        throw ValueError("An element of the matrix \"$" + name + "\" needs a row and a column.");
    }
    if (indices[0] >= matrix.rows || indices[1] >= matrix.columns) {
        throw ValueError("There is no element [" + std::to_string(indices[0]) + "][" +
                         std::to_string(indices[1]) + "] in the matrix \"$" + name + "\".");
    }
    return matrix.at(indices[0], indices[1]);
}

void requireArray(Type type, const std::vector<std::size_t>& indices, const std::string& name)
{
    if (!isArray(type) || indices.size() != 1) {
        throw ValueError("\"$" + name + "\" is not an array.");
    }
}

} // namespace

/// Nothing is shown while it lives, when it is meant to be quiet.
class Evaluator::QuietScope
{
public:
    QuietScope(engine::ScriptEditor& editor, bool quiet) : m_editor(quiet ? &editor : nullptr)
    {
        if (m_editor != nullptr) {
            m_editor->pushQuiet();
        }
    }
    ~QuietScope()
    {
        if (m_editor != nullptr) {
            m_editor->popQuiet();
        }
    }
    QuietScope(const QuietScope&) = delete;
    QuietScope& operator=(const QuietScope&) = delete;

private:
    engine::ScriptEditor* m_editor;
};

Value Evaluator::evaluate(const ast::Expression& expression)
{
    const ast::Position outer = m_at;
    m_at = expression.at;
    try {
        Value value = std::visit(*this, expression.node);
        m_at = outer;
        return value;
    } catch (const ValueError& error) {
        throw ScriptError(error.what(), place(m_at));
    }
}

Value Evaluator::valueFor(Type type, const ast::Expression& expression)
{
    Value value = evaluate(expression);
    return isMissing(value, expression) ? Value::neutral(type) : value;
}

bool Evaluator::isMissing(const Value& value, const ast::Expression& expression) const
{
    if (!value.isNone()) {
        return false;
    }
    const auto* capture = std::get_if<ast::Capture>(&expression.node);
    const ast::Expression& call = capture != nullptr ? *capture->call : expression;
    const auto* function = std::get_if<ast::FunctionCall>(&call.node);
    const auto* command = std::get_if<ast::Command>(&call.node);
    if (function == nullptr && command == nullptr) {
        return false;
    }
    const std::string& name = function != nullptr ? function->name : command->name;
    return m_interpreter.definedProcedure(name, m_locals) == nullptr;
}

Value Evaluator::operator()(const ast::Literal& node)
{
    return node.value;
}

Value Evaluator::operator()(const ast::Variable& node)
{
    return read(slot(node));
}

Value Evaluator::operator()(const ast::Negation& node)
{
    return negated(evaluate(*node.operand));
}

Value Evaluator::operator()(const ast::LogicalNot& node)
{
    return !condition(node.operand);
}

Value Evaluator::operator()(const ast::Chain& node)
{
    const ast::Operator first = node.links.front().op;
    if (first == ast::Operator::logicalAnd || first == ast::Operator::logicalOr) {
        return logical(node);
    }
    Value result = evaluate(*node.first);
    for (const auto& link : node.links) {
        const Value operand = evaluate(*link.operand);
        m_at = link.at;
        if (link.op == ast::Operator::add && result.type() == Type::string && !isArray(operand.type())) {
            // Long texts are joined from many pieces: append in place.
            result.string() += operand.toString();
        } else {
            result = applied(link.op, result, operand);
        }
    }
    return result;
}

Value Evaluator::logical(const ast::Chain& chain)
{
    const bool stopAt = chain.links.front().op == ast::Operator::logicalOr;
    bool value = condition(chain.first);
    for (auto link = chain.links.begin(); value != stopAt && link != chain.links.end(); ++link) {
        value = condition(link->operand);
    }
    return value;
}

Value Evaluator::operator()(const ast::Conditional& node)
{
    return evaluate(condition(node.condition) ? *node.whenTrue : *node.whenFalse);
}

Value Evaluator::operator()(const ast::Assignment& node)
{
    const Slot target = slot(std::get<ast::Variable>(node.target->node));
    Value value = evaluate(*node.value);
    if (node.op) {
        value = applied(*node.op, read(target), value);
    } else if (isMissing(value, *node.value)) {
        value = Value::neutral(read(target).type());
    }
    write(target, value);
    return read(target);
}

Value Evaluator::operator()(const ast::Increment& node)
{
    const Slot target = slot(std::get<ast::Variable>(node.target->node));
    const Value before = read(target);
    const Value after = applied(ast::Operator::add, before, node.step);
    write(target, after);
    return node.isPrefix ? after : before;
}

Value Evaluator::operator()(const ast::Cast& node)
{
    return evaluate(*node.operand).to(node.type);
}

Value Evaluator::operator()(const ast::ArrayLiteral& node)
{
    std::vector<Value> elements;
    elements.reserve(node.elements.size());
    for (const auto& element : node.elements) {
        elements.push_back(evaluate(*element));
    }
    const Value array = Value::neutral(arrayOf(commonType(elements)));
    for (std::size_t i = 0; i < elements.size(); ++i) {
        array.setElement(i, elements[i]);
    }
    return array;
}

Value Evaluator::operator()(const ast::MatrixLiteral& node)
{
    const std::size_t columns = node.rows.front().size();
    Matrix matrix(node.rows.size(), columns);
    for (std::size_t row = 0; row < node.rows.size(); ++row) {
        if (node.rows[row].size() != columns) {
            throw ValueError("The rows of a matrix must have the same number of elements.");
        }
        for (std::size_t column = 0; column < columns; ++column) {
            matrix.at(row, column) = evaluate(*node.rows[row][column]).toNumber();
        }
    }
    if (matrix.rows == 1 && columns == 3) {
        return Vector(matrix.at(0, 0), matrix.at(0, 1), matrix.at(0, 2));
    }
    return matrix;
}

Value Evaluator::operator()(const ast::FunctionCall& node)
{
    std::vector<Value> arguments;
    arguments.reserve(node.arguments.size());
    for (const auto& argument : node.arguments) {
        arguments.push_back(evaluate(*argument));
    }
    return m_interpreter.call(node.name, std::move(arguments), place(m_at), m_locals);
}

Value Evaluator::operator()(const ast::Command& node)
{
    const ast::Position at = m_at;
    std::vector<Value> values;
    values.reserve(node.arguments.size());
    for (const auto& argument : node.arguments) {
        if (argument.expression) {
            values.push_back(evaluate(*argument.expression));
        }
    }
    const Callable callable = m_interpreter.resolve(node.name, place(at), m_locals);
    auto value = values.begin();
    if (callable.takesValues()) {
        std::vector<Value> arguments;
        arguments.reserve(node.arguments.size());
        for (const auto& argument : node.arguments) {
            arguments.push_back(argument.expression ? std::move(*value++)
                                                    : Argument{argument.kind, argument.text}.asValue());
        }
        return m_interpreter.callWithValues(callable, arguments, place(at));
    }
    ArgumentList arguments;
    for (const auto& argument : node.arguments) {
        if (argument.expression) {
            arguments.addValue(*value++);
        } else {
            arguments.addToken(argument.kind, argument.text);
        }
    }
    return m_interpreter.callCommand(callable, arguments, place(at));
}

Value Evaluator::operator()(const ast::Capture& node)
{
    return evaluate(*node.call);
}

Value Evaluator::operator()(const ast::Catch& node)
{
    const QuietScope quiet(m_interpreter.editor(), node.isQuiet);
    try {
        evaluate(*node.operand);
        return 0;
    } catch (const ScriptError& error) {
        m_interpreter.report(error);
        return 1;
    }
}

// Variables

std::size_t Evaluator::index(const ast::ExpressionPtr& expression)
{
    const int number = evaluate(*expression).toInteger();
    if (number < 0 || number >= kMostElements) {
        throw ValueError("Array index " + std::to_string(number) + " is out of range.");
    }
    return static_cast<std::size_t>(number);
}

Evaluator::Slot Evaluator::slot(const ast::Variable& node)
{
    Slot result{node, {}};
    for (const auto& expression : node.indices) {
        result.indices.push_back(index(expression));
    }
    return result;
}

Value Evaluator::read(const Slot& slot)
{
    const std::string& name = slot.node.name;
    const std::shared_ptr<Variable> variable = require(name);
    Value value = variable->value;
    if (!slot.indices.empty()) {
        if (value.type() == Type::matrix) {
            return elementOf(value.matrix(), slot.indices, name);
        }
        requireArray(variable->type, slot.indices, name);
        value = value.element(slot.indices[0]);
    }
    if (slot.node.component == 0) {
        return value;
    }
    if (value.type() != Type::vector) {
        throw ValueError("\"$" + name + "\" is not a vector.");
    }
    return value.vector()[slot.node.component - 'x'];
}

void Evaluator::write(const Slot& slot, const Value& value)
{
    const std::string& name = slot.node.name;
    if (find(name) == nullptr) {
        // The first assignment declares.
        declareImplicitly(name, slot.indices.empty() ? value : Value::neutral(arrayOf(value.type())));
    }
    Variable& variable = *find(name);
    if (slot.indices.empty()) {
        variable.assign(value);
    } else if (variable.type == Type::matrix) {
        elementOf(variable.value.matrix(), slot.indices, name) = value.toNumber();
    } else {
        requireArray(variable.type, slot.indices, name);
        variable.value.setElement(slot.indices[0], value);
    }
}

} // namespace tvxhost::mel
