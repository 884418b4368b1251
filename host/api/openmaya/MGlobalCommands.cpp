// MGlobal: running commands and scripts.
#include <maya/MGlobal.h>

#include "engine/scene.h"
#include "support/access.h"
#include "support/apiCall.h"
#include "support/commandValue.h"
#include "support/notImplemented.h"

using namespace tvxhost;
using api::failure;
using api::StatusText;
using Result = engine::ScriptRunner::Result;

namespace {

/// Runs a script, which shows its own errors.
MStatus run(const MString& command, bool display, bool undoable, Result& result)
{
    engine::ScriptRunner* runner = engine::Scene::current().scriptRunner;
    const bool done = runner && runner->run(tvxAccess::text(command), display, undoable, result);
    return done ? MStatus() : failure(StatusText::unexpectedFailure);
}

template <class Value>
constexpr bool kIsArray = !std::is_arithmetic_v<Value> && !std::is_same_v<Value, MString>;

/// Runs a script and reads its result. Without a value an array is emptied; anything else that does not fit
/// fails and leaves the target as it was.
template <class Value>
MStatus runFor(Value& target, const MString& command, bool display, bool undoable)
{
    Result result;
    if (const MStatus status = run(command, display, undoable, result); !status)
        return status;
    if constexpr (kIsArray<Value>) {
        if (result.kind == Result::Kind::none) {
            target.clear();
            return MS::kSuccess;
        }
    }
    return api::take(result, target) ? MStatus() : failure(StatusText::unexpectedFailure);
}

} // namespace

MStatus MGlobal::sourceFile(const MString& fileName)
{
    TVX_API_CALL("MGlobal::sourceFile");
    engine::ScriptRunner* runner = engine::Scene::current().scriptRunner;
    const bool done = runner && runner->sourceFile(tvxAccess::text(fileName));
    return done ? MStatus() : failure(StatusText::unexpectedFailure);
}

MStatus MGlobal::executeCommandOnIdle(const MString& command, bool displayEnabled)
{
    TVX_API_CALL("MGlobal::executeCommandOnIdle");
    engine::ScriptRunner* runner = engine::Scene::current().scriptRunner;
    if (!runner)
        return failure(StatusText::unexpectedFailure);
    runner->runOnIdle(tvxAccess::text(command), displayEnabled);
    return MS::kSuccess;
}

MStatus MGlobal::executeCommand(const MString& command, bool displayEnabled, bool undoEnabled)
{
    TVX_API_CALL("MGlobal::executeCommand");
    Result ignored;
    return run(command, displayEnabled, undoEnabled, ignored);
}

MStatus MGlobal::executeCommand(const MString& command, MCommandResult& result, bool displayEnabled,
                                bool undoEnabled)
{
    TVX_API_CALL("MGlobal::executeCommand");
    Result value;
    const MStatus status = run(command, displayEnabled, undoEnabled, value);
    if (status)
        tvxAccess::commandValue(result).result = std::move(value);
    return status;
}

#define TVX_EXECUTE_FOR(Type)                                                                                \
    MStatus MGlobal::executeCommand(const MString& command, Type& result, bool displayEnabled,               \
                                    bool undoEnabled)                                                        \
    {                                                                                                        \
        TVX_API_CALL("MGlobal::executeCommand");                                                             \
        return runFor(result, command, displayEnabled, undoEnabled);                                         \
    }

TVX_EXECUTE_FOR(int)
TVX_EXECUTE_FOR(MIntArray)
TVX_EXECUTE_FOR(double)
TVX_EXECUTE_FOR(MDoubleArray)
TVX_EXECUTE_FOR(MStringArray)
TVX_EXECUTE_FOR(MString)

#undef TVX_EXECUTE_FOR

MString MGlobal::executeCommandStringResult(const MString& command, bool displayEnabled, bool undoEnabled,
                                            MStatus* ResultStatus)
{
    TVX_API_CALL_OR("MGlobal::executeCommandStringResult", ResultStatus, MString());
    MString text;
    api::give(ResultStatus, runFor(text, command, displayEnabled, undoEnabled));
    return text;
}
