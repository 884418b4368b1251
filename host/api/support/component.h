// Component: a set of components of a shape, as an object that handles can hold.
#pragma once

#include "engine/object.h"
#include "handles.h"

#include <string>

namespace tvxhost::api {

/// Components under the name that selection lists and sets give them: "vtx[0:3]".
class Component final : public engine::Object
{
public:
    explicit Component(std::string components)
        : Object(engine::ObjectClass::component), text(std::move(components))
    {
    }
    const std::string text;
};

/// A handle on components; the null handle for none.
inline MObject componentHandle(const std::string& components)
{
    return components.empty() ? MObject() : tvxAccess::handle(new Component(components));
}

/// The components that a handle stands for; empty for a handle on nothing or on anything else.
inline std::string componentsOf(const MObject& handle)
{
    const engine::Object* object = tvxAccess::object(handle);
    return object && object->objectClass() == engine::ObjectClass::component
               ? static_cast<const Component*>(object)->text
               : std::string();
}

} // namespace tvxhost::api
