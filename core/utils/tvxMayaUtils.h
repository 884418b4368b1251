// Helpers over the Maya API.
#pragma once

#include <maya/MDGContext.h>
#include <maya/MDataBlock.h>
#include <maya/MDoubleArray.h>
#include <maya/MFnAttribute.h>
#include <maya/MIntArray.h>
#include <maya/MMatrix.h>
#include <maya/MObject.h>
#include <maya/MPoint.h>
#include <maya/MString.h>
#include <maya/MStringArray.h>
#include <maya/MVectorArray.h>

#include <vector>

namespace tarvox::crowd {

/// Static helpers; there is no state. Nothing is thrown. What goes wrong is told through the core log, at the
/// severity that each family names; a log whose filter is below that severity costs one comparison.
class MayaUtils
{
public:
    MayaUtils() = delete;

    /// Sets the six standard flags of a freshly created attribute, to be called before it is added to its
    /// node. What Maya answers is not examined.
    static void setAttributeFlags(MFnAttribute& attribute, bool keyable, bool readable, bool writable,
                                  bool hidden, bool array, bool indexMatters);

    /// @name Attributes of a node
    ///
    /// Each reads or writes one attribute, in up to three forms:
    /// - by attribute object: `networked` true looks the plug up, which tells of a node or an attribute that
    ///   does not fit; false makes the plug without a look-up, so that nothing can be told;
    /// - by name, long or short: always a look-up;
    /// - in a data block, inside a node's `compute`. Setters do not mark the attribute clean; that is for the
    ///   `compute` to do.
    ///
    /// Values are in Maya's internal units: centimetres and radians. A getter evaluates what its attribute
    /// depends on.
    ///
    /// Each step that fails is reported at WARNING, and the call goes on: a getter returns what Maya reads
    /// from a plug that is of no use (0, false or an empty text), an array or a matrix is left as Maya leaves
    /// it, and a setter does nothing. Whether the value itself could be read or set is not examined.
    /// @{

    static bool getBoolAttribute(const MObject& node, const MObject& attribute, bool networked);
    static bool getBoolAttribute(const MObject& node, const MString& attributeName);
    static bool getBoolAttribute(MDataBlock& block, const MObject& attribute);
    static void setBoolAttribute(const MObject& node, const MObject& attribute, bool value, bool networked);
    static void setBoolAttribute(const MObject& node, const MString& attributeName, bool value);
    static void setBoolAttribute(MDataBlock& block, const MObject& attribute, bool value);

    static short getShortAttribute(const MObject& node, const MObject& attribute, bool networked);
    static short getShortAttribute(const MObject& node, const MString& attributeName);
    static short getShortAttribute(MDataBlock& block, const MObject& attribute);
    static void setShortAttribute(const MObject& node, const MObject& attribute, short value, bool networked);
    static void setShortAttribute(const MObject& node, const MString& attributeName, short value);
    static void setShortAttribute(MDataBlock& block, const MObject& attribute, short value);

    static int getIntAttribute(const MObject& node, const MObject& attribute, bool networked);
    static int getIntAttribute(const MObject& node, const MString& attributeName);
    static int getIntAttribute(MDataBlock& block, const MObject& attribute);
    static void setIntAttribute(const MObject& node, const MObject& attribute, int value, bool networked);
    static void setIntAttribute(const MObject& node, const MString& attributeName, int value);
    static void setIntAttribute(MDataBlock& block, const MObject& attribute, int value);

    static float getFloatAttribute(const MObject& node, const MObject& attribute, bool networked);
    static float getFloatAttribute(const MObject& node, const MString& attributeName);
    static float getFloatAttribute(MDataBlock& block, const MObject& attribute);
    static void setFloatAttribute(const MObject& node, const MObject& attribute, float value, bool networked);
    static void setFloatAttribute(const MObject& node, const MString& attributeName, float value);
    static void setFloatAttribute(MDataBlock& block, const MObject& attribute, float value);

