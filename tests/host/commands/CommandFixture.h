// What tests of scene commands share: a session without plug-ins that runs MEL.
#pragma once

#include "engine/scene.h"
#include "mel/commands/sceneCommands.h"
#include "mel/commands/sceneSession.h"
#include "mel/interpreter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tvxhost::mel {

class CommandFixture : public testing::Test
{
protected:
    explicit CommandFixture(bool batch = true)
        : scene(batch), session(scene), interpreter(table, scene.scriptEditor(), &session)
    {
        registerLanguageCommands(table);
        registerSceneCommands(table);
        session.declareGlobals(interpreter);
    }

    /// The value of a script as `// Result:` shows it; the script must not fail.
    std::string run(const std::string& script)
    {
        try {
            return resultText(interpreter.execute(script));
        } catch (const ScriptError& error) {
            ADD_FAILURE() << script << ": " << error.what();
            return {};
        }
    }

    /// The message of a script that must fail.
    std::string failure(const std::string& script)
    {
        try {
            interpreter.execute(script);
        } catch (const ScriptError& error) {
            return error.what();
        }
        ADD_FAILURE() << "no error: " << script;
        return {};
    }

    Value value(const std::string& script) { return interpreter.execute(script); }
    Value::Strings strings(const std::string& script)
    {
        const Value result = value(script);
        EXPECT_EQ(result.type(), Type::stringArray) << script;
        return result.type() == Type::stringArray ? result.strings() : Value::Strings();
    }
    Value::Numbers numbers(const std::string& script)
    {
        const Value result = value(script);
        EXPECT_EQ(result.type(), Type::numberArray) << script;
        return result.type() == Type::numberArray ? result.numbers() : Value::Numbers();
    }
    /// The numbers that a script gives, but for rounding.
    void expectNear(const std::string& script, const Value::Numbers& expected)
    {
        EXPECT_THAT(numbers(script), testing::Pointwise(testing::DoubleNear(1e-9), expected)) << script;
    }

    engine::Scene scene;
    CommandTable table;
    SceneSession session;
    Interpreter interpreter;
};

} // namespace tvxhost::mel
