// PxBehaviour: a plug-in's MPxNode as the engine calls it.
#pragma once

#include "dataBlockState.h"

#include "engine/node.h"

#include <maya/MPxNode.h>

#include <memory>

namespace tvxhost::api {

/// Owns the plug-in's object of one node and translates between the two.
class PxBehaviour final : public engine::NodeBehaviour
{
public:
    /// Ties both together: from here on every member of the object may be used.
    PxBehaviour(engine::Node& node, std::unique_ptr<MPxNode> object);
    ~PxBehaviour() override;

    void postConstructor() override;
    engine::Computed compute(const engine::Plug& plug) override;
    std::optional<bool> shouldSave(const engine::Plug& plug) override;
    void setDependentsDirty(const engine::Plug& plug, std::vector<engine::Plug>& dirty) override;
    std::optional<bool> legalConnection(const engine::Plug& plug, const engine::Plug& other,
                                        bool asSource) override;
    void connectionMade(const engine::Plug& plug, const engine::Plug& other, bool asSource) override;
    void connectionBroken(const engine::Plug& plug, const engine::Plug& other, bool asSource) override;
    void* apiObject() override { return m_object.get(); }

    DataBlock& block() { return m_block; }

private:
    DataBlock m_block;
    std::unique_ptr<MPxNode> m_object;
};

/// Has a plug-in's node take over what the one that it is a copy of keeps outside attributes.
OPENMAYA_EXPORT void copyInternalData(engine::Node& original, engine::Node& copy);

} // namespace tvxhost::api
