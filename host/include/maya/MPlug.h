// MPlug: an attribute of a node, to be read, set and connected.
#pragma once

#include <maya/MAngle.h>
#include <maya/MDGContext.h>
#include <maya/MDataHandle.h>
#include <maya/MDistance.h>
#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MTime.h>
#include <maya/MTypes.h>
#include <maya/tvxEngine.h>

class MDataBlock;
class MIntArray;
class MPlugArray;
class MPxData;
class MStringArray;

/// A plug names an attribute of a node, with the indices of elements where it stands inside arrays. Copies
/// name the same plug. A plug holds no reference to its node: after the node was deleted, calls fail.
///
/// Reading evaluates: an incoming connection or a dirty output is computed first. The wrong kind of value
/// reads as 0 or "" with kFailure; so does a null plug. Setting a locked or connected plug fails with
/// kFailure and changes nothing; it cannot be undone.
class OPENMAYA_EXPORT MPlug
{
public:
    enum MValueSelector
    {
        kAll = 0,
        kNonDefault = 1,
        kChanged = 2,
        kLastAttrSelector = 3,
    };

    enum FreeToChangeState
    {
        kFreeToChange = 0,
        kNotFreeToChange = 1,
        kChildrenNotFreeToChange = 2,
    };

    /// A null plug.
    MPlug();
    MPlug(const MPlug& in);

    /// The plug of an attribute on a node. Not checked: the node may lack the attribute.
    MPlug(const MObject& node, const MObject& attribute);

    virtual ~MPlug();

    MPlug& operator=(const MPlug& other);

    /// Makes this the plug of another attribute of the same node.
    MStatus setAttribute(MObject& attribute);

    /// Its attribute, and its node; a null object and a failure for a null plug.
    MObject attribute(MStatus* ReturnStatus = nullptr) const;
    MObject node(MStatus* ReturnStatus = nullptr) const;

    /// The name as in "node.attribute[2]", with long names.
    MString name(MStatus* ReturnStatus = nullptr) const;

    /// The name put together as asked for; the short attribute name by default.
    MString partialName(bool includeNodeName = false, bool includeNonMandatoryIndices = false,
                        bool includeInstancedIndices = false, bool useAlias = false,
                        bool useFullAttributePath = false, bool useLongNames = false,
                        MStatus* ReturnStatus = nullptr) const;

    /// The `setAttr` commands that restore the values of this plug and of all below it.
    MStatus getSetAttrCmds(MStringArray& cmds, MValueSelector valueSelector = kAll,
                           bool useLongNames = false);

    /// Whether this is a plug that the graph itself holds, because it is connected or otherwise recorded.
    bool isNetworked(MStatus* ReturnStatus = nullptr) const;

    /// What the plug is.
    bool isArray(MStatus* ReturnStatus = nullptr) const;
    bool isElement(MStatus* ReturnStatus = nullptr) const;
    bool isCompound(MStatus* ReturnStatus = nullptr) const;
    bool isChild(MStatus* ReturnStatus = nullptr) const;
    bool isProcedural(MStatus* ReturnStatus = nullptr) const;

    /// The index of this element, -1 when it is not determined; a failure when the plug is no element.
    unsigned int logicalIndex(MStatus* ReturnStatus = nullptr) const;

    /// Sets the index of an array that this plug is inside of.
    MStatus selectAncestorLogicalIndex(unsigned int index, const MObject& attribute = MObject::kNullObj);

    /// The indices of the elements that exist, ascending; returns how many.
    unsigned int getExistingArrayAttributeIndices(MIntArray& indices, MStatus* ReturnStatus = nullptr);

    /// How many elements exist: those that were set or asked for. evaluateNumElements() evaluates the array
    /// first.
    unsigned int numElements(MStatus* ReturnStatus = nullptr) const;
    unsigned int evaluateNumElements(MStatus* ReturnStatus = nullptr);

    /// How many children a compound has.
    unsigned int numChildren(MStatus* ReturnStatus = nullptr) const;

    /// How many elements, or children, have a connection.
    unsigned int numConnectedElements(MStatus* ReturnStatus = nullptr) const;
    unsigned int numConnectedChildren(MStatus* ReturnStatus = nullptr) const;

