// Members of function sets that read or write one attribute of the attached node.
#pragma once

#include "functionSet.h"

#include "engine/plug.h"

class MColor;

namespace tvxhost::api {

/// The plug of an attribute; doesNotExist when nothing is attached, notFound when the node lacks it.
engine::Expected<engine::Plug> memberPlug(const MFnBase& set, const char* attribute);

// `function` is the API function on whose behalf this is done ("Class::function"). Numbers are in the units
// in which attributes store them: centimetres and radians. What cannot be read is 0 or black.
double readMember(const MFnBase& set, const char* function, const char* attribute, MStatus* returnStatus);
MStatus writeMember(const MFnBase& set, const char* function, const char* attribute, double value);
MColor readColorMember(const MFnBase& set, const char* function, const char* attribute,
                       MStatus* returnStatus);
MStatus writeColorMember(const MFnBase& set, const char* function, const char* attribute,
                         const MColor& color);

} // namespace tvxhost::api

/// A getter and a setter of one number. `Argument` is the type of the setter's parameter.
#define TVX_NUMBER_MEMBER(Class, Type, getter, setter, Argument, attribute)                                  \
    Type Class::getter(MStatus* ReturnStatus) const                                                          \
    {                                                                                                        \
        return static_cast<Type>(                                                                            \
            ::tvxhost::api::readMember(*this, #Class "::" #getter, attribute, ReturnStatus));                \
    }                                                                                                        \
    MStatus Class::setter(Argument value)                                                                    \
    {                                                                                                        \
        return ::tvxhost::api::writeMember(*this, #Class "::" #setter, attribute,                            \
                                           static_cast<double>(value));                                      \
    }

/// A getter and a setter of an enumeration whose values are those of the attribute's fields.
#define TVX_ENUM_MEMBER(Class, Type, getter, setter, Argument, attribute)                                    \
    Type Class::getter(MStatus* ReturnStatus) const                                                          \
    {                                                                                                        \
        return static_cast<Type>(static_cast<int>(                                                           \
            ::tvxhost::api::readMember(*this, #Class "::" #getter, attribute, ReturnStatus)));               \
    }                                                                                                        \
    MStatus Class::setter(Argument value)                                                                    \
    {                                                                                                        \
        return ::tvxhost::api::writeMember(*this, #Class "::" #setter, attribute, static_cast<int>(value));  \
    }

/// A getter and a setter of a colour.
#define TVX_COLOR_MEMBER(Class, getter, setter, attribute)                                                   \
    MColor Class::getter(MStatus* ReturnStatus) const                                                        \
    {                                                                                                        \
        return ::tvxhost::api::readColorMember(*this, #Class "::" #getter, attribute, ReturnStatus);         \
    }                                                                                                        \
    MStatus Class::setter(const MColor& value)                                                               \
    {                                                                                                        \
        return ::tvxhost::api::writeColorMember(*this, #Class "::" #setter, attribute, value);               \
    }
