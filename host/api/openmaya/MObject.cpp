// MObject: a handle on something of the scene.
#include <maya/MObject.h>

#include "support/access.h"
#include "support/apiTypeNames.h"
#include "support/apiTypes.h"

using tvxhost::engine::Object;

MObject MObject::kNullObj;

MObject::MObject() : object(nullptr), reserved(nullptr) {}

MObject::MObject(const MObject& other) : object(other.object), reserved(nullptr)
{
    if (object)
        object->retain();
}

MObject::~MObject()
{
    if (object)
        object->release();
}

MObject& MObject::operator=(const MObject& other)
{
    tvxAccess::setObject(*this, other.object);
    return *this;
}

bool MObject::isNull() const
{
    return !object;
}

bool MObject::hasFn(MFn::Type fs) const
{
    return object && object->isAlive() && tvxhost::api::hasFn(object, fs);
}

MFn::Type MObject::apiType() const
{
    return object && object->isAlive() ? tvxhost::api::apiTypeOf(object) : MFn::kInvalid;
}

const char* MObject::apiTypeStr() const
{
    return tvxhost::api::apiTypeName(apiType());
}

bool MObject::operator==(const MObject& other) const
{
    return object == other.object;
}

bool MObject::operator!=(const MObject& other) const
{
    return object != other.object;
}
