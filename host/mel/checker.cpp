// Counting what a script holds.
#include "checker.h"

#include "parser.h"

#include <nlohmann/json.hpp>

#include <type_traits>

namespace tvxhost::mel {

namespace {

std::string parameterText(const ast::Procedure::Parameter& parameter)
{
    const bool isArrayType = isArray(parameter.type);
    const Type type = isArrayType ? elementOf(parameter.type) : parameter.type;
    return std::string(typeName(type)) + " $" + parameter.name + (isArrayType ? "[]" : "");
}

/// Walks a whole tree and counts.
class Counter
{
public:
    explicit Counter(CheckReport& report) : m_report(report) {}

    void all(const ast::Statements& statements)
    {
        for (const auto& statement : statements) {
            std::visit(*this, statement->node);
        }
    }

    void operator()(const ast::ExpressionStatement& node)
    {
        const auto& expression = node.expression->node;
        const bool isCommand = std::holds_alternative<ast::Command>(expression) ||
                               std::holds_alternative<ast::FunctionCall>(expression);
        count(isCommand ? "command" : "expression");
        visit(node.expression);
    }
    void operator()(const ast::Block& node)
    {
        count("block");
        all(node.statements);
    }
    void operator()(const ast::Declaration& node)
    {
        count("declaration");
        for (const auto& declarator : node.declarators) {
            visit(declarator.sizes);
            visit(declarator.initial);
        }
    }
    void operator()(const ast::If& node)
    {
        count("if");
        for (const auto& branch : node.branches) {
            visit(branch.condition);
            visit(branch.body);
        }
        visit(node.otherwise);
    }
    void operator()(const ast::While& node)
    {
        count("while");
        visit(node.condition);
        visit(node.body);
    }
    void operator()(const ast::DoWhile& node)
    {
        count("do");
        visit(node.body);
        visit(node.condition);
    }
    void operator()(const ast::For& node)
    {
        count("for");
        // The parts in the loop's head are no statements of their own.
        for (const auto& initial : node.initial) {
            if (const auto* expression = std::get_if<ast::ExpressionStatement>(&initial->node)) {
                visit(expression->expression);
            } else {
                std::visit(*this, initial->node);
            }
        }
        visit(node.condition);
        visit(node.step);
        visit(node.body);
    }
    void operator()(const ast::ForIn& node)
    {
        count("for-in");
        visit(node.range);
        visit(node.body);
    }
    void operator()(const ast::Switch& node)
    {
        count("switch");
        visit(node.subject);
        for (const auto& row : node.cases) {
            visit(row.label);
            all(row.statements);
        }
    }
    void operator()(const ast::Break&) { count("break"); }
    void operator()(const ast::Continue&) { count("continue"); }
    void operator()(const ast::Return& node)
    {
        count("return");
        visit(node.value);
    }
    void operator()(const ast::ProcedureDefinition& node)
    {
        const ast::Procedure& procedure = *node.procedure;
        count("proc");
        CheckReport::ProcedureSummary summary{procedure.name,
                                              procedure.isGlobal,
                                              procedure.result == Type::none ? ""
                                                                             : typeName(procedure.result),
                                              {},
                                              procedure.at.line};
        for (const auto& parameter : procedure.parameters) {
            summary.parameters.push_back(parameterText(parameter));
        }
        m_report.procedures.push_back(std::move(summary));
        all(procedure.body);
    }

