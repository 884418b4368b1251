// MDGContext: the time at which the graph is evaluated.
#include <maya/MDGContext.h>
#include <maya/MTime.h>

#include "support/apiCall.h"
#include "support/dataBlockState.h"
#include "support/unitValues.h"

using tvxhost::api::DGContext;
using tvxhost::api::failure;
using tvxhost::api::StatusText;

MDGContext MDGContext::fsNormal;

MDGContext::MDGContext() : context(nullptr) {}

MDGContext::MDGContext(const MTime& when) : context(new DGContext{tvxhost::api::internalValue(when)}) {}

MDGContext::MDGContext(const MDGContext& in) : context(in.context ? new DGContext(*in.context) : nullptr) {}

MDGContext::~MDGContext()
{
    delete context;
}

MDGContext& MDGContext::operator=(const MDGContext& other)
{
    if (this != &other) {
        delete context;
        context = other.context ? new DGContext(*other.context) : nullptr;
    }
    return *this;
}

const char* MDGContext::className()
{
    return "MDGContext";
}

bool MDGContext::isNormal(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MDGContext::isNormal", ReturnStatus, true);
    tvxhost::api::giveSuccess(ReturnStatus);
    return !context;
}

// The normal context has no time of its own.
MStatus MDGContext::getTime(MTime& time) const
{
    TVX_API_CALL("MDGContext::getTime");
    if (!context)
        return failure(StatusText::unexpectedFailure);
    time = tvxhost::api::fromInternal<MTime>(context->seconds);
    return MS::kSuccess;
}
