// What all function sets do alike: attach, refuse, and the members that each class spells out.
#pragma once

#include "apiCall.h"
#include "handles.h"

namespace tvxhost::api {

/// Attaches a set to what its type fits. A null object or one of another kind leaves it attached to nothing.
OPENMAYA_EXPORT MStatus attachTo(MFnBase& set, const MObject& object);

/// The status of a member that was called on a set without a living object.
inline MStatus notAttached()
{
    return failure(StatusText::objectDoesNotExist);
}

/// Success for a living object; else the status of a set that has none, written as well.
inline bool requireAttached(const void* object, MStatus* returnStatus)
{
    give(returnStatus, object ? MStatus() : notAttached());
    return object != nullptr;
}

} // namespace tvxhost::api

/// Type, class name and destructor of a function set.
#define TVX_FUNCTION_SET_IDENTITY(Class, kType)                                                              \
    Class::~Class() = default;                                                                               \
    MFn::Type Class::type() const                                                                            \
    {                                                                                                        \
        return kType;                                                                                        \
    }                                                                                                        \
    const char* Class::className()                                                                           \
    {                                                                                                        \
        return #Class;                                                                                       \
    }

/// The body of a constructor on an object.
#define TVX_CONSTRUCT_ON(Class, object, returnStatus)                                                        \
    TVX_API_CONSTRUCTION(#Class "::" #Class, returnStatus);                                                  \
    ::tvxhost::api::give(returnStatus, ::tvxhost::api::attachTo(*this, object))

/// The identity and the two constructors of a set whose only state is what it is attached to.
#define TVX_FUNCTION_SET(Class, kType)                                                                       \
    TVX_FUNCTION_SET_IDENTITY(Class, kType)                                                                  \
    Class::Class(MObject& object, MStatus* ReturnStatus)                                                     \
    {                                                                                                        \
        TVX_CONSTRUCT_ON(Class, object, ReturnStatus);                                                       \
    }                                                                                                        \
    Class::Class(const MObject& object, MStatus* ReturnStatus)                                               \
    {                                                                                                        \
        TVX_CONSTRUCT_ON(Class, object, ReturnStatus);                                                       \
    }
