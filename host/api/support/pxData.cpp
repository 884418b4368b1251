// PxData: a plug-in's MPxData as the engine keeps it in attributes.
#include "pxData.h"

#include "access.h"
#include "arguments.h"

#include <maya/MArgList.h>

#include <sstream>

namespace tvxhost::api {

using engine::Expected;
using engine::Outcome;
using engine::Reason;

PxData::PxData(std::shared_ptr<engine::PluginDataType> type, std::unique_ptr<MPxData> object)
    : PluginData(std::move(type)), m_object(std::move(object))
{
    tvxAccess::tie(*m_object, *this);
}

PxData::~PxData() = default;

Outcome PxData::copyFrom(const engine::PluginData& original)
{
    const auto* other = dynamic_cast<const PxData*>(&original);
    if (!other || !other->m_object)
        return {Reason::doesNotExist, "There is no data to copy"};
    m_object->copy(*other->m_object);
    return {};
}

Expected<std::string> PxData::write() const
{
    std::ostringstream out;
    if (!m_object->writeASCII(out))
        return {Reason::failed, "The data of type '" + dataType().name + "' cannot be written"};
    return out.str();
}

Outcome PxData::take(const std::vector<engine::ScriptRunner::Result>& values)
{
    MArgList list;
    tvxAccess::arguments(list) = argumentsOf(values);
    unsigned int end = 0;
    if (!m_object->readASCII(list, end))
        return {Reason::typeMismatch, "Error reading the values of type '" + dataType().name + "'"};
    return {};
}

void PxData::dropObject()
{
    m_object.reset();
}

engine::Ref<PxData> holderOf(MPxData* object)
{
    if (!object)
        return {};
    if (PxData* holder = tvxAccess::data(*object))
        return engine::Ref<PxData>(holder);
    const auto type = engine::Scene::current().dataTypes().find(object->typeId().id());
    return type ? engine::Ref<PxData>(new PxData(type, std::unique_ptr<MPxData>(object)))
                : engine::Ref<PxData>();
}

} // namespace tvxhost::api
