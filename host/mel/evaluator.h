// Evaluator: runs the syntax tree of one script or of one procedure call.
#pragma once

#include "ast.h"
#include "interpreter.h"
#include "scope.h"

#include <string>
#include <string_view>
#include <vector>

namespace tvxhost::mel {

/// What a statement does to those around it.
enum class Flow
{
    next,
    leaveLoop,
    nextRound,
    leaveProcedure,
};

class Evaluator
{
public:
    /// For the top level of a text from `file`, where variables are global.
    Evaluator(Interpreter& interpreter, const std::string& file);
    /// For a call of a procedure, which must live as long.
    Evaluator(Interpreter& interpreter, const ProcedureEntry& entry);

    /// Binds the parameters, runs the body and gives the result, converted to the procedure's type.
    Value callProcedure(std::vector<Value>& arguments, const Place& place);
    /// Runs statements in order up to the end or a `return`.
    void runAll(const ast::Statements& statements);
    Flow execute(const ast::Statement& statement);
    Value evaluate(const ast::Expression& expression);

    /// The value of the last statement that had one.
    const Value& lastValue() const { return m_lastValue; }

    // The kinds of statements and expressions, for std::visit.
    Flow operator()(const ast::ExpressionStatement& node);
    Flow operator()(const ast::Block& node);
    Flow operator()(const ast::Declaration& node);
    Flow operator()(const ast::If& node);
    Flow operator()(const ast::While& node);
    Flow operator()(const ast::DoWhile& node);
    Flow operator()(const ast::For& node);
    Flow operator()(const ast::ForIn& node);
    Flow operator()(const ast::Switch& node);
    Flow operator()(const ast::Break& node);
    Flow operator()(const ast::Continue& node);
    Flow operator()(const ast::Return& node);
    Flow operator()(const ast::ProcedureDefinition& node);
    Value operator()(const ast::Literal& node);
    Value operator()(const ast::Variable& node);
    Value operator()(const ast::Negation& node);
    Value operator()(const ast::LogicalNot& node);
    Value operator()(const ast::Chain& node);
    Value operator()(const ast::Conditional& node);
    Value operator()(const ast::Assignment& node);
    Value operator()(const ast::Increment& node);
    Value operator()(const ast::Cast& node);
    Value operator()(const ast::ArrayLiteral& node);
    Value operator()(const ast::MatrixLiteral& node);
    Value operator()(const ast::FunctionCall& node);
    Value operator()(const ast::Command& node);
    Value operator()(const ast::Capture& node);
    Value operator()(const ast::Catch& node);

private:
    class BlockScope;
    class QuietScope;
    /// A variable or an element of one, its indices evaluated.
    struct Slot
    {
        const ast::Variable& node;
        std::vector<std::size_t> indices;
    };

    Place place(ast::Position at) const { return {m_file, at.line}; }
    bool condition(const ast::ExpressionPtr& expression);
    /// The value of an expression for a variable or a result of a type: the type's neutral value when a
    /// command had nothing to give.
    Value valueFor(Type type, const ast::Expression& expression);
    /// Whether `value` is the missing result of a command. That of a procedure without a type is a mistake of
    /// the script instead.
    bool isMissing(const Value& value, const ast::Expression& expression) const;
    Flow runBlock(const ast::Statements& statements);
    /// One round of a loop; false when the loop ends. `flow` becomes what the loop as a whole does.
    bool round(const ast::Statement& body, Flow& flow);
    Value logical(const ast::Chain& chain);

    std::shared_ptr<Variable> find(std::string_view name);
    std::shared_ptr<Variable> require(const std::string& name);
    void declareOne(const ast::Declaration& declaration, const ast::Declaration::Declarator& declarator);
    std::shared_ptr<Variable> declared(const std::string& name, Type type, bool isGlobal, bool& isNew);
    /// Elements one array may grow to; a larger index is a mistake, not an array.
    static constexpr int kMostElements = 100'000'000;
    Value sized(const ast::Declaration::Declarator& declarator, Type type);
    void declareImplicitly(const std::string& name, const Value& value);
    std::size_t index(const ast::ExpressionPtr& expression);
    Slot slot(const ast::Variable& node);
    Value read(const Slot& slot);
    void write(const Slot& slot, const Value& value);

    Interpreter& m_interpreter;
    const std::string& m_file;
    LocalProcedures* m_locals;
    const ast::Procedure* m_procedure = nullptr; ///< null at the top level
    Frame m_frame;
    ast::Position m_at; ///< of the innermost expression or statement under way
    Value m_lastValue;
    Value m_returned;
};

} // namespace tvxhost::mel
