// CommandValue: what MCommandResult holds, and reading a script's result as a type of the API.
#pragma once

#include "engine/scene.h"
#include "status.h"

#include <maya/MCommandResult.h>
#include <maya/MDoubleArray.h>
#include <maya/MInt64Array.h>
#include <maya/MIntArray.h>
#include <maya/MString.h>
#include <maya/MStringArray.h>
#include <maya/MVector.h>
#include <maya/MVectorArray.h>

namespace tvxhost::api {

struct CommandValue
{
    engine::ScriptRunner::Result result;
};

FND_EXPORT MCommandResult::Type typeOf(const engine::ScriptRunner::Result& result);

// One overload per type; false, and no change, when the result is of another kind. Whole and floating-point
// numbers become each other.
FND_EXPORT bool take(const engine::ScriptRunner::Result& result, int& value);
FND_EXPORT bool take(const engine::ScriptRunner::Result& result, MInt64& value);
FND_EXPORT bool take(const engine::ScriptRunner::Result& result, double& value);
FND_EXPORT bool take(const engine::ScriptRunner::Result& result, MString& value);
FND_EXPORT bool take(const engine::ScriptRunner::Result& result, MVector& value);
FND_EXPORT bool take(const engine::ScriptRunner::Result& result, MIntArray& value);
FND_EXPORT bool take(const engine::ScriptRunner::Result& result, MInt64Array& value);
FND_EXPORT bool take(const engine::ScriptRunner::Result& result, MDoubleArray& value);
FND_EXPORT bool take(const engine::ScriptRunner::Result& result, MStringArray& value);
FND_EXPORT bool take(const engine::ScriptRunner::Result& result, MVectorArray& value);

} // namespace tvxhost::api
