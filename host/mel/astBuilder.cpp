// The abstract syntax tree, built node by node.
#include "astBuilder.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <utility>

namespace tvxhost::mel {

using namespace ast;

namespace {

struct OperatorRow
{
    std::string_view text;
    Operator op;
    int precedence; ///< higher binds tighter
};

constexpr OperatorRow kOperators[] = {
    {"||", Operator::logicalOr, 0}, {"&&", Operator::logicalAnd, 1},
    {"==", Operator::equal, 2},     {"!=", Operator::notEqual, 2},
    {"<", Operator::less, 3},       {"<=", Operator::lessOrEqual, 3},
    {">", Operator::greater, 3},    {">=", Operator::greaterOrEqual, 3},
    {"+", Operator::add, 4},        {"-", Operator::subtract, 4},
    {"*", Operator::multiply, 5},   {"/", Operator::divide, 5},
    {"%", Operator::modulo, 5},     {"^", Operator::cross, 5},
};
constexpr int kTightest = 5;

const OperatorRow& operatorRow(std::string_view text)
{
    return *std::find_if(std::begin(kOperators), std::end(kOperators),
                         [text](const OperatorRow& row) { return row.text == text; });
}

Type typeNamed(std::string_view name)
{
    for (const Type type : {Type::integer, Type::number, Type::string, Type::vector}) {
        if (name == typeName(type)) {
            return type;
        }
    }
    return Type::matrix;
}

std::string_view textOf(const SyntaxNode& node)
{
    return node.string_view();
}

/// A variable's name without its dollar sign.
std::string nameOf(const SyntaxNode& variableName)
{
    return std::string(textOf(variableName).substr(1));
}

const SyntaxNode* childOf(const SyntaxNode& node, NodeKind kind)
{
    for (const auto& child : node.children) {
        if (child->kind == kind) {
            return child.get();
        }
    }
    return nullptr;
}

/// A whole number as MEL's int, which has 32 bits; a larger one wraps around.
Value integerLiteral(std::string_view text)
{
    const bool isHexadecimal = text.size() > 1 && (text[1] == 'x' || text[1] == 'X');
    const unsigned long long number =
        std::strtoull(std::string(text).c_str(), nullptr, isHexadecimal ? 16 : 10);
    return static_cast<int>(static_cast<unsigned>(number));
}

} // namespace

Position AstBuilder::at(const SyntaxNode& node) const
{
    return m_lines.at(static_cast<std::size_t>(node.m_begin.data - m_text.data()));
}

template <class Node>
ExpressionPtr AstBuilder::make(const SyntaxNode& where, Node node) const
{
    return std::make_unique<Expression>(Expression{at(where), std::move(node)});
}

template <class Node>
StatementPtr AstBuilder::makeStatement(const SyntaxNode& where, Node node) const
{
    return std::make_unique<Statement>(Statement{at(where), std::move(node)});
}

void AstBuilder::refuse(const SyntaxNode& where) const
{
    throw GrammarError{static_cast<std::size_t>(where.m_begin.data - m_text.data()), "Syntax error"};
}

void AstBuilder::requireVariable(const Expression& target, const SyntaxNode& where) const
{
    const auto* variable = std::get_if<ast::Variable>(&target.node);
    if (variable == nullptr || variable->component != 0) {
        refuse(where);
    }
}

// Expressions

/// Groups a flat list of operands and operators by precedence.
class AstBuilder::OperatorChain
{
public:
    OperatorChain(const AstBuilder& builder, const SyntaxNode& expression)
        : m_builder(builder), m_expression(expression)
    {
    }

    ExpressionPtr grouped(int precedence = 0)
    {
        if (precedence > kTightest) {
            return m_builder.operand(*m_expression.children[m_next++]);
        }
        const SyntaxNode& start = *m_expression.children[m_next];
        Chain chain{grouped(precedence + 1), {}};
        while (const OperatorRow* row = nextOperator(precedence)) {
            const SyntaxNode& op = *m_expression.children[m_next++];
            chain.links.push_back({row->op, m_builder.at(op), grouped(precedence + 1)});
        }
        return chain.links.empty() ? std::move(chain.first) : m_builder.make(start, std::move(chain));
    }

    /// What follows the operands: the tail of an assignment or a conditional; null when there is none.
    const SyntaxNode* tail() const
    {
        return m_next < m_expression.children.size() ? m_expression.children[m_next].get() : nullptr;
    }

private:
    const OperatorRow* nextOperator(int precedence) const
    {
        const SyntaxNode* next = tail();
        if (next == nullptr || next->kind != NodeKind::binaryOperator) {
            return nullptr;
        }
        const OperatorRow& row = operatorRow(textOf(*next));
        return row.precedence == precedence ? &row : nullptr;
    }

