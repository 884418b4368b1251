// PxBehaviour: a plug-in's MPxNode as the engine calls it.
#include "pxBehaviour.h"

#include "access.h"

#include <maya/MPlugArray.h>

namespace tvxhost::api {

using engine::Computed;
using engine::Plug;

PxBehaviour::PxBehaviour(engine::Node& node, std::unique_ptr<MPxNode> object)
    : m_block{&node}, m_object(std::move(object))
{
    tvxAccess::tie(*m_object, node, *this);
}

PxBehaviour::~PxBehaviour() = default;

void PxBehaviour::postConstructor()
{
    m_object->postConstructor();
}

Computed PxBehaviour::compute(const Plug& plug)
{
    const LentPlug lent(plug);
    MDataBlock block = tvxAccess::dataBlock(m_block);
    const MStatus status = m_object->compute(lent.get(), block);
    if (status)
        return Computed::done;
    return status == MS::kUnknownParameter ? Computed::unknown : Computed::failed;
}

std::optional<bool> PxBehaviour::shouldSave(const Plug& plug)
{
    const LentPlug lent(plug);
    bool isSaving = false;
    return m_object->shouldSave(lent.get(), isSaving) ? std::optional<bool>(isSaving) : std::nullopt;
}

void PxBehaviour::setDependentsDirty(const Plug& plug, std::vector<Plug>& dirty)
{
    const LentPlug lent(plug);
    MPlugArray plugs;
    m_object->setDependentsDirty(lent.get(), plugs);
    for (unsigned int i = 0; i < plugs.length(); ++i)
        dirty.push_back(tvxAccess::plug(plugs[i]));
}

std::optional<bool> PxBehaviour::legalConnection(const Plug& plug, const Plug& other, bool asSource)
{
    const LentPlug lent(plug);
    const LentPlug lentOther(other);
    bool isLegal = false;
    return m_object->legalConnection(lent.get(), lentOther.get(), asSource, isLegal)
               ? std::optional<bool>(isLegal)
               : std::nullopt;
}

void PxBehaviour::connectionMade(const Plug& plug, const Plug& other, bool asSource)
{
    const LentPlug lent(plug);
    const LentPlug lentOther(other);
    m_object->connectionMade(lent.get(), lentOther.get(), asSource);
}

void PxBehaviour::connectionBroken(const Plug& plug, const Plug& other, bool asSource)
{
    const LentPlug lent(plug);
    const LentPlug lentOther(other);
    m_object->connectionBroken(lent.get(), lentOther.get(), asSource);
}

void copyInternalData(engine::Node& original, engine::Node& copy)
{
    const auto objectOf = [](const engine::Node& node) {
        engine::NodeBehaviour* behaviour = node.behaviour();
        return behaviour ? static_cast<MPxNode*>(behaviour->apiObject()) : nullptr;
    };
    MPxNode* object = objectOf(copy);
    if (MPxNode* from = objectOf(original); object && from)
        object->copyInternalData(from);
}

} // namespace tvxhost::api
