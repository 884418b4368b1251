// PxData: a plug-in's MPxData as the engine keeps it in attributes.
#pragma once

#include "engine/pluginData.h"

#include <maya/MPxData.h>

#include <memory>

namespace tvxhost::api {

/// Owns the plug-in's object of one piece of data and translates between the two.
class PxData final : public engine::PluginData
{
public:
    /// Ties both together.
    PxData(std::shared_ptr<engine::PluginDataType> type, std::unique_ptr<MPxData> object);
    ~PxData() override;

    /// Null once the plug-in is gone.
    MPxData* object() const { return m_object.get(); }

private:
    engine::Outcome copyFrom(const engine::PluginData& original) override;
    engine::Expected<std::string> write() const override;
    engine::Outcome take(const std::vector<engine::ScriptRunner::Result>& values) override;
    void dropObject() override;

    std::unique_ptr<MPxData> m_object;
};

/// The data object that a plug-in's object is in. One that the plug-in made with `new` is taken over; null
/// when its type is not registered, or for no object.
engine::Ref<PxData> holderOf(MPxData* object);

} // namespace tvxhost::api
