// Attributes: flags of new ones, values of those of nodes and of particles.
#include "core/utils/tvxMayaUtils.h"

#include "core/utils/tvxMayaCompat.h"
#include "core/utils/tvxTrace.h"

#include <maya/MDataHandle.h>
#include <maya/MFnDependencyNode.h>
#include <maya/MFnDoubleArrayData.h>
#include <maya/MFnIntArrayData.h>
#include <maya/MFnMatrixData.h>
#include <maya/MFnParticleSystem.h>
#include <maya/MFnStringArrayData.h>
#include <maya/MFnVectorArrayData.h>
#include <maya/MPlug.h>

#include <ostream>
#include <string>

namespace tarvox::crowd {

namespace {

/// What stands before the error string of a failed look-up.
struct Prefix
{
    const char* text = "";
    const char* afterNames = nullptr; ///< when there is one: the names of node and attribute, then this
};

/// What a member reports, by the step that failed. Members without texts report the error string alone.
struct Texts
{
    const char* function;    ///< qualified name of the member
    const char* node = "";   ///< before the error string when the node's function set does not attach
    Prefix plug{};           ///< when the plug is not found
    const char* handle = ""; ///< when the data block has no handle
    const char* object = ""; ///< when the plug gives no data object
    const char* data = "";   ///< when the data's function set does not attach
};

// One row per member; a second one where the form by attribute object has texts of its own.
constexpr Texts kGetBool{TVX_UTILS_MEMBER("getBoolAttribute"),
                         "getBoolAttribute:depFn : ",
                         {"getBoolAttribute:findPlug : "},
                         "getBoolAttribute:inputValue : "};
// A plug that is not found is told in the words of the function set.
constexpr Texts kGetBoolByObject{
    kGetBool.function, "getBoolAttribute:depFn : ", {"getBoolAttribute:depFn : "}};
constexpr Texts kSetBool{TVX_UTILS_MEMBER("setBoolAttribute")};
constexpr Texts kGetShort{TVX_UTILS_MEMBER("getShortAttribute")};
constexpr Texts kSetShort{TVX_UTILS_MEMBER("setShortAttribute")};
constexpr Texts kGetInt{TVX_UTILS_MEMBER("getIntAttribute")};
constexpr Texts kSetInt{TVX_UTILS_MEMBER("setIntAttribute")};
constexpr Texts kGetFloat{TVX_UTILS_MEMBER("getFloatAttribute")};
constexpr Texts kSetFloat{TVX_UTILS_MEMBER("setFloatAttribute")};
constexpr Texts kGetDouble{TVX_UTILS_MEMBER("getDoubleAttribute"),
                           "getDoubleAttribute:depFn : ",
                           {"getDoubleAttribute:findPlug : "},
                           "getDoubleAttribute:inputValue : "};
constexpr Texts kGetDoubleByObject{kGetDouble.function};
constexpr Texts kSetDouble{TVX_UTILS_MEMBER("setDoubleAttribute")};
constexpr Texts kGetString{TVX_UTILS_MEMBER("getStringAttribute"),
                           "getStringAttribute:depFn : ",
                           {"getStringAttribute:findPlug(", ")"}};
constexpr Texts kGetStringByObject{
    kGetString.function, "getStringAttribute:depFn : ", {"getStringAttribute:findPlug(", "):"}};
constexpr Texts kSetString{TVX_UTILS_MEMBER("setStringAttribute")};
constexpr Texts kGetPoint{TVX_UTILS_MEMBER("getPointAttribute"),
                          "getPointAttribute:depFn : ",
                          {"getPointAttribute:findPlug(", ")"}};
constexpr Texts kGetPointByObject{kGetPoint.function};
constexpr Texts kGetObject{TVX_UTILS_MEMBER("getObjectAttribute")};
constexpr Texts kGetMatrix{TVX_UTILS_MEMBER("getMatrixAttribute")};
constexpr Texts kGetIntArray{TVX_UTILS_MEMBER("getIntArrayAttribute")};
constexpr Texts kSetIntArray{TVX_UTILS_MEMBER("setIntArrayAttribute")};
constexpr Texts kGetDoubleArray{
    TVX_UTILS_MEMBER("getDoubleArrayAttribute"), "getDoubleArrayAttribute:depFn : ",
    {"getDoubleArrayAttribute:findPlug : "},     "",
    "getDoubleArrayAttribute:asMObject : ",      "getDoubleArrayAttribute:MFnDoubleArrayData : "};
constexpr Texts kSetDoubleArray{TVX_UTILS_MEMBER("setDoubleArrayAttribute")};
constexpr Texts kGetStringArray{TVX_UTILS_MEMBER("getStringArrayAttribute")};
constexpr Texts kSetStringArray{TVX_UTILS_MEMBER("setStringArrayAttribute")};
constexpr Texts kGetVectorArray{
    TVX_UTILS_MEMBER("getVectorArrayAttribute"), "getVectorArrayAttribute:depFn : ",
    {"getVectorArrayAttribute:findPlug : "},     "",
    "getVectorArrayAttribute:asMObject : ",      "getVectorArrayAttribute:MFnVectorArrayData : "};
constexpr Texts kSetVectorArray{TVX_UTILS_MEMBER("setVectorArrayAttribute")};

/// How values of a type pass through plugs and data handles.
template <class Value>
struct Access;

#define TVX_ACCESS(Value, Name)                                                                              \
    template <>                                                                                              \
    struct Access<Value>                                                                                     \
    {                                                                                                        \
        static Value get(const MPlug& plug) { return plug.as##Name(); }                                      \
        static Value get(const MDataHandle& handle) { return handle.as##Name(); }                            \
        static void set(MPlug& plug, const Value& value) { plug.set##Name(value); }                          \
        static void set(MDataHandle& handle, const Value& value) { handle.set##Name(value); }                \
    }

TVX_ACCESS(bool, Bool);
TVX_ACCESS(short, Short);
TVX_ACCESS(int, Int);
TVX_ACCESS(float, Float);
TVX_ACCESS(double, Double);
TVX_ACCESS(MString, String);

#undef TVX_ACCESS

// How a look-up that failed names its attribute.
MString nameOf(const MObject&, const MPlug& plug)
{
    return plug.name();
}
MString nameOf(const MString& attributeName, const MPlug&)
{
    return attributeName;
}

std::string namesAfter(const Prefix& prefix, const MFnDependencyNode& node, const MString& attribute)
{
    if (!prefix.afterNames)
        return {};
    return std::string(node.name().asChar()) + "," + attribute.asChar() + prefix.afterNames;
}

/// The plug of an attribute, given by object or name, as a look-up finds it.
template <class Attribute>
MPlug findPlug(const Texts& texts, const MObject& node, const Attribute& attribute)
{
    MStatus status;
    const MFnDependencyNode function(node, &status);
    if (!status)
        TVX_WARN(texts.function, texts.node << status.errorString());
    const MPlug plug = function.findPlug(attribute, true, &status);
    if (!status)
        TVX_WARN(texts.function, texts.plug.text << namesAfter(texts.plug, function, nameOf(attribute, plug))
                                                 << status.errorString());
    return plug;
}

MPlug plugOf(const Texts& texts, const MObject& node, const MObject& attribute, bool networked)
{
    return networked ? findPlug(texts, node, attribute) : MPlug(node, attribute);
}

template <class Value>
void write(MPlug plug, const Value& value)
{
    Access<Value>::set(plug, value);
}

void warnOfHandle(const Texts& texts, const MStatus& status)
{
    TVX_WARN(texts.function, texts.handle << status.errorString());
}

template <class Value>
Value readInput(const Texts& texts, MDataBlock& block, const MObject& attribute)
{
    MStatus status;
    const MDataHandle handle = block.inputValue(attribute, &status);
    if (!status)
        warnOfHandle(texts, status);
    return Access<Value>::get(handle);
}

template <class Value>
void writeOutput(const Texts& texts, MDataBlock& block, const MObject& attribute, const Value& value)
{
    MStatus status;
    MDataHandle handle = block.outputValue(attribute, &status);
    if (!status)
        warnOfHandle(texts, status);
    Access<Value>::set(handle, value);
}

MPoint readPoint(const MPlug& plug)
{
    return MPoint(plug.child(0).asDouble(), plug.child(1).asDouble(), plug.child(2).asDouble(), 1.0);
}

/// Reads array data, whose function set is `Function`.
template <class Function, class Array>
void readArray(const Texts& texts, const MPlug& plug, Array& result)
{
    MStatus status;
    const MObject object = compat::asMObject(plug, &status);
    if (!status)
        TVX_WARN(texts.function, texts.object << status.errorString());
    const Function data(object, &status);
    if (!status)
        TVX_WARN(texts.function, texts.data << status.errorString());
    data.copyTo(result);
}

template <class Function, class Array>
void writeArray(const Texts& texts, MPlug plug, const Array& value)
{
    MStatus status;
    Function data;
    MObject object = data.create(value, &status);
    if (!status)
        TVX_WARN(texts.function, texts.object << status.errorString());
    status = plug.setValue(object);
    if (!status)
        TVX_WARN(texts.function, texts.data << status.errorString());
}

void appendNarrowed(const MDoubleArray& values, std::vector<float>& result)
{
    for (unsigned int i = 0; i < values.length(); ++i)
        result.push_back(static_cast<float>(values[i]));
}

} // namespace

void MayaUtils::setAttributeFlags(MFnAttribute& attribute, bool keyable, bool readable, bool writable,
                                  bool hidden, bool array, bool indexMatters)
{
    attribute.setKeyable(keyable);
    attribute.setReadable(readable);
    attribute.setWritable(writable);
    attribute.setHidden(hidden);
    attribute.setArray(array);
    attribute.setIndexMatters(indexMatters);
}

bool MayaUtils::getBoolAttribute(const MObject& node, const MObject& attribute, bool networked)
{
    return Access<bool>::get(plugOf(kGetBoolByObject, node, attribute, networked));
}

bool MayaUtils::getBoolAttribute(const MObject& node, const MString& attributeName)
{
    return Access<bool>::get(findPlug(kGetBool, node, attributeName));
}

bool MayaUtils::getBoolAttribute(MDataBlock& block, const MObject& attribute)
{
    return readInput<bool>(kGetBool, block, attribute);
}

void MayaUtils::setBoolAttribute(const MObject& node, const MObject& attribute, bool value, bool networked)
{
    write(plugOf(kSetBool, node, attribute, networked), value);
}

void MayaUtils::setBoolAttribute(const MObject& node, const MString& attributeName, bool value)
{
    write(findPlug(kSetBool, node, attributeName), value);
}

void MayaUtils::setBoolAttribute(MDataBlock& block, const MObject& attribute, bool value)
{
    writeOutput(kSetBool, block, attribute, value);
}

short MayaUtils::getShortAttribute(const MObject& node, const MObject& attribute, bool networked)
{
    return Access<short>::get(plugOf(kGetShort, node, attribute, networked));
}

short MayaUtils::getShortAttribute(const MObject& node, const MString& attributeName)
{
    return Access<short>::get(findPlug(kGetShort, node, attributeName));
}

short MayaUtils::getShortAttribute(MDataBlock& block, const MObject& attribute)
{
    return readInput<short>(kGetShort, block, attribute);
}

void MayaUtils::setShortAttribute(const MObject& node, const MObject& attribute, short value, bool networked)
{
    write(plugOf(kSetShort, node, attribute, networked), value);
}

void MayaUtils::setShortAttribute(const MObject& node, const MString& attributeName, short value)
{
    write(findPlug(kSetShort, node, attributeName), value);
}

void MayaUtils::setShortAttribute(MDataBlock& block, const MObject& attribute, short value)
{
    writeOutput(kSetShort, block, attribute, value);
}

int MayaUtils::getIntAttribute(const MObject& node, const MObject& attribute, bool networked)
{
    return Access<int>::get(plugOf(kGetInt, node, attribute, networked));
}

int MayaUtils::getIntAttribute(const MObject& node, const MString& attributeName)
{
    return Access<int>::get(findPlug(kGetInt, node, attributeName));
}

int MayaUtils::getIntAttribute(MDataBlock& block, const MObject& attribute)
{
    return readInput<int>(kGetInt, block, attribute);
}

void MayaUtils::setIntAttribute(const MObject& node, const MObject& attribute, int value, bool networked)
{
    write(plugOf(kSetInt, node, attribute, networked), value);
}

void MayaUtils::setIntAttribute(const MObject& node, const MString& attributeName, int value)
{
    write(findPlug(kSetInt, node, attributeName), value);
}

void MayaUtils::setIntAttribute(MDataBlock& block, const MObject& attribute, int value)
{
    writeOutput(kSetInt, block, attribute, value);
}

float MayaUtils::getFloatAttribute(const MObject& node, const MObject& attribute, bool networked)
{
    return Access<float>::get(plugOf(kGetFloat, node, attribute, networked));
}

float MayaUtils::getFloatAttribute(const MObject& node, const MString& attributeName)
{
    return Access<float>::get(findPlug(kGetFloat, node, attributeName));
}

float MayaUtils::getFloatAttribute(MDataBlock& block, const MObject& attribute)
{
    return readInput<float>(kGetFloat, block, attribute);
}

void MayaUtils::setFloatAttribute(const MObject& node, const MObject& attribute, float value, bool networked)
{
    write(plugOf(kSetFloat, node, attribute, networked), value);
}

void MayaUtils::setFloatAttribute(const MObject& node, const MString& attributeName, float value)
{
    write(findPlug(kSetFloat, node, attributeName), value);
}

void MayaUtils::setFloatAttribute(MDataBlock& block, const MObject& attribute, float value)
{
    writeOutput(kSetFloat, block, attribute, value);
}

double MayaUtils::getDoubleAttribute(const MObject& node, const MObject& attribute, bool networked)
{
    return Access<double>::get(plugOf(kGetDoubleByObject, node, attribute, networked));
}

double MayaUtils::getDoubleAttribute(const MObject& node, const MString& attributeName)
{
    return Access<double>::get(findPlug(kGetDouble, node, attributeName));
}

double MayaUtils::getDoubleAttribute(MDataBlock& block, const MObject& attribute)
{
    return readInput<double>(kGetDouble, block, attribute);
}

void MayaUtils::setDoubleAttribute(const MObject& node, const MObject& attribute, double value,
                                   bool networked)
{
    write(plugOf(kSetDouble, node, attribute, networked), value);
}

void MayaUtils::setDoubleAttribute(const MObject& node, const MString& attributeName, double value)
{
    write(findPlug(kSetDouble, node, attributeName), value);
}

void MayaUtils::setDoubleAttribute(MDataBlock& block, const MObject& attribute, double value)
{
    writeOutput(kSetDouble, block, attribute, value);
}

float MayaUtils::getDoubleAttributeAsFloat(const MObject& node, const MObject& attribute, bool networked)
{
    return static_cast<float>(getDoubleAttribute(node, attribute, networked));
}

float MayaUtils::getDoubleAttributeAsFloat(const MObject& node, const MString& attributeName)
{
    return static_cast<float>(getDoubleAttribute(node, attributeName));
}

float MayaUtils::getDoubleAttributeAsFloat(MDataBlock& block, const MObject& attribute)
{
    return static_cast<float>(getDoubleAttribute(block, attribute));
}

MString MayaUtils::getStringAttribute(const MObject& node, const MObject& attribute, bool networked)
{
    return Access<MString>::get(plugOf(kGetStringByObject, node, attribute, networked));
}

MString MayaUtils::getStringAttribute(const MObject& node, const MString& attributeName)
{
    return Access<MString>::get(findPlug(kGetString, node, attributeName));
}

MString MayaUtils::getStringAttribute(MDataBlock& block, const MObject& attribute)
{
    return readInput<MString>(kGetString, block, attribute);
}

void MayaUtils::setStringAttribute(const MObject& node, const MObject& attribute, const MString& value,
                                   bool networked)
{
    write(plugOf(kSetString, node, attribute, networked), value);
}

void MayaUtils::setStringAttribute(const MObject& node, const MString& attributeName, const MString& value)
{
    write(findPlug(kSetString, node, attributeName), value);
}

void MayaUtils::setStringAttribute(MDataBlock& block, const MObject& attribute, const MString& value)
{
    writeOutput(kSetString, block, attribute, value);
}

MPoint MayaUtils::getPointAttribute(const MObject& node, const MObject& attribute, bool networked)
{
    return readPoint(plugOf(kGetPointByObject, node, attribute, networked));
}

MPoint MayaUtils::getPointAttribute(const MObject& node, const MString& attributeName)
{
    return readPoint(findPlug(kGetPoint, node, attributeName));
}

MObject MayaUtils::getObjectAttribute(const MObject& node, const MObject& attribute, bool networked)
{
    return plugOf(kGetObject, node, attribute, networked).asMObject();
}

MObject MayaUtils::getObjectAttribute(const MObject& node, const MString& attributeName)
{
    return findPlug(kGetObject, node, attributeName).asMObject();
}

void MayaUtils::getMatrixAttribute(const MObject& node, const MString& attributeName, MMatrix& result)
{
    getMatrixAttribute(node, attributeName, result, MDGContext::fsNormal);
}

void MayaUtils::getMatrixAttribute(const MObject& node, const MString& attributeName, MMatrix& result,
                                   MDGContext& context)
{
    const char* const member = kGetMatrix.function;
    MStatus status;
    const MFnDependencyNode function(node, nullptr);
    const MObject attribute = function.attribute(attributeName, &status);
    if (!status)
        TVX_WARN(member, status.errorString());
    const MPlug plug = MPlug(node, attribute).elementByLogicalIndex(0);
    MObject object;
    status = compat::getValue(plug, object, context);
    if (!status)
        TVX_WARN(member, status.errorString());
    const MFnMatrixData data(object, &status);
    if (!status)
        TVX_WARN(member, status.errorString());
    result = data.matrix(&status);
    if (!status)
        TVX_WARN(member, status.errorString());
}

void MayaUtils::getIntArrayAttribute(const MObject& node, const MObject& attribute, MIntArray& result)
{
    readArray<MFnIntArrayData>(kGetIntArray, findPlug(kGetIntArray, node, attribute), result);
}

void MayaUtils::getIntArrayAttribute(const MObject& node, const MString& attributeName, MIntArray& result)
{
    readArray<MFnIntArrayData>(kGetIntArray, findPlug(kGetIntArray, node, attributeName), result);
}

void MayaUtils::setIntArrayAttribute(const MObject& node, const MObject& attribute, const MIntArray& value,
                                     bool networked)
{
    writeArray<MFnIntArrayData>(kSetIntArray, plugOf(kSetIntArray, node, attribute, networked), value);
}

void MayaUtils::getDoubleArrayAttribute(const MObject& node, const MObject& attribute, MDoubleArray& result,
                                        bool networked)
{
    readArray<MFnDoubleArrayData>(kGetDoubleArray, plugOf(kGetDoubleArray, node, attribute, networked),
                                  result);
}

void MayaUtils::getDoubleArrayAttribute(const MObject& node, const MString& attributeName,
                                        MDoubleArray& result)
{
    readArray<MFnDoubleArrayData>(kGetDoubleArray, findPlug(kGetDoubleArray, node, attributeName), result);
}

void MayaUtils::setDoubleArrayAttribute(const MObject& node, const MObject& attribute,
                                        const MDoubleArray& value, bool networked)
{
    writeArray<MFnDoubleArrayData>(kSetDoubleArray, plugOf(kSetDoubleArray, node, attribute, networked),
                                   value);
}

void MayaUtils::getDoubleArrayAttributeAsFloats(const MObject& node, const MObject& attribute,
                                                std::vector<float>& result, bool networked)
{
    MDoubleArray values;
    getDoubleArrayAttribute(node, attribute, values, networked);
    appendNarrowed(values, result);
}

void MayaUtils::getDoubleArrayAttributeAsFloats(const MObject& node, const MString& attributeName,
                                                std::vector<float>& result)
{
    MDoubleArray values;
    getDoubleArrayAttribute(node, attributeName, values);
    appendNarrowed(values, result);
}

void MayaUtils::getStringArrayAttribute(const MObject& node, const MObject& attribute, MStringArray& result,
                                        bool networked)
{
    readArray<MFnStringArrayData>(kGetStringArray, plugOf(kGetStringArray, node, attribute, networked),
                                  result);
}

void MayaUtils::getStringArrayAttribute(const MObject& node, const MString& attributeName,
                                        MStringArray& result)
{
    readArray<MFnStringArrayData>(kGetStringArray, findPlug(kGetStringArray, node, attributeName), result);
}

void MayaUtils::setStringArrayAttribute(const MObject& node, const MObject& attribute,
                                        const MStringArray& value, bool networked)
{
    writeArray<MFnStringArrayData>(kSetStringArray, plugOf(kSetStringArray, node, attribute, networked),
                                   value);
}

void MayaUtils::getVectorArrayAttribute(const MObject& node, const MObject& attribute, MVectorArray& result,
                                        bool networked)
{
    readArray<MFnVectorArrayData>(kGetVectorArray, plugOf(kGetVectorArray, node, attribute, networked),
                                  result);
}

void MayaUtils::getVectorArrayAttribute(const MObject& node, const MString& attributeName,
                                        MVectorArray& result)
{
    readArray<MFnVectorArrayData>(kGetVectorArray, findPlug(kGetVectorArray, node, attributeName), result);
}

void MayaUtils::setVectorArrayAttribute(const MObject& node, const MObject& attribute,
                                        const MVectorArray& value, bool networked)
{
    writeArray<MFnVectorArrayData>(kSetVectorArray, plugOf(kSetVectorArray, node, attribute, networked),
                                   value);
}

double MayaUtils::getDoubleAttributePP(const MObject& particleShape, const MString& attributeName,
                                       unsigned int index, MStatus* status)
{
    MStatus unasked;
    MStatus& result = status ? *status : unasked;
    const MFnParticleSystem particles(particleShape, &result);
    if (!result)
        return 0.0;
    MDoubleArray values(particles.count(), 0.0);
    particles.getPerParticleAttribute(attributeName, values, &result);
    if (!result)
        TVX_WARN(TVX_UTILS_MEMBER("getDoubleAttributePP"),
                 "WARNING Per Particle Attribute '" << attributeName << "' not found.");
    return index < values.length() ? values[index] : 0.0;
}

float MayaUtils::getDoubleAttributePPAsFloat(const MObject& particleShape, const MString& attributeName,
                                             unsigned int index, MStatus* status)
{
    return static_cast<float>(getDoubleAttributePP(particleShape, attributeName, index, status));
}

void MayaUtils::setDoubleAttributePP(const MObject& particleShape, const MString& attributeName,
                                     unsigned int index, double value)
{
    MStatus status;
    const MFnParticleSystem particles(particleShape, &status);
    if (!status || !particles.isPerParticleDoubleAttribute(attributeName))
        return;
    MFnDoubleArrayData data(particles.findPlug(attributeName, true).asMObject(), nullptr);
    if (index < data.length())
        status = data.set(value, index);
    if (!status)
        TVX_WARN(TVX_UTILS_MEMBER("setDoubleAttributePP"), status.errorString());
}

MVector MayaUtils::getVectorAttributePP(const MObject& particleShape, const MString& attributeName,
                                        unsigned int index, MStatus* status)
{
    MStatus unasked;
    MStatus& result = status ? *status : unasked;
    const MFnParticleSystem particles(particleShape, &result);
    if (!result)
        return MVector();
    if (particles.isPerParticleVectorAttribute(attributeName)) {
        const MPlug plug = particles.findPlug(attributeName, true, &result);
        const MFnVectorArrayData data(plug.asMObject(), nullptr);
        if (index < data.length())
            return data[index];
    }
    result = MStatus(MStatus::kInvalidParameter);
    return MVector();
}

} // namespace tarvox::crowd
