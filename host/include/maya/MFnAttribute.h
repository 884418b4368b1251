// MFnAttribute: what all attributes have.
#pragma once

#include <maya/MFn.h>
#include <maya/MFnBase.h>
#include <maya/MFnData.h>
#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MTypes.h>

class MStringArray;
class MTypeId;

/// Function set for attributes of every type: names and flags. A new attribute is readable, writable,
/// connectable, storable and cached, index matters; everything else is off. Flags are set before the
/// attribute is added to its node type.
class OPENMAYA_EXPORT MFnAttribute : public MFnBase
{
public:
    /// What a destination plug does when it loses its source.
    enum DisconnectBehavior
    {
        kDelete = 0,
        kReset = 1,
        kNothing = 2,
    };

    /// Attached to nothing.
    MFnAttribute() : ca() {}

    /// Attached to an attribute.
    MFnAttribute(MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);

    MFnAttribute(const MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);

    ~MFnAttribute() override;

    MFn::Type type() const override;

    /// Whether its plugs can be the source of a connection.
    bool isReadable(MStatus* ReturnStatus = nullptr) const;

    /// Whether its plugs can be set and be the destination of a connection.
    bool isWritable(MStatus* ReturnStatus = nullptr) const;

    /// Whether its plugs can be connected at all.
    bool isConnectable(MStatus* ReturnStatus = nullptr) const;

    /// Whether its value is written to scenes.
    bool isStorable(MStatus* ReturnStatus = nullptr) const;

    /// Whether its value is kept in the data block.
    bool isCached(MStatus* ReturnStatus = nullptr) const;

    /// Whether its plugs have elements.
    bool isArray(MStatus* ReturnStatus = nullptr) const;

    /// Whether connections name the index of an element; when not, the next free one can be asked for.
    bool indexMatters(MStatus* ReturnStatus = nullptr) const;

    /// Whether it can be animated in the user interface.
    bool isKeyable(MStatus* ReturnStatus = nullptr) const;

    /// Whether it shows in the channel box without being keyable.
    bool isChannelBoxFlagSet(MStatus* ReturnStatus = nullptr) const;

    /// Whether the user interface leaves it out.
    bool isHidden(MStatus* ReturnStatus = nullptr) const;

    /// Whether the user interface shows its three numbers as a colour.
    bool isUsedAsColor(MStatus* ReturnStatus = nullptr) const;

    /// Whether an evaluation may leave this input unused.
    bool isIndeterminant(MStatus* ReturnStatus = nullptr) const;

    /// Whether it overrides what a shading node samples.
    bool isRenderSource(MStatus* ReturnStatus = nullptr) const;

    /// Whether it was added to one node, or to all nodes of a type, after the type was registered.
    bool isDynamic(MStatus* ReturnStatus = nullptr) const;
    bool isExtension(MStatus* ReturnStatus = nullptr) const;

    /// Whether its value depends on the node's place in the scene.
    bool isWorldSpace(MStatus* ReturnStatus = nullptr) const;
    bool isAffectsWorldSpace(MStatus* ReturnStatus = nullptr) const;

    /// Whether its text is the name of a file.
    bool isUsedAsFilename(MStatus* ReturnStatus = nullptr) const;

    /// Whether a change redraws the viewport.
    bool affectsAppearance(MStatus* ReturnStatus = nullptr) const;

    /// What happens to a plug when its source goes: its element is deleted, its value is reset, or nothing.
    DisconnectBehavior disconnectBehavior(MStatus* ReturnStatus = nullptr) const;

    /// Whether arrays are written through an MArrayDataBuilder.
    bool usesArrayDataBuilder(MStatus* ReturnStatus = nullptr) const;

    /// Whether the node keeps the value itself and hands it out in getInternalValueInContext().
    bool internal(MStatus* ReturnStatus = nullptr) const;

    /// Set the flags named above.
    MStatus setReadable(bool state);
    MStatus setWritable(bool state);
    MStatus setConnectable(bool state);
    MStatus setStorable(bool state);
    MStatus setCached(bool state);
    MStatus setArray(bool state);
    MStatus setIndexMatters(bool state);
    MStatus setKeyable(bool state);
    MStatus setChannelBox(bool state);
    MStatus setHidden(bool state);
    MStatus setUsedAsColor(bool state);
    MStatus setIndeterminant(bool state);
    MStatus setRenderSource(bool state);
    MStatus setWorldSpace(bool state);
    MStatus setAffectsWorldSpace(bool state);
    MStatus setUsedAsFilename(bool state);
    MStatus setAffectsAppearance(bool state);
    MStatus setDisconnectBehavior(DisconnectBehavior behavior);
    MStatus setUsesArrayDataBuilder(bool state);
    MStatus setInternal(bool state);

    /// The name that the user interface shows instead of the one made of the long name.
    MStatus setNiceNameOverride(const MString& localizedName);

    /// Whether plugs of this attribute can take such data from a connection.
    bool accepts(MFnData::Type type, MStatus* ReturnStatus = nullptr) const;
    bool accepts(const MTypeId& id, MStatus* ReturnStatus = nullptr) const;

    /// The compound attribute that this is a child of; a null object and kNotFound when there is none.
    MObject parent(MStatus* ReturnStatus = nullptr) const;

    /// The long and the short name.
    MString name(MStatus* ReturnStatus = nullptr) const;
    MString shortName(MStatus* ReturnStatus = nullptr) const;

    /// The `addAttr` command that makes this attribute.
    MString getAddAttrCmd(bool useLongName = false, MStatus* status = nullptr) const;

    /// Categories: plain names that attributes can be searched by.
    MStatus addToCategory(const MString& category);
    MStatus removeFromCategory(const MString& category);
    bool hasCategory(const MString& category) const;
    MStatus getCategories(MStringArray& ReturnStatus) const;

    /// The name of this class.
    static const char* className();

protected:
    void setPtr(MPtrBase*);

    void* ca[4];

private:
    bool objectChanged(MFn::Type type, MStatus* ReturnStatus) override;

    friend class tvxAccess;
};
