// Statements, and the procedures that hold them.
#include "evaluator.h"

#include "operators.h"

#include <algorithm>

namespace tvxhost::mel {

/// Variables declared while it lives are gone with it.
class Evaluator::BlockScope
{
public:
    explicit BlockScope(Frame& frame) : m_frame(frame) { m_frame.enterBlock(); }
    ~BlockScope() { m_frame.leaveBlock(); }
    BlockScope(const BlockScope&) = delete;
    BlockScope& operator=(const BlockScope&) = delete;

private:
    Frame& m_frame;
};

Evaluator::Evaluator(Interpreter& interpreter, const std::string& file)
    : m_interpreter(interpreter), m_file(file), m_locals(&interpreter.localProcedures(file))
{
}

Evaluator::Evaluator(Interpreter& interpreter, const ProcedureEntry& entry)
    : m_interpreter(interpreter), m_file(entry.file), m_locals(entry.locals),
      m_procedure(entry.procedure.get())
{
}

Value Evaluator::callProcedure(std::vector<Value>& arguments, const Place& callPlace)
{
    const ast::Procedure& procedure = *m_procedure;
    if (arguments.size() != procedure.parameters.size()) {
        throw ScriptError("Wrong number of arguments on call to " + procedure.name + ".", callPlace);
    }
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const ast::Procedure::Parameter& parameter = procedure.parameters[i];
        try {
            // An array stays the caller's; everything else is a copy.
            m_frame.declare(parameter.name, std::make_shared<Variable>(
                                                Variable{parameter.type, arguments[i].to(parameter.type)}));
        } catch (const ValueError& error) {
            throw ScriptError(error.what(), callPlace);
        }
    }
    runAll(procedure.body);
    if (procedure.result == Type::none) {
        return {};
    }
    return m_returned.isNone() ? Value::neutral(procedure.result) : std::move(m_returned);
}

void Evaluator::runAll(const ast::Statements& statements)
{
    for (const auto& statement : statements) {
        if (execute(*statement) == Flow::leaveProcedure) {
            return;
        }
    }
}

Flow Evaluator::execute(const ast::Statement& statement)
{
    m_at = statement.at;
    try {
        return std::visit(*this, statement.node);
    } catch (const ValueError& error) {
        throw ScriptError(error.what(), place(statement.at));
    }
}

bool Evaluator::condition(const ast::ExpressionPtr& expression)
{
    return evaluate(*expression).toBoolean();
}

Flow Evaluator::runBlock(const ast::Statements& statements)
{
    const BlockScope scope(m_frame);
    for (const auto& statement : statements) {
        const Flow flow = execute(*statement);
        if (flow != Flow::next) {
            return flow;
        }
    }
    return Flow::next;
}

bool Evaluator::round(const ast::Statement& body, Flow& flow)
{
    const Flow bodyFlow = execute(body);
    if (bodyFlow == Flow::leaveProcedure) {
        flow = bodyFlow;
    }
    return bodyFlow == Flow::next || bodyFlow == Flow::nextRound;
}

Flow Evaluator::operator()(const ast::ExpressionStatement& node)
{
    Value value = evaluate(*node.expression);
    if (!value.isNone()) {
        m_lastValue = std::move(value);
    }
    return Flow::next;
}

Flow Evaluator::operator()(const ast::Block& node)
{
    return runBlock(node.statements);
}

Flow Evaluator::operator()(const ast::Declaration& node)
{
    for (const auto& declarator : node.declarators) {
        m_at = declarator.at;
        declareOne(node, declarator);
    }
    return Flow::next;
}

Flow Evaluator::operator()(const ast::If& node)
{
    for (const auto& branch : node.branches) {
        if (condition(branch.condition)) {
            return execute(*branch.body);
        }
    }
    return node.otherwise ? execute(*node.otherwise) : Flow::next;
}

Flow Evaluator::operator()(const ast::While& node)
{
    Flow flow = Flow::next;
    while (condition(node.condition) && round(*node.body, flow)) {
    }
    return flow;
}

Flow Evaluator::operator()(const ast::DoWhile& node)
{
    Flow flow = Flow::next;
    while (round(*node.body, flow) && condition(node.condition)) {
    }
    return flow;
}

Flow Evaluator::operator()(const ast::For& node)
{
    // Only a declared loop variable belongs to the loop.
    const bool declares =
        !node.initial.empty() && std::holds_alternative<ast::Declaration>(node.initial.front()->node);
    std::optional<BlockScope> scope;
    if (declares) {
        scope.emplace(m_frame);
    }
    for (const auto& statement : node.initial) {
        execute(*statement);
    }
    Flow flow = Flow::next;
    while ((!node.condition || condition(node.condition)) && round(*node.body, flow)) {
        for (const auto& step : node.step) {
            evaluate(*step);
        }
    }
    return flow;
}

Flow Evaluator::operator()(const ast::ForIn& node)
{
    // The loop runs over the elements as they were at its start.
    const Value range = evaluate(*node.range).detached();
    std::optional<BlockScope> scope;
    if (node.type) {
        scope.emplace(m_frame);
        bool isNew = false;
        declared(node.variable, *node.type, false, isNew);
    }
    Flow flow = Flow::next;
    for (std::size_t i = 0; i < range.size(); ++i) {
        const Value element = range.element(i);
        if (const auto variable = find(node.variable)) {
            variable->assign(element);
        } else {
            declareImplicitly(node.variable, element);
        }
        if (!round(*node.body, flow)) {
            break;
        }
    }
    return flow;
}

