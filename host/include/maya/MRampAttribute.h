// MRampAttribute: ramps of numbers and of colours.
#pragma once

#include <maya/MDGContext.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>
#include <maya/tvxEngine.h>

class MColor;
class MColorArray;
class MFloatArray;
class MIntArray;
class MObject;
class MPlug;
class MString;

/// A plug that is a ramp: an array of entries with a position (from 0 to 1), a value or colour, and how it
/// leads to the next. Entries are told apart by their index in the array. Members fail with kInvalidParameter
/// on a plug that is no such ramp, and for an index without an entry.
class OPENMAYA_EXPORT MRampAttribute
{
public:
    /// How an entry leads to the next.
    enum MInterpolation
    {
        kNone = 0,
        kLinear = 1,
        kSmooth = 2,
        kSpline = 3,
    };

    /// Of no plug, of another's, of a plug, or of an attribute of a node.
    MRampAttribute();
    MRampAttribute(const MRampAttribute& other);
    MRampAttribute(const MPlug& obj, MStatus* ReturnStatus = nullptr);
    MRampAttribute(const MObject& node, const MObject& attr, MStatus* ReturnStatus = nullptr);
    MRampAttribute& operator=(const MRampAttribute& other);
    ~MRampAttribute();

    /// How many entries there are.
    unsigned int getNumEntries(MStatus* returnStatus = nullptr);

    /// All entries in the order of their indices.
    void getEntries(MIntArray& indexes, MFloatArray& positions, MFloatArray& values, MIntArray& interps,
                    MStatus* returnStatus = nullptr);
    void getEntries(MIntArray& indexes, MFloatArray& positions, MColorArray& colors, MIntArray& interps,
                    MStatus* returnStatus = nullptr);

    /// Adds entries at the lowest indices that are free. The arrays are to be equally long.
    void addEntries(MFloatArray& positions, MColorArray& values, MIntArray& interps,
                    MStatus* returnStatus = nullptr);
    void addEntries(MFloatArray& positions, MFloatArray& values, MIntArray& interps,
                    MStatus* returnStatus = nullptr);

    /// Removes entries.
    void deleteEntries(MIntArray& indexes, MStatus* returnStatus = nullptr);

    /// Change one thing of an entry.
    void setColorAtIndex(MColor& color, unsigned int index, MStatus* returnStatus = nullptr);
    void setValueAtIndex(float value, unsigned int index, MStatus* returnStatus = nullptr);
    void setPositionAtIndex(float position, unsigned int index, MStatus* returnStatus = nullptr);
    void setInterpolationAtIndex(MInterpolation interp, unsigned int index, MStatus* returnStatus = nullptr);

    /// Which of both it is.
    bool isColorRamp(MStatus* returnStatus = nullptr) const;
    bool isCurveRamp(MStatus* returnStatus = nullptr) const;

    /// What the ramp yields at a position: beyond its ends what it does there.
    void getColorAtPosition(float position, MColor& color, MStatus* returnStatus = nullptr,
                            MDGContext& = MDGContext::fsNormal);
    void getValueAtPosition(float position, float& value, MStatus* returnStatus = nullptr,
                            MDGContext& = MDGContext::fsNormal);

    /// The same at so many positions from 0 to 1, equally far apart.
    void sampleColorRamp(unsigned int numberOfSamples, MColorArray& colors, MStatus* returnStatus = nullptr,
                         MDGContext& = MDGContext::fsNormal);
    void sampleValueRamp(unsigned int numberOfSamples, MFloatArray& values, MStatus* returnStatus = nullptr,
                         MDGContext& = MDGContext::fsNormal);

    bool hasIndex(unsigned int index, MStatus* ReturnStatus = nullptr) const;

    /// Gives the indices that there are to the entries in the order of their positions.
    MStatus sort(bool ascending = true);

    /// Gives the entries the indices from 0 up, in the order that they have.
    MStatus pack();

    /// Replaces all entries by one, or by those of arrays of equal length.
    MStatus setRamp(float value, float position = 1.0f, MInterpolation interp = kLinear);
    MStatus setRamp(const MColor& color, float position = 1.0f, MInterpolation interp = kLinear);
    MStatus setRamp(const MFloatArray& values, const MFloatArray& positions, const MIntArray& interps);
    MStatus setRamp(const MColorArray& values, const MFloatArray& positions, const MIntArray& interps);

    /// Make an attribute that belongs to nobody yet.
    static MObject createCurveRamp(const MString& attrLongName, const MString& attrShortName,
                                   MStatus* ReturnStatus = nullptr);
    static MObject createColorRamp(const MString& attrLongName, const MString& attrShortName,
                                   MStatus* ReturnStatus = nullptr);

    /// Make one, add it to a node and set its entries.
    static MObject createRamp(const MString& attrLongName, const MString& attrShortName, const MObject& node,
                              float val, float pos = 1.f, MInterpolation interp = kLinear,
                              MStatus* ReturnStatus = nullptr);
    static MObject createRamp(const MString& attrLongName, const MString& attrShortName, const MObject& node,
                              const MColor& color, float pos = 1.0f, MInterpolation interp = kLinear,
                              MStatus* ReturnStatus = nullptr);
    static MObject createRamp(const MString& attrLongName, const MString& attrShortName, const MObject& node,
                              const MFloatArray& values, const MFloatArray& positions,
                              const MIntArray& interps, MStatus* ReturnStatus = nullptr);
    static MObject createRamp(const MString& attrLongName, const MString& attrShortName, const MObject& node,
                              const MColorArray& colors, const MFloatArray& positions,
                              const MIntArray& interps, MStatus* ReturnStatus = nullptr);

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;

    tvxhost::engine::Plug* plug; ///< owned
};
