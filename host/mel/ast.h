// The syntax tree of a script. Every statement and expression knows its line and column.
#pragma once

#include "arguments.h"
#include "value.h"

#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace tvxhost::mel::ast {

struct Expression;
struct Statement;
using ExpressionPtr = std::unique_ptr<Expression>;
using StatementPtr = std::unique_ptr<Statement>;
using Statements = std::vector<StatementPtr>;

/// Lines and columns count from 1.
struct Position
{
    int line = 1;
    int column = 1;
};

// Expressions

enum class Operator
{
    add,
    subtract,
    multiply,
    divide,
    modulo,
    cross,
    less,
    lessOrEqual,
    greater,
    greaterOrEqual,
    equal,
    notEqual,
    logicalAnd,
    logicalOr,
};

struct Literal
{
    Value value;
};

/// `$name`, `$name[i]`, `$name[i][j]`, each perhaps followed by `.x`, `.y` or `.z`.
struct Variable
{
    std::string name; ///< without the dollar sign
    std::vector<ExpressionPtr> indices;
    char component = 0; ///< 'x', 'y', 'z', or 0 for the whole value
};

struct Negation
{
    ExpressionPtr operand;
};

struct LogicalNot
{
    ExpressionPtr operand;
};

/// Operators of one precedence, applied from left to right: `first op operand op operand …`.
struct Chain
{
    struct Link
    {
        Operator op = Operator::add;
        Position at;
        ExpressionPtr operand;
    };
    ExpressionPtr first;
    std::vector<Link> links;
};

struct Conditional
{
    ExpressionPtr condition;
    ExpressionPtr whenTrue;
    ExpressionPtr whenFalse;
};

/// `target = value`, or `target op= value`. The target is a Variable.
struct Assignment
{
    ExpressionPtr target;
    std::optional<Operator> op;
    ExpressionPtr value;
};

/// `++target`, `target++`, `--target`, `target--`. The target is a Variable.
struct Increment
{
    ExpressionPtr target;
    int step = 1;
    bool isPrefix = true;
};

struct Cast
{
    Type type = Type::none;
    ExpressionPtr operand;
};

struct ArrayLiteral
{
    std::vector<ExpressionPtr> elements;
};

/// `<<a, b, c>>`, or with `;` between rows a matrix.
struct MatrixLiteral
{
    std::vector<std::vector<ExpressionPtr>> rows;
};

/// `name(argument, …)`
struct FunctionCall
{
    std::string name;
    std::vector<ExpressionPtr> arguments;
};

/// One argument of a command: a token of the source, or an expression.
struct CommandArgument
{
    ArgumentKind kind = ArgumentKind::word;
    std::string text;         ///< of a token, escapes resolved
    ExpressionPtr expression; ///< null for a token
};

/// `name argument argument …`
struct Command
{
    std::string name;
    std::vector<CommandArgument> arguments;
};

/// A command in back quotes.
struct Capture
{
    ExpressionPtr call; ///< a Command or a FunctionCall
};

/// `catch(expression)` and `catchQuiet(expression)`
struct Catch
{
    bool isQuiet = false;
    ExpressionPtr operand;
};

struct Expression
{
    Position at;
    std::variant<Literal, Variable, Negation, LogicalNot, Chain, Conditional, Assignment, Increment, Cast,
                 ArrayLiteral, MatrixLiteral, FunctionCall, Command, Capture, Catch>
        node;
};

// Statements

struct ExpressionStatement
{
    ExpressionPtr expression;
};

struct Block
{
    Statements statements;
};

struct Declaration
{
    struct Declarator
    {
        Position at;
        std::string name;
        bool isArray = false;
        std::vector<ExpressionPtr> sizes; ///< in the brackets; may hold null for empty ones
        ExpressionPtr initial;            ///< may be null
    };
    bool isGlobal = false;
    Type type = Type::none; ///< of a single value, or of an array's element
    std::vector<Declarator> declarators;
};

struct If
{
    struct Branch
    {
        ExpressionPtr condition;
        StatementPtr body;
    };
    std::vector<Branch> branches; ///< `if`, then each `else if`
    StatementPtr otherwise;       ///< may be null
};

struct While
{
    ExpressionPtr condition;
    StatementPtr body;
};

struct DoWhile
{
    StatementPtr body;
    ExpressionPtr condition;
};

struct For
{
    Statements initial;
    ExpressionPtr condition; ///< null: always true
    std::vector<ExpressionPtr> step;
    StatementPtr body;
};

struct ForIn
{
    std::string variable;
    std::optional<Type> type; ///< when the loop declares it
    ExpressionPtr range;
    StatementPtr body;
};

struct Switch
{
    struct Case
    {
        ExpressionPtr label; ///< null: default
        Statements statements;
    };
    ExpressionPtr subject;
    std::vector<Case> cases;
};

struct Break
{
};

struct Continue
{
};

struct Return
{
    ExpressionPtr value; ///< may be null
};

struct Procedure
{
    struct Parameter
    {
        Type type = Type::none;
        std::string name;
    };
    Position at;
    bool isGlobal = false;
    Type result = Type::none;
    std::string name;
    std::vector<Parameter> parameters;
    Statements body;
};

struct ProcedureDefinition
{
    std::shared_ptr<const Procedure> procedure;
};

struct Statement
{
    Position at;
    std::variant<ExpressionStatement, Block, Declaration, If, While, DoWhile, For, ForIn, Switch, Break,
                 Continue, Return, ProcedureDefinition>
        node;
};

/// A whole script: the content of a file, or one typed or evaluated text.
struct Script
{
    std::string name; ///< of the file; empty for typed text
    Statements statements;
};

} // namespace tvxhost::mel::ast