Flow Evaluator::operator()(const ast::Switch& node)
{
    const Value subject = evaluate(*node.subject);
    const auto matches = [&](const ast::Switch::Case& row) {
        return row.label && applied(ast::Operator::equal, subject, evaluate(*row.label)).toBoolean();
    };
    auto row = std::find_if(node.cases.begin(), node.cases.end(), matches);
    if (row == node.cases.end()) {
        row = std::find_if(node.cases.begin(), node.cases.end(),
                           [](const ast::Switch::Case& other) { return !other.label; });
    }
    const BlockScope scope(m_frame);
    for (; row != node.cases.end(); ++row) {
        for (const auto& statement : row->statements) {
            const Flow flow = execute(*statement);
            if (flow != Flow::next) {
                return flow == Flow::leaveLoop ? Flow::next : flow;
            }
        }
    }
    return Flow::next;
}

Flow Evaluator::operator()(const ast::Break&)
{
    return Flow::leaveLoop;
}

Flow Evaluator::operator()(const ast::Continue&)
{
    return Flow::nextRound;
}

Flow Evaluator::operator()(const ast::Return& node)
{
    if (node.value) {
        const Type type = m_procedure != nullptr ? m_procedure->result : Type::none;
        m_returned = valueFor(type, *node.value);
        if (type != Type::none) {
            m_returned = m_returned.to(type);
        }
    }
    return Flow::leaveProcedure;
}

Flow Evaluator::operator()(const ast::ProcedureDefinition& node)
{
    m_interpreter.define(std::make_shared<ProcedureEntry>(ProcedureEntry{node.procedure, m_file, m_locals}));
    return Flow::next;
}

// Declarations

std::shared_ptr<Variable> Evaluator::find(std::string_view name)
{
    if (const auto* variable = m_frame.find(name)) {
        return *variable;
    }
    if (m_procedure != nullptr) {
        return nullptr;
    }
    const auto found = m_interpreter.globals().find(std::string(name));
    return found == m_interpreter.globals().end() ? nullptr : found->second;
}

std::shared_ptr<Variable> Evaluator::require(const std::string& name)
{
    if (auto variable = find(name)) {
        return variable;
    }
    throw ValueError("\"$" + name + "\" is an undeclared variable.");
}

std::shared_ptr<Variable> Evaluator::declared(const std::string& name, Type type, bool isGlobal, bool& isNew)
{
    const bool atTop = m_procedure == nullptr && !m_frame.inBlock();
    std::shared_ptr<Variable> variable;
    if (isGlobal || atTop) {
        std::shared_ptr<Variable>& global = m_interpreter.globals()[name];
        isNew = global == nullptr;
        if (isNew) {
            global = std::make_shared<Variable>(Variable{type, Value::neutral(type)});
        }
        variable = global;
        if (!atTop && m_frame.findInBlock(name) == nullptr) {
            m_frame.declare(name, variable);
        }
    } else if (const auto* known = m_frame.findInBlock(name)) {
        isNew = false;
        variable = *known;
    } else {
        isNew = true;
        variable = std::make_shared<Variable>(Variable{type, Value::neutral(type)});
        m_frame.declare(name, variable);
    }
    if (variable->type != type) {
        throw ValueError("Invalid redeclaration of variable \"$" + name + "\" as a different type.");
    }
    return variable;
}

void Evaluator::declareOne(const ast::Declaration& declaration,
                           const ast::Declaration::Declarator& declarator)
{
    const bool isMatrix = declaration.type == Type::matrix;
    const Type type = declarator.isArray && !isMatrix ? arrayOf(declaration.type) : declaration.type;
    // The initial value is evaluated first: it may name an outer variable that the new one will hide.
    Value initial = declarator.initial ? valueFor(type, *declarator.initial) : Value();
    bool isNew = false;
    const std::shared_ptr<Variable> variable = declared(declarator.name, type, declaration.isGlobal, isNew);
    if (isNew && declarator.isArray) {
        variable->value = sized(declarator, type);
    }
    // A global variable that a procedure declares is initialised once.
    const bool keepsValue = declaration.isGlobal && m_procedure != nullptr && !isNew;
    if (!declarator.initial || keepsValue) {
        return;
    }
    initial = initial.to(type);
    if (isMatrix && (initial.matrix().rows != variable->value.matrix().rows ||
                     initial.matrix().columns != variable->value.matrix().columns)) {
        throw ValueError("The size of the matrix \"$" + declarator.name + "\" differs from its value's.");
    }
    variable->assign(initial);
    m_lastValue = variable->value;
}

Value Evaluator::sized(const ast::Declaration::Declarator& declarator, Type type)
{
    std::vector<std::size_t> sizes;
    for (const auto& size : declarator.sizes) {
        sizes.push_back(size ? index(size) : 0);
    }
    if (type == Type::matrix) {
        if (sizes.size() != 2) {
            return Matrix();
        }
        if (sizes[0] * sizes[1] > kMostElements) {
            throw ValueError("The matrix \"$" + declarator.name + "\" is too large.");
        }
        return Matrix(sizes[0], sizes[1]);
    }
    Value array = Value::neutral(type);
    if (sizes.front() > 0) {
        array.setElement(sizes.front() - 1, Value::neutral(elementOf(type)));
    }
    return array;
}

void Evaluator::declareImplicitly(const std::string& name, const Value& value)
{
    if (value.isNone()) {
        throw ValueError("\"$" + name + "\" is an undeclared variable.");
    }
    bool isNew = false;
    declared(name, value.type(), false, isNew)->assign(value);
}

} // namespace tvxhost::mel
