// MFnComponentListData: a list of components as an object.
#include <maya/MFnComponentListData.h>

#include "support/component.h"
#include "support/dataSet.h"

#include <algorithm>

using namespace tvxhost;

namespace {

using Components = std::vector<engine::Text>;

engine::ComponentListData* listOf(const MFnBase& set)
{
    return api::dataAs<engine::ComponentListData>(set);
}

Components::iterator find(Components& components, const MObject& component)
{
    return std::find(components.begin(), components.end(), engine::Text(api::componentsOf(component)));
}

} // namespace

TVX_FUNCTION_SET(MFnComponentListData, MFn::kComponentListData)

unsigned int MFnComponentListData::length(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnComponentListData::length", ReturnStatus, 0);
    const auto* data = listOf(*this);
    return api::requireAttached(data, ReturnStatus) ? static_cast<unsigned int>(data->values.size()) : 0;
}

bool MFnComponentListData::has(const MObject& obj, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnComponentListData::has", ReturnStatus, false);
    auto* data = listOf(*this);
    return api::requireAttached(data, ReturnStatus) && find(data->values, obj) != data->values.end();
}

MObject MFnComponentListData::operator[](unsigned int index) const
{
    const auto* data = listOf(*this);
    return data ? api::componentHandle(data->values[index].str()) : MObject();
}

MStatus MFnComponentListData::add(MObject& component)
{
    TVX_API_CALL("MFnComponentListData::add");
    auto* data = listOf(*this);
    if (!data)
        return api::notAttached();
    const std::string components = api::componentsOf(component);
    if (components.empty())
        return api::failure(component.isNull() ? api::StatusText::nullArgument
                                               : api::StatusText::objectIsIncompatible);
    if (find(data->values, component) == data->values.end())
        data->values.emplace_back(components);
    return MS::kSuccess;
}

MStatus MFnComponentListData::remove(const MObject& component)
{
    TVX_API_CALL("MFnComponentListData::remove");
    auto* data = listOf(*this);
    if (!data)
        return api::notAttached();
    const auto place = find(data->values, component);
    if (place == data->values.end())
        return api::failure(api::StatusText::itemNotFound);
    data->values.erase(place);
    return MS::kSuccess;
}

MStatus MFnComponentListData::remove(unsigned int index)
{
    TVX_API_CALL("MFnComponentListData::remove");
    auto* data = listOf(*this);
    if (!data)
        return api::notAttached();
    if (index >= data->values.size())
        return api::failure(api::StatusText::noElementAtIndex);
    data->values.erase(data->values.begin() + static_cast<std::ptrdiff_t>(index));
    return MS::kSuccess;
}

MStatus MFnComponentListData::clear()
{
    TVX_API_CALL("MFnComponentListData::clear");
    auto* data = listOf(*this);
    if (!data)
        return api::notAttached();
    data->values.clear();
    return MS::kSuccess;
}

MObject MFnComponentListData::create(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnComponentListData::create", ReturnStatus, MObject());
    const engine::Ref<engine::ComponentListData> data(new engine::ComponentListData);
    return api::createData(*this, data, ReturnStatus);
}