    /// A child of a compound, by attribute or by index; a null plug and a failure when there is none.
    MPlug child(MObject& attr, MStatus* ReturnStatus = nullptr) const;
    MPlug child(unsigned int index, MStatus* ReturnStatus = nullptr) const;

    /// The compound that this is a child of; a null plug and a failure when there is none.
    MPlug parent(MStatus* ReturnStatus = nullptr) const;

    /// The array that this is an element of; a null plug and a failure when it is none.
    MPlug array(MStatus* ReturnStatus = nullptr) const;

    /// The element with this index, made when there is none yet.
    MPlug elementByLogicalIndex(unsigned int logicalIndex, MStatus* ReturnStatus = nullptr) const;

    /// The n-th existing element, in ascending order of index; a null plug and a failure beyond the last.
    MPlug elementByPhysicalIndex(unsigned int physicalIndex, MStatus* ReturnStatus = nullptr) const;

    /// The n-th element that has a connection.
    MPlug connectionByPhysicalIndex(unsigned int physicalIndex, MStatus* ReturnStatus = nullptr) const;

    /// Fills the array with the plugs at the other ends: the source when this is a destination (`asDst`), the
    /// destinations when this is a source (`asSrc`). True when there is any connection, whatever the flags
    /// ask for.
    bool connectedTo(MPlugArray& array, bool asDst, bool asSrc, MStatus* ReturnStatus = nullptr) const;

    /// Whether there is any connection.
    bool isConnected(MStatus* ReturnStatus = nullptr) const;

    /// Flags of this plug, where they differ from those of the attribute.
    bool isKeyable(MStatus* ReturnStatus = nullptr) const;
    MStatus setKeyable(bool keyable);
    bool isLocked(MStatus* ReturnStatus = nullptr) const;
    MStatus setLocked(bool locked);
    bool isChannelBoxFlagSet(MStatus* ReturnStatus = nullptr) const;
    MStatus setChannelBox(bool channelBox);
    bool isCachingFlagSet(MStatus* ReturnStatus = nullptr) const;
    MStatus setCaching(bool caching);

    /// Whether the plug names no attribute.
    bool isNull(MStatus* ReturnStatus = nullptr) const;

    /// The name in a form for messages.
    MString info(MStatus* ReturnStatus = nullptr) const;

    /// Whether an incoming connection comes from a referenced file.
    bool isFromReferencedFile(MStatus* ReturnStatus = nullptr) const;

    /// Whether the attribute was added to the node after it was made.
    bool isDynamic(MStatus* ReturnStatus = nullptr) const;

    /// Whether a change is of no interest to renderers.
    bool isIgnoredWhenRendering(MStatus* ReturnStatus = nullptr) const;

    /// Whether the plug can be set: it and, as asked for, those above and below it are neither locked nor
    /// connected.
    FreeToChangeState isFreeToChange(bool checkParents = true, bool checkChildren = true,
                                     MStatus* ReturnStatus = nullptr) const;

    /// For Maya itself: a handle on the plug's data, to be given back to destructHandle().
    MDataHandle constructHandle(MDataBlock&) const;
    void destructHandle(MDataHandle&) const;

    /// Reads the value, in a context other than the normal one without touching the stored value.
    MStatus getValue(MObject& val, MDGContext& ctx = MDGContext::fsNormal) const;
    MStatus getValue(MDataHandle& handle, MDGContext& ctx = MDGContext::fsNormal) const;
    MStatus getValue(double& value, MDGContext& ctx = MDGContext::fsNormal) const;
    MStatus getValue(float& value, MDGContext& ctx = MDGContext::fsNormal) const;
    MStatus getValue(MInt64& value, MDGContext& ctx = MDGContext::fsNormal) const;
    MStatus getValue(int& value, MDGContext& ctx = MDGContext::fsNormal) const;
    MStatus getValue(short& value, MDGContext& ctx = MDGContext::fsNormal) const;
    MStatus getValue(bool& value, MDGContext& ctx = MDGContext::fsNormal) const;
    MStatus getValue(MDistance& value, MDGContext& ctx = MDGContext::fsNormal) const;
    MStatus getValue(MAngle& value, MDGContext& ctx = MDGContext::fsNormal) const;
    MStatus getValue(MTime& value, MDGContext& ctx = MDGContext::fsNormal) const;
    MStatus getValue(char& value, MDGContext& ctx = MDGContext::fsNormal) const;
    MStatus getValue(MString& value, MDGContext& ctx = MDGContext::fsNormal) const;

