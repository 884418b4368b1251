// The node type whose attributes a plug-in is declaring right now.
#pragma once

namespace tvxhost::engine {
class NodeType;
}

namespace tvxhost::api {

/// While it lives, MPxNode::addAttribute and attributeAffects work on a type. Registrations do not nest.
class RegisteringType
{
public:
    explicit RegisteringType(engine::NodeType& type) { s_current = &type; }
    ~RegisteringType() { s_current = nullptr; }
    RegisteringType(const RegisteringType&) = delete;
    RegisteringType& operator=(const RegisteringType&) = delete;

    /// Null outside a registration.
    static engine::NodeType* current() { return s_current; }

private:
    static inline engine::NodeType* s_current = nullptr;
};

} // namespace tvxhost::api
