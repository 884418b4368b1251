// MFnStringData: text as an object.
#include <maya/MFnStringData.h>

#include "support/dataSet.h"

using namespace tvxhost;

TVX_FUNCTION_SET(MFnStringData, MFn::kStringData)

MString MFnStringData::string(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnStringData::string", ReturnStatus, MString());
    const auto* data = api::dataAs<engine::StringData>(*this);
    return api::requireAttached(data, ReturnStatus) ? tvxAccess::string(data->value.str()) : MString();
}

MStatus MFnStringData::set(const MString& newString)
{
    TVX_API_CALL("MFnStringData::set");
    auto* data = api::dataAs<engine::StringData>(*this);
    if (!data)
        return api::notAttached();
    data->value = tvxAccess::text(newString);
    return MS::kSuccess;
}

MObject MFnStringData::create(const MString& str, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnStringData::create", ReturnStatus, MObject());
    const engine::Ref<engine::StringData> data(new engine::StringData(tvxAccess::text(str)));
    return api::createData(*this, data, ReturnStatus);
}

MObject MFnStringData::create(MStatus* ReturnStatus)
{
    return create(MString(), ReturnStatus);
}
