// MArgParser: the flags, arguments and objects of a command, taken apart as its syntax says.
#include <maya/MArgList.h>
#include <maya/MArgParser.h>
#include <maya/MStringArray.h>
#include <maya/MSyntax.h>

#include "support/access.h"
#include "support/apiCall.h"
#include "support/argumentValue.h"
#include "support/parsedArguments.h"

using namespace tvxhost::api;
using tvxhost::engine::Scene;

namespace {

MStatus notGiven()
{
    return failure(StatusText::itemNotFound);
}

/// The i-th use of a flag; null when there is none.
const ParsedArguments::Use* useOf(const ParsedArguments& parsed, const char* flag, std::size_t i)
{
    const auto uses = parsed.usesOf(flag);
    return i < uses.size() ? uses[i] : nullptr;
}

template <class Value>
MStatus flagArgument(const ParsedArguments& parsed, const char* flag, unsigned int index, Value& value)
{
    const ParsedArguments::Use* use = useOf(parsed, flag, 0);
    return use ? readArgument(use->arguments, index, value) : notGiven();
}

} // namespace

MArgParser::MArgParser() : parsed(std::make_shared<ParsedArguments>()) {}

MArgParser::MArgParser(const MSyntax& syntax, const MArgList& argList, MStatus* ReturnStatus) : MArgParser()
{
    TVX_API_CONSTRUCTION("MArgParser::MArgParser", ReturnStatus);
    auto result =
        parse(tvxAccess::syntax(syntax), tvxAccess::arguments(argList), RunningCommands::currentName());
    if (result) {
        *parsed = std::move(result.value);
        giveSuccess(ReturnStatus);
        return;
    }
    Scene::current().scriptEditor().error(result.outcome.text);
    give(ReturnStatus, failure(StatusText::unexpectedFailure));
}

MArgParser::~MArgParser() = default;

const char* MArgParser::className()
{
    return "MArgParser";
}

bool MArgParser::isFlagSet(const char* flag, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MArgParser::isFlagSet", ReturnStatus, false);
    const bool isKnown = flag && parsed->syntax.find(flag);
    give(ReturnStatus, isKnown ? MStatus() : notGiven());
    return numberOfFlagUses(flag) > 0;
}

bool MArgParser::isEdit(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MArgParser::isEdit", ReturnStatus, false);
    giveSuccess(ReturnStatus);
    return parsed->isEdit;
}

bool MArgParser::isQuery(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MArgParser::isQuery", ReturnStatus, false);
    giveSuccess(ReturnStatus);
    return parsed->isQuery;
}

unsigned int MArgParser::numberOfFlagsUsed() const
{
    return static_cast<unsigned int>(parsed->uses.size());
}

unsigned int MArgParser::numberOfFlagUses(const char* flag) const
{
    return static_cast<unsigned int>(parsed->usesOf(flag).size());
}

#define TVX_FLAG_ARGUMENT(Type)                                                                              \
    MStatus MArgParser::getFlagArgument(const char* flag, unsigned int index, Type& result) const            \
    {                                                                                                        \
        TVX_API_CALL("MArgParser::getFlagArgument");                                                         \
        return flagArgument(*parsed, flag, index, result);                                                   \
    }

#define TVX_COMMAND_ARGUMENT(Type)                                                                           \
    MStatus MArgParser::getCommandArgument(unsigned int index, Type& result) const                           \
    {                                                                                                        \
        TVX_API_CALL("MArgParser::getCommandArgument");                                                      \
        return readArgument(parsed->arguments, index, result);                                               \
    }

#define TVX_ARGUMENT(Type, Name)                                                                             \
    TVX_FLAG_ARGUMENT(Type)                                                                                  \
    TVX_COMMAND_ARGUMENT(Type)                                                                               \
    Type MArgParser::flagArgument##Name(const char* flag, unsigned int index, MStatus* ReturnStatus) const   \
    {                                                                                                        \
        TVX_API_CALL_OR("MArgParser::flagArgument" #Name, ReturnStatus, Type());                             \
        Type value{};                                                                                        \
        give(ReturnStatus, flagArgument(*parsed, flag, index, value));                                       \
        return value;                                                                                        \
    }                                                                                                        \
    Type MArgParser::commandArgument##Name(unsigned int index, MStatus* ReturnStatus) const                  \
    {                                                                                                        \
        TVX_API_CALL_OR("MArgParser::commandArgument" #Name, ReturnStatus, Type());                          \
        Type value{};                                                                                        \
        give(ReturnStatus, readArgument(parsed->arguments, index, value));                                   \
        return value;                                                                                        \
    }

TVX_ARGUMENT(bool, Bool)
TVX_ARGUMENT(int, Int)
TVX_ARGUMENT(double, Double)
TVX_ARGUMENT(MString, String)
TVX_ARGUMENT(MDistance, MDistance)
TVX_ARGUMENT(MAngle, MAngle)
TVX_ARGUMENT(MTime, MTime)
TVX_FLAG_ARGUMENT(unsigned int)

#undef TVX_ARGUMENT
#undef TVX_COMMAND_ARGUMENT
#undef TVX_FLAG_ARGUMENT

MStatus MArgParser::getFlagArgumentPosition(const char* flag, unsigned int i, unsigned int& position) const
{
    TVX_API_CALL("MArgParser::getFlagArgumentPosition");
    const ParsedArguments::Use* use = useOf(*parsed, flag, i);
    if (!use)
        return notGiven();
    position = use->position;
    return MS::kSuccess;
}

MStatus MArgParser::getFlagArgumentList(const char* flag, unsigned int i, MArgList& args) const
{
    TVX_API_CALL("MArgParser::getFlagArgumentList");
    const ParsedArguments::Use* use = useOf(*parsed, flag, i);
    if (!use)
        return notGiven();
    tvxAccess::arguments(args).items = use->arguments;
    return MS::kSuccess;
}

MStatus MArgParser::getObjects(MStringArray& result) const
{
    TVX_API_CALL("MArgParser::getObjects");
    if (parsed->syntax.objectFormat == MSyntax::kNone)
        return failure(StatusText::unexpectedFailure);
    result.clear();
    for (const std::string& name : parsed->objects)
        result.append(tvxAccess::string(name));
    return MS::kSuccess;
}
