// MFnMessageAttribute: attributes without a value, for connections that only say what belongs together.
#include <maya/MFnMessageAttribute.h>

#include "support/attributeSets.h"

using namespace tvxhost::api;
using tvxhost::engine::Attribute;
using tvxhost::engine::AttributeKind;

TVX_FUNCTION_SET(MFnMessageAttribute, MFn::kMessageAttribute)

MObject MFnMessageAttribute::create(const MString& fullName, const MString& briefName, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnMessageAttribute::create", ReturnStatus, MObject());
    return adoptAttribute(
        *this, new Attribute(AttributeKind::message, tvxAccess::text(fullName), tvxAccess::text(briefName)),
        ReturnStatus);
}
