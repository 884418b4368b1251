// MCommandResult: the value of a MEL command.
#include <maya/MCommandResult.h>

#include "support/access.h"
#include "support/apiCall.h"
#include "support/commandValue.h"

using namespace tvxhost;
using api::failure;
using api::StatusText;

namespace {

template <class Value>
MStatus read(const api::CommandValue& value, Value& target)
{
    TVX_API_CALL("MCommandResult::getResult");
    return api::take(value.result, target) ? MStatus() : failure(StatusText::unexpectedFailure);
}

} // namespace

MCommandResult::MCommandResult(MStatus* ReturnStatus) : value(new api::CommandValue)
{
    TVX_API_CONSTRUCTION("MCommandResult::MCommandResult", ReturnStatus);
    api::giveSuccess(ReturnStatus);
}

MCommandResult::~MCommandResult()
{
    delete value;
}

MCommandResult::Type MCommandResult::resultType(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MCommandResult::resultType", ReturnStatus, kInvalid);
    api::giveSuccess(ReturnStatus);
    return api::typeOf(value->result);
}

#define TVX_RESULT_OF(Value)                                                                                 \
    MStatus MCommandResult::getResult(Value& result) const                                                   \
    {                                                                                                        \
        return read(*value, result);                                                                         \
    }

TVX_RESULT_OF(int)
TVX_RESULT_OF(MInt64)
TVX_RESULT_OF(MIntArray)
TVX_RESULT_OF(MInt64Array)
TVX_RESULT_OF(double)
TVX_RESULT_OF(MDoubleArray)
TVX_RESULT_OF(MString)
TVX_RESULT_OF(MStringArray)
TVX_RESULT_OF(MVector)
TVX_RESULT_OF(MVectorArray)

MStatus MCommandResult::getResult(MDoubleArray& result, int& numRows, int& numColumns) const
{
    TVX_API_CALL("MCommandResult::getResult");
    const auto& matrix = value->result;
    if (api::typeOf(matrix) != kMatrix || matrix.columns <= 0)
        return failure(StatusText::unexpectedFailure);
    tvxAccess::elements(result) = matrix.reals;
    numColumns = matrix.columns;
    numRows = static_cast<int>(matrix.reals.size()) / matrix.columns;
    return MS::kSuccess;
}

MString MCommandResult::stringResult(MStatus* ReturnResult) const
{
    TVX_API_CALL_OR("MCommandResult::stringResult", ReturnResult, MString());
    MString text;
    const bool isText = api::take(value->result, text);
    api::give(ReturnResult, isText ? MStatus() : failure(StatusText::unexpectedFailure));
    return text;
}

const char* MCommandResult::className()
{
    return "MCommandResult";
}
