// A node that holds an attribute of each kind.
#include "HolderFixture.h"

#include <maya/MFnData.h>
#include <maya/MFnMatrixAttribute.h>
#include <maya/MFnMatrixData.h>
#include <maya/MFnNumericAttribute.h>
#include <maya/MFnNumericData.h>
#include <maya/MFnTypedAttribute.h>
#include <maya/MPxNode.h>

namespace tarvox::crowd::test {

namespace {

class Holder : public MPxNode
{
public:
    static void* create() { return new Holder; }
    static MStatus initialize();
};

MStatus Holder::initialize()
{
    const struct
    {
        const char* name;
        MFnNumericData::Type type;
    } numbers[] = {
        {"boolValue", MFnNumericData::kBoolean},  {"shortValue", MFnNumericData::kShort},
        {"intValue", MFnNumericData::kInt},       {"floatValue", MFnNumericData::kFloat},
        {"doubleValue", MFnNumericData::kDouble}, {"point", MFnNumericData::k3Double},
    };
    for (const auto& row : numbers)
        addAttribute(MFnNumericAttribute().create(row.name, row.name, row.type));
    const struct
    {
        const char* name;
        MFnData::Type type;
    } data[] = {
        {"stringValue", MFnData::kString},      {"intArray", MFnData::kIntArray},
        {"doubleArray", MFnData::kDoubleArray}, {"stringArray", MFnData::kStringArray},
        {"vectorArray", MFnData::kVectorArray},
    };
    for (const auto& row : data)
        addAttribute(MFnTypedAttribute().create(row.name, row.name, row.type, MObject::kNullObj));
    MFnMatrixAttribute matrices;
    const MObject attribute = matrices.create("matrices", "matrices");
    matrices.setArray(true);
    return addAttribute(attribute);
}

} // namespace

HolderFixture::HolderFixture()
{
    registerType("holderNode", 0x70001, Holder::create, Holder::initialize);
    holder = make("holderNode", "holder");
}

MObject HolderFixture::attribute(const std::string& name) const
{
    return MFnDependencyNode(holder, nullptr).attribute(name.c_str());
}

MDataBlock HolderFixture::block() const
{
    return MFnDependencyNode(holder, nullptr).userNode()->_forceCache();
}

MObject HolderFixture::strangeAttribute()
{
    return MFnNumericAttribute().create("strange", "strange", MFnNumericData::kInt);
}

std::string HolderFixture::errorOfUnattachedSet()
{
    MStatus status;
    MFnDependencyNode().findPlug("any", true, &status);
    return status.errorString().asChar();
}

std::string HolderFixture::errorOfNullPlug()
{
    MStatus status;
    MPlug().asMObject(MDGContext::fsNormal, &status);
    return status.errorString().asChar();
}

std::string HolderFixture::errorOfNullObject()
{
    MStatus status;
    MFnMatrixData data(MObject::kNullObj, &status);
    return status.errorString().asChar();
}

} // namespace tarvox::crowd::test
