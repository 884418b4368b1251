// ScriptBridge: conversions between values of the language and results of the API.
#include "scriptBridge.h"

#include "pluginCommands.h"

#include <algorithm>
#include <cstddef>
#include <optional>

namespace tvxhost::app {

using engine::ScriptRunner;
using mel::Type;
using mel::Value;
using Kind = ScriptRunner::Result::Kind;

namespace {

void add(ScriptRunner::Result& result, const mel::Vector& vector)
{
    result.reals.insert(result.reals.end(), {vector.x, vector.y, vector.z});
}

Kind kindOf(Type type)
{
    switch (type) {
    case Type::none:
        return Kind::none;
    case Type::integer:
    case Type::integerArray:
        return Kind::integer;
    case Type::number:
    case Type::numberArray:
        return Kind::real;
    case Type::string:
    case Type::stringArray:
        return Kind::string;
    case Type::vector:
    case Type::vectorArray:
        return Kind::vector;
    case Type::matrix:
        return Kind::matrix;
    }
    return Kind::none;
}

Value::Vectors vectorsOf(const std::vector<double>& reals)
{
    Value::Vectors vectors;
    for (std::size_t i = 0; i + 2 < reals.size(); i += 3)
        vectors.emplace_back(reals[i], reals[i + 1], reals[i + 2]);
    return vectors;
}

mel::Matrix matrixOf(const ScriptRunner::Result& result)
{
    const auto columns = static_cast<std::size_t>(std::max(result.columns, 1));
    mel::Matrix matrix(result.reals.size() / columns, columns);
    matrix.elements.assign(result.reals.begin(),
                           result.reals.begin() + static_cast<std::ptrdiff_t>(matrix.elements.size()));
    return matrix;
}

/// An array as it is, or its first element.
template <class Elements>
Value arrayOrFirst(const ScriptRunner::Result& result, const Elements& elements)
{
    const Value array(elements);
    return result.isArray ? array : array.element(0);
}

} // namespace

ScriptRunner::Result toResult(const Value& value)
{
    ScriptRunner::Result result;
    result.kind = kindOf(value.type());
    result.isArray = mel::isArray(value.type());
    switch (value.type()) {
    case Type::none:
        break;
    case Type::integer:
        result.integers = {value.integer()};
        break;
    case Type::integerArray:
        result.integers = value.integers();
        break;
    case Type::number:
        result.reals = {value.number()};
        break;
    case Type::numberArray:
        result.reals = value.numbers();
        break;
    case Type::string:
        result.strings = {value.string()};
        break;
    case Type::stringArray:
        result.strings = value.strings();
        break;
    case Type::vector:
        add(result, value.vector());
        break;
    case Type::vectorArray:
        for (const mel::Vector& vector : value.vectors())
            add(result, vector);
        break;
    case Type::matrix:
        result.reals = value.matrix().elements;
        result.columns = static_cast<int>(value.matrix().columns);
        break;
    }
    return result;
}

Value toValue(const ScriptRunner::Result& result)
{
    switch (result.kind) {
    case Kind::none:
        break;
    case Kind::integer:
        return arrayOrFirst(result, result.integers);
    case Kind::real:
        return arrayOrFirst(result, result.reals);
    case Kind::string:
        return arrayOrFirst(result, result.strings);
    case Kind::vector:
        return arrayOrFirst(result, vectorsOf(result.reals));
    case Kind::matrix:
        return matrixOf(result);
    }
    return {};
}

bool ScriptBridge::run(const std::string& script, bool display, bool undoable, Result& result)
{
    // What can be undone goes to the step of the plug-in's command that runs it, or is a step of its own.
    std::optional<engine::Journal::Into> step;
    engine::Journal* journal = m_interpreter.session() ? m_interpreter.session()->journal() : nullptr;
    if (journal && !undoable)
        step.emplace(*journal, nullptr);
    else if (journal && !journal->isRecording() && journal->runningStep())
        step.emplace(*journal, journal->runningStep());
    // A plug-in's interface procedure may use the commands that the plug-in has just registered.
    m_commands.update();
    const auto value = m_interpreter.run(script);
    if (!value)
        return false;
    result = toResult(*value);
    if (display && !value->isNone())
        m_editor.result(mel::resultText(*value));
    return true;
}

bool ScriptBridge::sourceFile(const std::string& path)
{
    try {
        m_interpreter.sourceFile(path);
        return true;
    } catch (const mel::ScriptError& error) {
        m_interpreter.report(error);
        return false;
    }
}

void ScriptBridge::runOnIdle(const std::string& script, bool /*display*/)
{
    m_interpreter.defer(script, false);
}

} // namespace tvxhost::app
