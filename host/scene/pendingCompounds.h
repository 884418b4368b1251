// PendingCompounds: attributes that are declared child by child until they are whole.
#pragma once

#include "attributeDeclaration.h"

#include "engine/node.h"

#include <memory>
#include <vector>

namespace tvxhost::scene {

/// Takes declarations in the order they are made and adds each attribute to its node once all its children
/// have been declared.
class PendingCompounds
{
public:
    /// notFound when the parent is no compound under way, nameTaken when the node has such an attribute.
    engine::Outcome declare(engine::Node& node, const AttributeDeclaration& declaration);
    /// Compounds whose children did not all come: forgotten, their names returned.
    std::vector<std::string> abandon();
    bool empty() const { return m_waiting.empty(); }

private:
    /// A compound and how many children it (or a compound below it) still waits for.
    struct Waiting
    {
        engine::Ref<engine::Node> node;
        engine::Ref<engine::Attribute> root;
        struct Gap
        {
            engine::Attribute* compound = nullptr;
            int missing = 0;
        };
        std::vector<Gap> gaps;
    };

    engine::Outcome begin(engine::Node& node, const AttributeDeclaration& declaration);
    engine::Outcome addChild(engine::Node& node, const AttributeDeclaration& declaration);

    std::vector<Waiting> m_waiting;
};

} // namespace tvxhost::scene
