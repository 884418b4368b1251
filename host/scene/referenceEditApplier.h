// EditApplier: does to the nodes of a reference what its edits say.
#pragma once

#include "attributeDeclaration.h"
#include "pendingCompounds.h"

#include "engine/reference.h"
#include "engine/scene.h"

#include <string>
#include <vector>

namespace tvxhost::scene {

/// Applies edits one after the other.
class EditApplier
{
public:
    /// What edits set is noted with the reference. Both outlive the applier.
    EditApplier(engine::Scene& scene, engine::Reference& reference) : m_scene(scene), m_reference(reference)
    {
    }

    /// False when it could not be applied, or cannot be seen in the nodes afterwards: it is then to be kept.
    bool apply(const engine::ReferenceEdit& edit);

private:
    engine::Node* nodeNamed(const std::string& name) const;
    bool parent(const std::string& childName, const std::string& parentName);
    bool addAttribute(const engine::ReferenceEdit& edit);
    bool setAttribute(const engine::ReferenceEdit& edit);
    bool lock(const engine::ReferenceEdit& edit);
    void deleteAttribute(const engine::ReferenceEdit& edit);
    bool disconnect(const std::string& sourceName, const std::string& destinationName);
    bool connect(const engine::ReferenceEdit& edit);
    bool link(const std::vector<std::string>& words);
    bool connectInside(const std::vector<std::string>& words);
    bool passOn(const engine::Plug& source, const engine::Plug& placeholder);
    bool join(const engine::Plug& source, const engine::Plug& destination);

    engine::Scene& m_scene;
    engine::Reference& m_reference;
    PendingCompounds m_compounds;
    mel::CommandSpec m_addAttr = addAttrSpec();
};

} // namespace tvxhost::scene
