// MFnBase: what all function sets share.
#pragma once

#include <maya/MFn.h>
#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>

class MPtrBase;

/// The default of the status in the constructors that function sets share: `MFnMesh mesh(object);` is as good
/// as asking for the status.
#define TVX_OPTIONAL_STATUS = nullptr

/// A function set: the functions that suit a type of object, attached to one object at a time. Attaching to
/// an object of another type fails with kInvalidParameter and leaves the set attached to nothing; members
/// called then fail with kFailure and give neutral values. A set cannot be copied.
class OPENMAYA_EXPORT MFnBase
{
public:
    virtual ~MFnBase();

    /// The type of this function set, not of the object.
    virtual MFn::Type type() const;

    /// Whether the set can be attached to an object of this type, or to this object.
    bool hasObj(MFn::Type type) const;
    bool hasObj(const MObject&) const;

    /// The object that the set is attached to; a null object and kFailure when there is none.
    MObject object(MStatus* ReturnStatus = nullptr) const;

    /// Attaches to another object. kInvalidParameter when the object is null or does not suit.
    virtual MStatus setObject(MObject& object);
    virtual MStatus setObject(const MObject& object);

    /// The name of this class.
    static const char* className();

protected:
    /// Attached to nothing.
    MFnBase();

    /// For Maya itself: what the set is attached to.
    void setPtr(MPtrBase*);
    void setPtr(const MPtrBase*);
    void setPtrNull();

    /// For Maya itself: called after the set was attached to another object.
    virtual bool objectChanged(MFn::Type type, MStatus* ReturnStatus);

    MPtrBase* f_ptr;            ///< what the set is attached to: counted, null for nothing
    const MPtrBase* f_constptr; ///< the same when it was attached to a constant object
    bool fIsReferenceCounted;   ///< whether the set counts as a holder of the object

private:
    friend class tvxAccess;

    MFnBase(const MFnBase&) = delete;
    MFnBase& operator=(const MFnBase&) = delete;
};