    static double getDoubleAttribute(const MObject& node, const MObject& attribute, bool networked);
    static double getDoubleAttribute(const MObject& node, const MString& attributeName);
    static double getDoubleAttribute(MDataBlock& block, const MObject& attribute);
    static void setDoubleAttribute(const MObject& node, const MObject& attribute, double value,
                                   bool networked);
    static void setDoubleAttribute(const MObject& node, const MString& attributeName, double value);
    static void setDoubleAttribute(MDataBlock& block, const MObject& attribute, double value);

    /// As getDoubleAttribute, narrowed.
    static float getDoubleAttributeAsFloat(const MObject& node, const MObject& attribute, bool networked);
    static float getDoubleAttributeAsFloat(const MObject& node, const MString& attributeName);
    static float getDoubleAttributeAsFloat(MDataBlock& block, const MObject& attribute);

    static MString getStringAttribute(const MObject& node, const MObject& attribute, bool networked);
    static MString getStringAttribute(const MObject& node, const MString& attributeName);
    static MString getStringAttribute(MDataBlock& block, const MObject& attribute);
    static void setStringAttribute(const MObject& node, const MObject& attribute, const MString& value,
                                   bool networked);
    static void setStringAttribute(const MObject& node, const MString& attributeName, const MString& value);
    static void setStringAttribute(MDataBlock& block, const MObject& attribute, const MString& value);

    /// The first three children of the attribute as x, y and z; w is always 1.
    static MPoint getPointAttribute(const MObject& node, const MObject& attribute, bool networked);
    static MPoint getPointAttribute(const MObject& node, const MString& attributeName);

    /// The attribute's data object.
    static MObject getObjectAttribute(const MObject& node, const MObject& attribute, bool networked);
    static MObject getObjectAttribute(const MObject& node, const MString& attributeName);

    /// The first element of an array of matrices, such as the world matrix of a node's first instance. The
    /// second form reads it in a context of the caller's.
    static void getMatrixAttribute(const MObject& node, const MString& attributeName, MMatrix& result);
    static void getMatrixAttribute(const MObject& node, const MString& attributeName, MMatrix& result,
                                   MDGContext& context);

    /// Replaces what the array held. The form by object always looks the plug up.
    static void getIntArrayAttribute(const MObject& node, const MObject& attribute, MIntArray& result);
    static void getIntArrayAttribute(const MObject& node, const MString& attributeName, MIntArray& result);
    static void setIntArrayAttribute(const MObject& node, const MObject& attribute, const MIntArray& value,
                                     bool networked);

    /// Replaces what the array held.
    static void getDoubleArrayAttribute(const MObject& node, const MObject& attribute, MDoubleArray& result,
                                        bool networked);
    static void getDoubleArrayAttribute(const MObject& node, const MString& attributeName,
                                        MDoubleArray& result);
    static void setDoubleArrayAttribute(const MObject& node, const MObject& attribute,
                                        const MDoubleArray& value, bool networked);

    /// As getDoubleArrayAttribute, narrowed, and appended to what the vector holds: several attributes can be
    /// gathered in one.
    static void getDoubleArrayAttributeAsFloats(const MObject& node, const MObject& attribute,
                                                std::vector<float>& result, bool networked);
    static void getDoubleArrayAttributeAsFloats(const MObject& node, const MString& attributeName,
                                                std::vector<float>& result);

    /// Replaces what the array held.
    static void getStringArrayAttribute(const MObject& node, const MObject& attribute, MStringArray& result,
                                        bool networked);
    static void getStringArrayAttribute(const MObject& node, const MString& attributeName,
                                        MStringArray& result);
    static void setStringArrayAttribute(const MObject& node, const MObject& attribute,
                                        const MStringArray& value, bool networked);

    /// Replaces what the array held.
    static void getVectorArrayAttribute(const MObject& node, const MObject& attribute, MVectorArray& result,
                                        bool networked);
    static void getVectorArrayAttribute(const MObject& node, const MString& attributeName,
                                        MVectorArray& result);
    static void setVectorArrayAttribute(const MObject& node, const MObject& attribute,
                                        const MVectorArray& value, bool networked);

    /// @}
};

} // namespace tarvox::crowd
