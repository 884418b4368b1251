// AstBuilder: from the concrete syntax tree to the abstract one.
#pragma once

#include "ast.h"
#include "lineIndex.h"
#include "syntaxTree.h"

#include <string_view>

namespace tvxhost::mel {

/// Makes statements of one text. Throws GrammarError for what the grammar lets pass but MEL does not: an
/// assignment to something that is no variable, an argument behind the parentheses of a function call.
class AstBuilder
{
public:
    /// Both must outlive the builder; `lines` is of `text`.
    AstBuilder(std::string_view text, const LineIndex& lines) : m_text(text), m_lines(lines) {}

    ast::StatementPtr statement(const SyntaxNode& node) const;
    ast::Statements statements(const SyntaxNode& parent) const;

private:
    class OperatorChain;

    ast::ExpressionPtr expression(const SyntaxNode& node) const;
    ast::ExpressionPtr operand(const SyntaxNode& node) const;
    ast::ExpressionPtr primary(const SyntaxNode& node) const;
    ast::ExpressionPtr prefixed(const SyntaxNode& prefix, ast::ExpressionPtr operand) const;
    ast::ExpressionPtr increment(const SyntaxNode& op, ast::ExpressionPtr target, bool isPrefix) const;
    ast::ExpressionPtr assignment(ast::ExpressionPtr target, const SyntaxNode& tail) const;
    ast::ExpressionPtr conditional(ast::ExpressionPtr condition, const SyntaxNode& tail) const;
    ast::ExpressionPtr variable(const SyntaxNode& node) const;
    ast::ExpressionPtr matrixLiteral(const SyntaxNode& node) const;
    ast::ExpressionPtr functionCall(const SyntaxNode& node) const;
    ast::ExpressionPtr invocation(const SyntaxNode& node) const;
    ast::CommandArgument argument(const SyntaxNode& node) const;
    std::vector<ast::ExpressionPtr> expressions(const SyntaxNode& parent) const;

    ast::StatementPtr declaration(const SyntaxNode& node) const;
    ast::Declaration::Declarator declarator(const SyntaxNode& node) const;
    ast::StatementPtr procedure(const SyntaxNode& node) const;
    ast::Procedure::Parameter parameter(const SyntaxNode& node) const;
    ast::StatementPtr ifStatement(const SyntaxNode& node) const;
    ast::StatementPtr forIn(const SyntaxNode& node) const;
    ast::StatementPtr forLoop(const SyntaxNode& node) const;
    ast::StatementPtr switchStatement(const SyntaxNode& node) const;
    ast::StatementPtr body(const SyntaxNode& parent, std::size_t index) const;

    ast::Position at(const SyntaxNode& node) const;
    template <class Node>
    ast::ExpressionPtr make(const SyntaxNode& at, Node node) const;
    template <class Node>
    ast::StatementPtr makeStatement(const SyntaxNode& at, Node node) const;
    void requireVariable(const ast::Expression& target, const SyntaxNode& where) const;
    [[noreturn]] void refuse(const SyntaxNode& where) const;

    std::string_view m_text;
    const LineIndex& m_lines;
};

} // namespace tvxhost::mel
