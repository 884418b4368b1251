// MObject: a handle on something of the scene.
#pragma once

#include <maya/MFn.h>
#include <maya/MTypes.h>
#include <maya/tvxEngine.h>

/// A handle on a node, an attribute, a piece of data or a component. Copies refer to the same thing. The
/// handle keeps the thing's memory, not the thing itself: a node may be deleted while handles on it exist;
/// every call made with such a handle fails.
class OPENMAYA_EXPORT MObject
{
public:
    /// A handle on nothing.
    MObject();
    MObject(const MObject& other);
    ~MObject();

    MObject& operator=(const MObject& other);

    /// Whether a function set of this type, or of a type derived from it, can be attached. Asks for the
    /// object's own kind and its bases, not for shapes below it.
    bool hasFn(MFn::Type fs) const;

    /// Whether the handle is on nothing.
    bool isNull() const;

    /// The most special type of the object; kInvalid for a null handle.
    MFn::Type apiType() const;

    /// The name of apiType() as it stands in MFn::Type, with static lifetime.
    const char* apiTypeStr() const;

    /// Whether both are handles on the same thing.
    bool operator==(const MObject& other) const;
    bool operator!=(const MObject& other) const;

    static MObject kNullObj; ///< a handle on nothing

private:
    friend class tvxAccess;

    tvxhost::engine::Object* object; ///< counted; null for a handle on nothing
    void* reserved;
};
