// MPxCommand: base class of a plug-in's commands.
#include <maya/MArgList.h>
#include <maya/MDoubleArray.h>
#include <maya/MIntArray.h>
#include <maya/MPxCommand.h>
#include <maya/MStringArray.h>

#include "support/access.h"
#include "support/apiCall.h"
#include "support/commandState.h"
#include "support/commandValue.h"

using namespace tvxhost::api;
using tvxhost::engine::Scene;

namespace {

using Result = RunningCommands::Result;
using Kind = Result::Kind;

Kind kindOf(const std::vector<int>&)
{
    return Kind::integer;
}
Kind kindOf(const std::vector<double>&)
{
    return Kind::real;
}
Kind kindOf(const std::vector<std::string>&)
{
    return Kind::string;
}

std::vector<int>& valuesOf(Result& result, const std::vector<int>&)
{
    return result.integers;
}
std::vector<double>& valuesOf(Result& result, const std::vector<double>&)
{
    return result.reals;
}
std::vector<std::string>& valuesOf(Result& result, const std::vector<std::string>&)
{
    return result.strings;
}

template <class Values>
void put(Values values, bool isArray)
{
    Result result;
    result.kind = kindOf(values);
    result.isArray = isArray;
    valuesOf(result, values) = values;
    RunningCommands::current() = std::move(result);
}

/// Makes an array of what is there and adds to it; a result of another kind is replaced.
template <class Values>
void append(const Values& values)
{
    Result& result = RunningCommands::current();
    if (result.kind != kindOf(values)) {
        put(values, true);
        return;
    }
    result.isArray = true;
    auto& present = valuesOf(result, values);
    present.insert(present.end(), values.begin(), values.end());
}

std::string textOf(const char* value)
{
    return value ? value : "";
}

std::vector<std::string> textsOf(const MStringArray& values)
{
    std::vector<std::string> texts;
    for (unsigned int i = 0; i < values.length(); ++i)
        texts.push_back(tvxAccess::text(values[i]));
    return texts;
}

template <class Value>
MStatus takeCurrent(const char* name, Value& value)
{
    TVX_API_CALL(name);
    return take(RunningCommands::current(), value) ? MStatus() : failure(StatusText::unexpectedFailure);
}

} // namespace

namespace tvxhost::api {

RunningCommands::Result& RunningCommands::current()
{
    static Result ofNoOne;
    if (running().empty())
        return ofNoOne = Result();
    return running().back().result;
}

std::string RunningCommands::currentName()
{
    return running().empty() ? std::string() : running().back().name;
}

std::vector<RunningCommands::Running>& RunningCommands::running()
{
    static std::vector<Running> all;
    return all;
}

} // namespace tvxhost::api

MPxCommand::MPxCommand() : state(new CommandState), reserved() {}

MPxCommand::~MPxCommand()
{
    delete state;
}

const char* MPxCommand::className()
{
    return "MPxCommand";
}

MStatus MPxCommand::doIt(const MArgList&)
{
    return failure(StatusText::unexpectedFailure);
}

MStatus MPxCommand::undoIt()
{
    return failure(StatusText::unexpectedFailure);
}

MStatus MPxCommand::redoIt()
{
    return failure(StatusText::unexpectedFailure);
}

bool MPxCommand::isUndoable() const
{
    return state->isUndoable.value_or(false);
}

bool MPxCommand::hasSyntax() const
{
    return false;
}

MSyntax MPxCommand::syntax() const
{
    return state->syntax;
}

bool MPxCommand::isHistoryOn() const
{
    return state->isHistoryOn;
}

MString MPxCommand::commandString() const
{
    return tvxAccess::string(state->text);
}

MStatus MPxCommand::setHistoryOn(bool on)
{
    TVX_API_CALL("MPxCommand::setHistoryOn");
    state->isHistoryOn = on;
    return MS::kSuccess;
}

MStatus MPxCommand::setCommandString(const MString& text)
{
    TVX_API_CALL("MPxCommand::setCommandString");
    state->text = tvxAccess::text(text);
    return MS::kSuccess;
}

