// The concrete syntax tree that the grammar gives, from which the builder makes the abstract one.
#pragma once

#include <tao/pegtl.hpp>
#include <tao/pegtl/contrib/parse_tree.hpp>

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace tvxhost::mel {

/// The grammar rules that leave a node.
enum class NodeKind
{
    root,
    typeWord,
    trueWord,
    falseWord,
    catchWord,
    globalWord,
    callableName,
    variableName,
    floatLiteral,
    integerLiteral,
    stringText,
    argumentList,
    arrayLiteral,
    matrixRow,
    matrixLiteral,
    capture,
    index,
    component,
    variable,
    castPrefix,
    castCall,
    catchCall,
    functionCall,
    prefixOperator,
    postfixOperator,
    operand,
    binaryOperator,
    assignmentOperator,
    assignmentTail,
    conditionalTail,
    expression,
    flagToken,
    floatToken,
    integerToken,
    wordToken,
    negatedArgument,
    invocation,
    block,
    arraySize,
    declarator,
    declarators,
    arrayMark,
    resultType,
    parameter,
    procedure,
    elseIf,
    elseBranch,
    ifStatement,
    whileStatement,
    doStatement,
    forIn,
    forInitial,
    forCondition,
    forStep,
    forLoop,
    caseLabel,
    defaultLabel,
    switchCase,
    switchStatement,
    breakStatement,
    continueStatement,
    returnStatement,
    expressionStatement,
    commandStatement,
};

struct SyntaxNode : tao::pegtl::parse_tree::basic_node<SyntaxNode>
{
    NodeKind kind = NodeKind::root;
};
using SyntaxTree = std::unique_ptr<SyntaxNode>;

/// Where the grammar gave up: an offset into the text it was given, and why.
struct GrammarError
{
    std::size_t offset = 0;
    std::string reason;
};

/// The tree of a whole script; its children are statements. Throws GrammarError.
SyntaxTree parseWholeScript(std::string_view text);

/// The tree of the first statement of a text, and where it ends; no children at the end of the text or for an
/// empty statement. Throws GrammarError.
SyntaxTree parseNextStatement(std::string_view text, std::size_t& end);

} // namespace tvxhost::mel