    const AstBuilder& m_builder;
    const SyntaxNode& m_expression;
    std::size_t m_next = 0;
};

ExpressionPtr AstBuilder::expression(const SyntaxNode& node) const
{
    OperatorChain chain(*this, node);
    ExpressionPtr result = chain.grouped();
    const SyntaxNode* tail = chain.tail();
    if (tail == nullptr) {
        return result;
    }
    return tail->kind == NodeKind::assignmentTail ? assignment(std::move(result), *tail)
                                                  : conditional(std::move(result), *tail);
}

ExpressionPtr AstBuilder::assignment(ExpressionPtr target, const SyntaxNode& tail) const
{
    const SyntaxNode& op = *tail.children[0];
    requireVariable(*target, op);
    const std::string_view text = textOf(op);
    Assignment result{std::move(target), std::nullopt, expression(*tail.children[1])};
    if (text != "=") {
        result.op = operatorRow(text.substr(0, 1)).op;
    }
    return make(op, std::move(result));
}

ExpressionPtr AstBuilder::conditional(ExpressionPtr condition, const SyntaxNode& tail) const
{
    return make(tail, Conditional{std::move(condition), expression(*tail.children[0]),
                                  expression(*tail.children[1])});
}

ExpressionPtr AstBuilder::operand(const SyntaxNode& node) const
{
    std::size_t inner = 0;
    while (node.children[inner]->kind == NodeKind::castPrefix ||
           node.children[inner]->kind == NodeKind::prefixOperator) {
        ++inner;
    }
    ExpressionPtr result = primary(*node.children[inner]);
    if (inner + 1 < node.children.size()) {
        result = increment(*node.children[inner + 1], std::move(result), false);
    }
    while (inner-- > 0) {
        result = prefixed(*node.children[inner], std::move(result));
    }
    return result;
}

ExpressionPtr AstBuilder::prefixed(const SyntaxNode& prefix, ExpressionPtr operandExpression) const
{
    if (prefix.kind == NodeKind::castPrefix) {
        return make(prefix, Cast{typeNamed(textOf(*prefix.children[0])), std::move(operandExpression)});
    }
    const std::string_view op = textOf(prefix);
    if (op == "!") {
        return make(prefix, LogicalNot{std::move(operandExpression)});
    }
    if (op == "-") {
        return make(prefix, Negation{std::move(operandExpression)});
    }
    return op == "+" ? std::move(operandExpression) : increment(prefix, std::move(operandExpression), true);
}

ExpressionPtr AstBuilder::increment(const SyntaxNode& op, ExpressionPtr target, bool isPrefix) const
{
    requireVariable(*target, op);
    return make(op, Increment{std::move(target), textOf(op) == "++" ? 1 : -1, isPrefix});
}

ExpressionPtr AstBuilder::primary(const SyntaxNode& node) const
{
    switch (node.kind) {
    case NodeKind::variable:
        return variable(node);
    case NodeKind::stringText:
        return make(node, Literal{unescaped(textOf(node))});
    case NodeKind::floatLiteral:
        return make(node, Literal{leadingNumber(textOf(node)).value});
    case NodeKind::integerLiteral:
        return make(node, Literal{integerLiteral(textOf(node))});
    case NodeKind::trueWord:
        return make(node, Literal{1});
    case NodeKind::falseWord:
        return make(node, Literal{0});
    case NodeKind::castCall:
        return make(node, Cast{typeNamed(textOf(*node.children[0])), expression(*node.children[1])});
    case NodeKind::catchCall:
        return make(node, Catch{textOf(*node.children[0]) == "catchQuiet", primary(*node.children[1])});
    case NodeKind::functionCall:
        return functionCall(node);
    case NodeKind::capture:
        return make(node, Capture{invocation(*node.children[0])});
    case NodeKind::matrixLiteral:
        return matrixLiteral(node);
    case NodeKind::arrayLiteral:
        return make(node, ArrayLiteral{expressions(node)});
    default:
        return expression(node);
    }
}

ExpressionPtr AstBuilder::variable(const SyntaxNode& node) const
{
    ast::Variable result;
    for (const auto& child : node.children) {
        if (child->kind == NodeKind::variableName) {
            result.name = nameOf(*child);
        } else if (child->kind == NodeKind::index) {
            result.indices.push_back(expression(*child->children[0]));
        } else {
            result.component = textOf(*child)[1];
        }
    }
    return make(node, std::move(result));
}

ExpressionPtr AstBuilder::matrixLiteral(const SyntaxNode& node) const
{
    MatrixLiteral result;
    for (const auto& row : node.children) {
        result.rows.push_back(expressions(*row));
    }
    return make(node, std::move(result));
}

ExpressionPtr AstBuilder::functionCall(const SyntaxNode& node) const
{
    return make(node, FunctionCall{std::string(textOf(*node.children[0])), expressions(*node.children[1])});
}

std::vector<ExpressionPtr> AstBuilder::expressions(const SyntaxNode& parent) const
{
    std::vector<ExpressionPtr> result;
    result.reserve(parent.children.size());
    for (const auto& child : parent.children) {
        result.push_back(expression(*child));
    }
    return result;
}

ExpressionPtr AstBuilder::invocation(const SyntaxNode& node) const
{
    const auto& parts = node.children;
    const bool hasParentheses = parts.size() > 1 && parts[1]->kind == NodeKind::argumentList;
    if (hasParentheses && parts.size() == 2) {
        return functionCall(node);
    }
    Command command{std::string(textOf(*parts[0])), {}};
    std::size_t next = 1;
    if (hasParentheses) {
        if (parts[1]->children.size() != 1) {
            refuse(*parts[2]);
        }
        command.arguments.push_back(argument(*parts[1]->children[0]));
        next = 2;
    }
    for (; next < parts.size(); ++next) {
        command.arguments.push_back(argument(*parts[next]));
    }
    return make(node, std::move(command));
}

CommandArgument AstBuilder::argument(const SyntaxNode& node) const
{
    const std::string_view text = textOf(node);
    switch (node.kind) {
    case NodeKind::stringText:
        return {ArgumentKind::string, unescaped(text), nullptr};
    case NodeKind::flagToken:
        return {ArgumentKind::flag, std::string(text), nullptr};
    case NodeKind::floatToken:
        return {ArgumentKind::number, std::string(text), nullptr};
    case NodeKind::integerToken:
        return {ArgumentKind::integer, std::string(text), nullptr};
    case NodeKind::wordToken:
        return {ArgumentKind::word, std::string(text), nullptr};
    case NodeKind::negatedArgument:
        return {ArgumentKind::value, {}, make(node, Negation{primary(*node.children[0])})};
    default:
        return {ArgumentKind::value, {}, primary(node)};
    }
}

// Statements

Statements AstBuilder::statements(const SyntaxNode& parent) const
{
    Statements result;
    result.reserve(parent.children.size());
    for (const auto& child : parent.children) {
        result.push_back(statement(*child));
    }
    return result;
}

/// The statement that is the child at this index; an empty statement leaves no child.
StatementPtr AstBuilder::body(const SyntaxNode& parent, std::size_t index) const
{
    return index < parent.children.size() ? statement(*parent.children[index])
                                          : makeStatement(parent, Block{});
}

StatementPtr AstBuilder::statement(const SyntaxNode& node) const
{
    switch (node.kind) {
    case NodeKind::block:
        return makeStatement(node, Block{statements(node)});
    case NodeKind::declarators:
        return declaration(node);
    case NodeKind::procedure:
        return procedure(node);
    case NodeKind::ifStatement:
        return ifStatement(node);
    case NodeKind::whileStatement:
        return makeStatement(node, While{expression(*node.children[0]), body(node, 1)});
    case NodeKind::doStatement: {
        const bool hasBody = node.children.size() > 1;
        return makeStatement(node, DoWhile{hasBody ? statement(*node.children[0]) : body(node, 1),
                                           expression(*node.children.back())});
    }
    case NodeKind::forIn:
        return forIn(node);
    case NodeKind::forLoop:
        return forLoop(node);
    case NodeKind::switchStatement:
        return switchStatement(node);
    case NodeKind::breakStatement:
        return makeStatement(node, Break{});
    case NodeKind::continueStatement:
        return makeStatement(node, Continue{});
    case NodeKind::returnStatement:
        return makeStatement(node, Return{node.children.empty() ? nullptr : expression(*node.children[0])});
    case NodeKind::commandStatement:
        return makeStatement(node, ExpressionStatement{invocation(*node.children[0])});
    default:
        return makeStatement(node, ExpressionStatement{expression(*node.children[0])});
    }
}

StatementPtr AstBuilder::declaration(const SyntaxNode& node) const
{
    Declaration result;
    for (const auto& child : node.children) {
        if (child->kind == NodeKind::globalWord) {
            result.isGlobal = true;
        } else if (child->kind == NodeKind::typeWord) {
            result.type = typeNamed(textOf(*child));
        } else {
            result.declarators.push_back(declarator(*child));
        }
    }
    return makeStatement(node, std::move(result));
}

Declaration::Declarator AstBuilder::declarator(const SyntaxNode& node) const
{
    Declaration::Declarator result;
    result.at = at(node);
    for (const auto& child : node.children) {
        if (child->kind == NodeKind::variableName) {
            result.name = nameOf(*child);
        } else if (child->kind == NodeKind::arraySize) {
            result.isArray = true;
            result.sizes.push_back(child->children.empty() ? nullptr : expression(*child->children[0]));
        } else {
            result.initial = expression(*child);
        }
    }
    return result;
}

StatementPtr AstBuilder::procedure(const SyntaxNode& node) const
{
    auto result = std::make_shared<Procedure>();
    result->at = at(node);
    for (const auto& child : node.children) {
        switch (child->kind) {
        case NodeKind::globalWord:
            result->isGlobal = true;
            break;
        case NodeKind::resultType:
            result->result = typeNamed(textOf(*child->children[0]));
            if (childOf(*child, NodeKind::arrayMark) != nullptr) {
                result->result = arrayOf(result->result);
            }
            break;
        case NodeKind::callableName:
            result->name = textOf(*child);
            break;
        case NodeKind::parameter:
            result->parameters.push_back(parameter(*child));
            break;
        default:
            result->body = statements(*child);
        }
    }
    return makeStatement(node, ProcedureDefinition{std::move(result)});
}

Procedure::Parameter AstBuilder::parameter(const SyntaxNode& node) const
{
    Procedure::Parameter result;
    result.type = typeNamed(textOf(*node.children[0]));
    result.name = nameOf(*node.children[1]);
    // A matrix has its size in brackets and stays a matrix.
    if (childOf(node, NodeKind::arraySize) != nullptr && result.type != Type::matrix) {
        result.type = arrayOf(result.type);
    }
    return result;
}

StatementPtr AstBuilder::ifStatement(const SyntaxNode& node) const
{
    If result;
    const bool hasBody = node.children.size() > 1 && node.children[1]->kind != NodeKind::elseIf &&
                         node.children[1]->kind != NodeKind::elseBranch;
    result.branches.push_back({expression(*node.children[0]),
                               hasBody ? statement(*node.children[1]) : makeStatement(node, Block{})});
    for (std::size_t i = hasBody ? 2 : 1; i < node.children.size(); ++i) {
        const SyntaxNode& child = *node.children[i];
        if (child.kind == NodeKind::elseIf) {
            result.branches.push_back({expression(*child.children[0]), body(child, 1)});
        } else {
            result.otherwise = body(child, 0);
        }
    }
    return makeStatement(node, std::move(result));
}

StatementPtr AstBuilder::forIn(const SyntaxNode& node) const
{
    ForIn result;
    std::size_t next = 0;
    if (node.children[next]->kind == NodeKind::typeWord) {
        result.type = typeNamed(textOf(*node.children[next++]));
    }
    result.variable = nameOf(*node.children[next++]);
    result.range = expression(*node.children[next++]);
    result.body = body(node, next);
    return makeStatement(node, std::move(result));
}

StatementPtr AstBuilder::forLoop(const SyntaxNode& node) const
{
    For result;
    const SyntaxNode& initial = *node.children[0];
    if (const SyntaxNode* declared = childOf(initial, NodeKind::declarators)) {
        result.initial.push_back(declaration(*declared));
    } else {
        for (const auto& child : initial.children) {
            result.initial.push_back(makeStatement(*child, ExpressionStatement{expression(*child)}));
        }
    }
    const SyntaxNode& condition = *node.children[1];
    result.condition = condition.children.empty() ? nullptr : expression(*condition.children[0]);
    result.step = expressions(*node.children[2]);
    result.body = body(node, 3);
    return makeStatement(node, std::move(result));
}

StatementPtr AstBuilder::switchStatement(const SyntaxNode& node) const
{
    Switch result;
    result.subject = expression(*node.children[0]);
    for (std::size_t i = 1; i < node.children.size(); ++i) {
        const SyntaxNode& part = *node.children[i];
        Switch::Case row;
        const SyntaxNode& label = *part.children[0];
        row.label = label.kind == NodeKind::caseLabel ? expression(*label.children[0]) : nullptr;
        for (std::size_t j = 1; j < part.children.size(); ++j) {
            row.statements.push_back(statement(*part.children[j]));
        }
        result.cases.push_back(std::move(row));
    }
    return makeStatement(node, std::move(result));
}

} // namespace tvxhost::mel