MStatus MPxCommand::setUndoable(bool undoable)
{
    TVX_API_CALL("MPxCommand::setUndoable");
    state->isUndoable = undoable;
    return MS::kSuccess;
}

void MPxCommand::setData(void* data)
{
    reserved[0] = data;
}

// Messages

void MPxCommand::displayInfo(const MString& theInfo)
{
    Scene::current().scriptEditor().info(tvxAccess::text(theInfo));
}

void MPxCommand::displayWarning(const MString& theWarning, bool)
{
    Scene::current().scriptEditor().warning(tvxAccess::text(theWarning));
}

void MPxCommand::displayError(const MString& theError, bool)
{
    Scene::current().scriptEditor().error(tvxAccess::text(theError));
}

// The result

void MPxCommand::clearResult()
{
    RunningCommands::current() = Result();
}

void MPxCommand::setResult(unsigned int val)
{
    put(std::vector<int>{static_cast<int>(val)}, false);
}

void MPxCommand::setResult(int val)
{
    put(std::vector<int>{val}, false);
}

void MPxCommand::setResult(double val)
{
    put(std::vector<double>{val}, false);
}

void MPxCommand::setResult(bool val)
{
    put(std::vector<int>{val ? 1 : 0}, false);
}

void MPxCommand::setResult(const char* val)
{
    put(std::vector<std::string>{textOf(val)}, false);
}

void MPxCommand::setResult(const MString& val)
{
    put(std::vector<std::string>{tvxAccess::text(val)}, false);
}

void MPxCommand::setResult(const MIntArray& val)
{
    put(tvxAccess::elements(val), true);
}

void MPxCommand::setResult(const MDoubleArray& val)
{
    put(tvxAccess::elements(val), true);
}

void MPxCommand::setResult(const MStringArray& val)
{
    put(textsOf(val), true);
}

void MPxCommand::appendToResult(int val)
{
    append(std::vector<int>{val});
}

void MPxCommand::appendToResult(double val)
{
    append(std::vector<double>{val});
}

void MPxCommand::appendToResult(bool val)
{
    append(std::vector<int>{val ? 1 : 0});
}

void MPxCommand::appendToResult(const char* val)
{
    append(std::vector<std::string>{textOf(val)});
}

void MPxCommand::appendToResult(const MString& val)
{
    append(std::vector<std::string>{tvxAccess::text(val)});
}

void MPxCommand::appendToResult(const MStringArray& val)
{
    append(textsOf(val));
}

bool MPxCommand::isCurrentResultArray()
{
    return RunningCommands::current().isArray;
}

MPxCommand::MResultType MPxCommand::currentResultType()
{
    switch (RunningCommands::current().kind) {
    case Kind::integer:
        return kLong;
    case Kind::real:
        return kDouble;
    case Kind::string:
        return kString;
    default:
        return kNoArg;
    }
}

#define TVX_CURRENT_RESULT(Type)                                                                             \
    MStatus MPxCommand::getCurrentResult(Type& val)                                                          \
    {                                                                                                        \
        return takeCurrent("MPxCommand::getCurrentResult", val);                                             \
    }

TVX_CURRENT_RESULT(int)
TVX_CURRENT_RESULT(double)
TVX_CURRENT_RESULT(MString)
TVX_CURRENT_RESULT(MIntArray)
TVX_CURRENT_RESULT(MDoubleArray)
TVX_CURRENT_RESULT(MStringArray)

#undef TVX_CURRENT_RESULT

int MPxCommand::currentIntResult(MStatus* ReturnStatus)
{
    int value = 0;
    give(ReturnStatus, takeCurrent("MPxCommand::currentIntResult", value));
    return value;
}

double MPxCommand::currentDoubleResult(MStatus* ReturnStatus)
{
    double value = 0.0;
    give(ReturnStatus, takeCurrent("MPxCommand::currentDoubleResult", value));
    return value;
}

MString MPxCommand::currentStringResult(MStatus* ReturnStatus)
{
    MString value;
    give(ReturnStatus, takeCurrent("MPxCommand::currentStringResult", value));
    return value;
}
