// MFnBase: what all function sets share.
#include <maya/MFnBase.h>

#include "support/apiTypes.h"
#include "support/functionSet.h"

#include "engine/scene.h"

using tvxhost::api::anyNodeOf;
using tvxhost::api::attachTo;
using tvxhost::api::failure;
using tvxhost::api::notAttached;
using tvxhost::api::StatusText;
using tvxhost::engine::Object;

namespace tvxhost::api {

MStatus attachTo(MFnBase& set, const MObject& object)
{
    tvxAccess::attach(set, nullptr);
    const Object* target = tvxAccess::object(object);
    if (!target)
        return failure(StatusText::nullArgument);
    if (!target->isAlive())
        return failure(StatusText::objectDoesNotExist);
    tvxAccess::attach(set, target);
    MStatus status;
    if (!tvxAccess::objectChanged(set, set.type(), &status))
        tvxAccess::attach(set, nullptr);
    return status;
}

} // namespace tvxhost::api

MFnBase::MFnBase() : f_ptr(nullptr), f_constptr(nullptr), fIsReferenceCounted(false) {}

MFnBase::~MFnBase()
{
    tvxAccess::attach(*this, nullptr);
}

MFn::Type MFnBase::type() const
{
    return MFn::kBase;
}

const char* MFnBase::className()
{
    return "MFnBase";
}

bool MFnBase::hasObj(MFn::Type objectType) const
{
    return tvxhost::api::typeHasFn(objectType, type());
}

bool MFnBase::hasObj(const MObject& object) const
{
    return object.hasFn(type());
}

MObject MFnBase::object(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnBase::object", ReturnStatus, MObject());
    const Object* attached = tvxAccess::attached(*this);
    if (!tvxhost::api::requireAttached(attached && attached->isAlive() ? attached : nullptr, ReturnStatus))
        return MObject();
    return tvxAccess::handle(attached);
}

MStatus MFnBase::setObject(MObject& object)
{
    TVX_API_CALL("MFnBase::setObject");
    return attachTo(*this, object);
}

MStatus MFnBase::setObject(const MObject& object)
{
    TVX_API_CALL("MFnBase::setObject");
    return attachTo(*this, object);
}

void MFnBase::setPtr(MPtrBase* pointer)
{
    tvxAccess::attach(*this, reinterpret_cast<Object*>(pointer));
}

void MFnBase::setPtr(const MPtrBase* pointer)
{
    tvxAccess::attach(*this, reinterpret_cast<const Object*>(pointer));
}

void MFnBase::setPtrNull()
{
    tvxAccess::attach(*this, nullptr);
}

bool MFnBase::objectChanged(MFn::Type type, MStatus* ReturnStatus)
{
    const bool fits = tvxhost::api::hasFn(tvxAccess::attached(*this), type);
    tvxhost::api::give(ReturnStatus, fits ? MStatus() : failure(StatusText::objectIsIncompatible));
    return fits;
}
