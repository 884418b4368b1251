// MObjectHandle: a handle that knows whether its node still exists.
#include <maya/MObjectHandle.h>

#include "support/access.h"

#include <functional>

MObjectHandle::MObjectHandle() : reserved(nullptr) {}

MObjectHandle::MObjectHandle(const MObject& object) : target(object), reserved(nullptr) {}

MObjectHandle::MObjectHandle(const MObjectHandle& handle) : target(handle.target), reserved(nullptr) {}

MObjectHandle::~MObjectHandle() = default;

MObjectHandle& MObjectHandle::operator=(const MObject& object)
{
    target = object;
    return *this;
}

MObjectHandle& MObjectHandle::operator=(const MObjectHandle& other)
{
    target = other.target;
    return *this;
}

MObject MObjectHandle::object() const
{
    return isValid() ? target : MObject::kNullObj;
}

const MObject& MObjectHandle::objectRef() const
{
    return isValid() ? target : MObject::kNullObj;
}

unsigned int MObjectHandle::hashCode() const
{
    const std::size_t hash = std::hash<const void*>()(tvxAccess::object(target));
    return static_cast<unsigned int>(hash ^ (hash >> 32));
}

// There is no undo queue to hold deleted nodes, so what is alive is valid.
bool MObjectHandle::isAlive() const
{
    return isValid();
}

bool MObjectHandle::isValid() const
{
    const auto* object = tvxAccess::object(target);
    return object && object->isAlive();
}

bool MObjectHandle::operator==(const MObject& object) const
{
    return target == object;
}

bool MObjectHandle::operator==(const MObjectHandle& object) const
{
    return target == object.target;
}

bool MObjectHandle::operator!=(const MObject& object) const
{
    return target != object;
}

bool MObjectHandle::operator!=(const MObjectHandle& object) const
{
    return target != object.target;
}
