// MFnPluginData: data of a type that a plug-in registered, as an object.
#include <maya/MFnPluginData.h>

#include "support/dataSet.h"
#include "support/pxData.h"

using namespace tvxhost;
using api::StatusText;

TVX_FUNCTION_SET(MFnPluginData, MFn::kPluginData)

MTypeId MFnPluginData::typeId(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnPluginData::typeId", ReturnStatus, MTypeId());
    const auto* data = api::dataAs<engine::PluginData>(*this);
    return api::requireAttached(data, ReturnStatus) ? MTypeId(data->dataType().id) : MTypeId();
}

MPxData* MFnPluginData::data(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnPluginData::data", ReturnStatus, nullptr);
    const auto* data = api::dataAs<api::PxData>(*this);
    MPxData* object = data ? data->object() : nullptr;
    api::requireAttached(object, ReturnStatus);
    return object;
}

const MPxData* MFnPluginData::constData(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnPluginData::constData", ReturnStatus, nullptr);
    const auto* data = api::dataAs<api::PxData>(*this);
    const MPxData* object = data ? data->object() : nullptr;
    api::requireAttached(object, ReturnStatus);
    return object;
}

MObject MFnPluginData::create(const MTypeId& id, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnPluginData::create", ReturnStatus, MObject());
    const auto type = engine::Scene::current().dataTypes().find(id.id());
    if (!type) {
        api::give(ReturnStatus, api::failure(MS::kInvalidParameter, StatusText::unexpectedFailure));
        return MObject();
    }
    const auto made = engine::makePluginData(type);
    if (!made) {
        api::give(ReturnStatus, api::failure(StatusText::unexpectedFailure));
        return MObject();
    }
    return api::createData(*this, made.value, ReturnStatus);
}