    /// Sets the value; the data of an object are copied.
    MStatus setValue(MObject& val);
    MStatus setValue(MDataHandle& handle);
    MStatus setValue(double value);
    MStatus setValue(float value);
    MStatus setValue(MInt64 value);
    MStatus setValue(int value);
    MStatus setValue(short value);
    MStatus setValue(bool value);
    MStatus setValue(MDistance& value);
    MStatus setValue(MAngle& value);
    MStatus setValue(MTime& value);
    MStatus setValue(char value);
    MStatus setValue(const MString& value);
    MStatus setValue(const char* value);

    /// A plug-in's own data, which the host does not keep: kNotImplemented.
    MStatus setValue(MPxData* data);

    /// The plug's own data as an object, not a copy.
    MObject asMObject(MDGContext& ctx = MDGContext::fsNormal, MStatus* ReturnStatus = nullptr) const;
    MDataHandle asMDataHandle(MDGContext& ctx = MDGContext::fsNormal, MStatus* ReturnStatus = nullptr) const;

    /// The value as a number; numbers convert as in C. Angles are in radians, lengths in centimetres, times
    /// in the unit of the user interface.
    double asDouble(MDGContext& ctx = MDGContext::fsNormal, MStatus* ReturnStatus = nullptr) const;
    float asFloat(MDGContext& ctx = MDGContext::fsNormal, MStatus* ReturnStatus = nullptr) const;
    MInt64 asInt64(MDGContext& ctx = MDGContext::fsNormal, MStatus* ReturnStatus = nullptr) const;
    int asInt(MDGContext& ctx = MDGContext::fsNormal, MStatus* ReturnStatus = nullptr) const;
    short asShort(MDGContext& ctx = MDGContext::fsNormal, MStatus* ReturnStatus = nullptr) const;
    bool asBool(MDGContext& ctx = MDGContext::fsNormal, MStatus* ReturnStatus = nullptr) const;
    MDistance asMDistance(MDGContext& ctx = MDGContext::fsNormal, MStatus* ReturnStatus = nullptr) const;
    MAngle asMAngle(MDGContext& ctx = MDGContext::fsNormal, MStatus* ReturnStatus = nullptr) const;
    MTime asMTime(MDGContext& ctx = MDGContext::fsNormal, MStatus* ReturnStatus = nullptr) const;
    char asChar(MDGContext& ctx = MDGContext::fsNormal, MStatus* ReturnStatus = nullptr) const;
    MString asString(MDGContext& ctx = MDGContext::fsNormal, MStatus* ReturnStatus = nullptr) const;

    /// As setValue.
    MStatus setMObject(MObject& val);
    MStatus setMPxData(MPxData* data);
    MStatus setMDataHandle(MDataHandle& handle);
    MStatus setDouble(double value);
    MStatus setFloat(float value);
    MStatus setInt64(MInt64 value);
    MStatus setInt(int value);
    MStatus setShort(short value);
    MStatus setBool(bool value);
    MStatus setMDistance(MDistance& value);
    MStatus setMAngle(MAngle& value);
    MStatus setMTime(MTime& value);
    MStatus setChar(char value);
    MStatus setString(const MString& value);

    /// An existing element by position, or a child by attribute.
    MPlug operator[](unsigned int physicalIndex) const;
    MPlug operator[](MObject& attr) const;

    /// Whether both name the same attribute of the same node with the same indices; with an object: whether
    /// it is the plug's attribute.
    bool operator==(const MPlug& other) const;
    bool operator==(const MObject& other) const;
    bool operator!=(const MPlug& other) const;
    bool operator!=(const MObject& other) const;

    /// Makes room for so many elements, or throws away those with higher indices.
    MStatus setNumElements(unsigned int value);

    /// The attribute.
    operator MObject() const;

    /// Whether this is a null plug.
    bool operator!() const;

    /// Whether the plug is the source, or the destination, of a connection.
    bool isSource(MStatus* ReturnStatus = nullptr) const;
    bool isDestination(MStatus* ReturnStatus = nullptr) const;

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;

    tvxhost::engine::Plug* plug; ///< owned; null for a null plug
    void* reserved;
};
