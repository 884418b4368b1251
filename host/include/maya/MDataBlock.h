// MDataBlock: the values of a node during one call.
#pragma once

#include <maya/MArrayDataHandle.h>
#include <maya/MDGContext.h>
#include <maya/MDataHandle.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>
#include <maya/tvxEngine.h>

class MObject;
class MPlug;

/// The values of a node's attributes, for the length of one call of `compute` or of another function that
/// receives it. Failures: kInvalidParameter for an attribute that the node lacks; the handle then reads as
/// zero.
class OPENMAYA_EXPORT MDataBlock
{
public:
    virtual ~MDataBlock();

    /// A handle for reading: what the value depends on is evaluated first.
    MDataHandle inputValue(const MPlug& plug, MStatus* ReturnStatus = nullptr);
    MDataHandle inputValue(const MObject& attribute, MStatus* ReturnStatus = nullptr);

    /// A handle for writing: nothing is evaluated.
    MDataHandle outputValue(const MPlug& plug, MStatus* ReturnStatus = nullptr);
    MDataHandle outputValue(const MObject& attribute, MStatus* ReturnStatus = nullptr);

    /// The same for the elements of an array.
    MArrayDataHandle inputArrayValue(const MPlug& plug, MStatus* ReturnStatus = nullptr);
    MArrayDataHandle inputArrayValue(const MObject& attribute, MStatus* ReturnStatus = nullptr);
    MArrayDataHandle outputArrayValue(const MPlug& plug, MStatus* ReturnStatus = nullptr);
    MArrayDataHandle outputArrayValue(const MObject& attribute, MStatus* ReturnStatus = nullptr);

    /// Marks a value as computed; for a compound its children too.
    MStatus setClean(const MPlug& plug);
    MStatus setClean(const MObject& attribute);

    /// Whether the value is computed.
    bool isClean(const MPlug& plug);
    bool isClean(const MObject& attribute, MStatus* ReturnStatus = nullptr);

    /// The context of the evaluation.
    MDGContext context(MStatus* ReturnStatus = nullptr);
    MStatus setContext(const MDGContext& ctx);

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;

    explicit MDataBlock(tvxhost::api::DataBlock* callBlock) : block(callBlock) {}

    tvxhost::api::DataBlock* block; ///< not owned: belongs to the call
};
