// MObjectHandle: a handle that knows whether its node still exists.
#pragma once

#include <maya/MObject.h>
#include <maya/MTypes.h>

/// A handle on a node that can tell whether the node has been deleted.
class OPENMAYA_EXPORT MObjectHandle
{
public:
    MObjectHandle();
    MObjectHandle(const MObject& object);
    MObjectHandle(const MObjectHandle& handle);
    ~MObjectHandle();

    MObjectHandle& operator=(const MObject& object);
    MObjectHandle& operator=(const MObjectHandle& other);

    /// The object; a null object once it is gone.
    MObject object() const;

    /// The object by reference, valid as long as this handle; not checked.
    const MObject& objectRef() const;

    /// A number for hash tables: equal for handles on the same object.
    unsigned int hashCode() const;

    /// Whether the object exists in the scene now: not deleted, or brought back by undo.
    bool isValid() const;

    /// Whether the object's memory is still there, deleted or not.
    bool isAlive() const;

    bool operator==(const MObject& object) const;
    bool operator==(const MObjectHandle& object) const;
    bool operator!=(const MObject& object) const;
    bool operator!=(const MObjectHandle& object) const;

private:
    friend class tvxAccess;

    MObject target;
    void* reserved;
};