    void operator()(const ast::Literal&) {}
    void operator()(const ast::Variable& node) { visit(node.indices); }
    void operator()(const ast::Negation& node) { visit(node.operand); }
    void operator()(const ast::LogicalNot& node) { visit(node.operand); }
    void operator()(const ast::Chain& node)
    {
        visit(node.first);
        for (const auto& link : node.links) {
            visit(link.operand);
        }
    }
    void operator()(const ast::Conditional& node)
    {
        visit(node.condition);
        visit(node.whenTrue);
        visit(node.whenFalse);
    }
    void operator()(const ast::Assignment& node)
    {
        visit(node.target);
        visit(node.value);
    }
    void operator()(const ast::Increment& node) { visit(node.target); }
    void operator()(const ast::Cast& node) { visit(node.operand); }
    void operator()(const ast::ArrayLiteral& node) { visit(node.elements); }
    void operator()(const ast::MatrixLiteral& node)
    {
        for (const auto& row : node.rows) {
            visit(row);
        }
    }
    void operator()(const ast::FunctionCall& node)
    {
        ++m_report.commands[node.name];
        visit(node.arguments);
    }
    void operator()(const ast::Command& node)
    {
        ++m_report.commands[node.name];
        for (const auto& argument : node.arguments) {
            visit(argument.expression);
        }
    }
    void operator()(const ast::Capture& node) { visit(node.call); }
    void operator()(const ast::Catch& node) { visit(node.operand); }

private:
    void count(const char* kind) { ++m_report.statements[kind]; }

    template <class Node>
    void visit(const std::unique_ptr<Node>& node)
    {
        if (node) {
            std::visit(*this, node->node);
        }
    }
    void visit(const std::vector<ast::ExpressionPtr>& nodes)
    {
        for (const auto& node : nodes) {
            visit(node);
        }
    }

    CheckReport& m_report;
};

std::string countsText(const char* title, const std::map<std::string, int>& counts)
{
    std::string text = std::string(title) + ':';
    for (const auto& [name, count] : counts) {
        text += ' ' + name + ' ' + std::to_string(count);
    }
    return text + '\n';
}

std::string procedureText(const CheckReport::ProcedureSummary& procedure)
{
    std::string parameters;
    for (const std::string& parameter : procedure.parameters) {
        parameters += (parameters.empty() ? "" : ", ") + parameter;
    }
    return "  line " + std::to_string(procedure.line) + ": " + (procedure.isGlobal ? "global " : "") +
           "proc " + (procedure.result.empty() ? "" : procedure.result + ' ') + procedure.name + '(' +
           parameters + ")\n";
}

} // namespace

CheckReport checkScript(std::string_view text, const std::string& file)
{
    CheckReport report;
    report.file = file;
    try {
        Counter(report).all(parseScript(text, file)->statements);
    } catch (const SyntaxError& error) {
        report.error = CheckError{error.reason(), error.place().line, error.column(), error.line()};
    }
    return report;
}

std::string toText(const CheckReport& report)
{
    if (report.error) {
        const CheckError& error = *report.error;
        return report.file + ": line " + std::to_string(error.line) + ", column " +
               std::to_string(error.column) + ": " + error.message + '\n' + error.text + '\n';
    }
    std::string text = report.file + ": OK\n" + countsText("Statements", report.statements) +
                       countsText("Calls", report.commands) +
                       "Procedures: " + std::to_string(report.procedures.size()) + '\n';
    for (const auto& procedure : report.procedures) {
        text += procedureText(procedure);
    }
    return text;
}

std::string toJson(const CheckReport& report)
{
    using nlohmann::json;
    json root = {{"file", report.file}, {"ok", report.ok()}};
    if (report.error) {
        root["error"] = {{"message", report.error->message},
                         {"line", report.error->line},
                         {"column", report.error->column},
                         {"text", report.error->text}};
    }
    root["statements"] = report.statements;
    root["commands"] = report.commands;
    root["procedures"] = json::array();
    for (const auto& procedure : report.procedures) {
        root["procedures"].push_back({{"name", procedure.name},
                                      {"global", procedure.isGlobal},
                                      {"result", procedure.result},
                                      {"parameters", procedure.parameters},
                                      {"line", procedure.line}});
    }
    // A script may hold bytes that are no UTF-8.
    return root.dump(-1, ' ', false, json::error_handler_t::replace);
}

} // namespace tvxhost::mel
