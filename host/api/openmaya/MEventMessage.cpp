// MEventMessage: callbacks for the events that scripts know by name.
#include <maya/MEventMessage.h>
#include <maya/MString.h>
#include <maya/MStringArray.h>

#include "support/callbacks.h"

using namespace tvxhost::api;
using namespace tvxhost::engine;

MCallbackId MEventMessage::addEventCallback(const MString& event, MBasicFunction func, void* clientData,
                                            MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MEventMessage::addEventCallback", ReturnStatus, 0);
    const std::string& name = tvxAccess::text(event);
    const auto what = happeningNamed(name);
    const auto translate = [](const auto& callback, const Event&) { callback(); };
    if (what)
        return addCallback({*what}, func, clientData, translate, ReturnStatus);
    if (isHappeningName(name))
        return addCallback({}, func, clientData, translate, ReturnStatus);
    give(ReturnStatus, failure(MS::kInvalidParameter, StatusText::itemNotFound));
    return 0;
}

MStatus MEventMessage::getEventNames(MStringArray& names)
{
    TVX_API_CALL("MEventMessage::getEventNames");
    names.clear();
    for (const std::string& name : happeningNames())
        names.append(tvxAccess::string(name));
    return MS::kSuccess;
}

const char* MEventMessage::className()
{
    return "MEventMessage";
}
