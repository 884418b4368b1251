// A plug-in with data of its own: a list of measures with a label, nodes that keep, make and add them up, and
// commands that set and tell them.
#include <maya/MArgList.h>
#include <maya/MDataBlock.h>
#include <maya/MDataHandle.h>
#include <maya/MFnNumericAttribute.h>
#include <maya/MFnPlugin.h>
#include <maya/MFnPluginData.h>
#include <maya/MFnTypedAttribute.h>
#include <maya/MPlug.h>
#include <maya/MPxCommand.h>
#include <maya/MPxData.h>
#include <maya/MPxNode.h>
#include <maya/MSelectionList.h>

#include <numeric>
#include <ostream>
#include <vector>

namespace {

const MTypeId kMeasuresId(0x3020);
const MTypeId kKeeperId(0x3021);
const MTypeId kMakerId(0x3022);
const MTypeId kSumId(0x3023);
const char* const kMeasuresName = "measures";

class Measures : public MPxData
{
public:
    static void* create() { return new Measures; }

    MStatus readASCII(const MArgList& list, unsigned int& index) override
    {
        MStatus status;
        label = list.asString(index++, &status);
        const int count = status ? list.asInt(index++, &status) : 0;
        values.clear();
        for (int i = 0; status && i < count; ++i)
            values.push_back(list.asDouble(index++, &status));
        return status;
    }
    MStatus writeASCII(std::ostream& out) override
    {
        if (label == "unwritable")
            return MS::kFailure;
        out << '"' << label << "\" " << values.size();
        for (const double value : values)
            out << ' ' << value;
        return MS::kSuccess;
    }
    void copy(const MPxData& src) override
    {
        const auto& other = static_cast<const Measures&>(src);
        label = other.label;
        values = other.values;
    }
    MTypeId typeId() const override { return kMeasuresId; }
    MString name() const override { return kMeasuresName; }

    double sum() const { return std::accumulate(values.begin(), values.end(), 0.0); }

    MString label;
    std::vector<double> values;
};

/// Keeps measures that somebody sets, and hands them on.
class Keeper : public MPxNode
{
public:
    static void* create() { return new Keeper; }
    static MStatus initialize()
    {
        MFnTypedAttribute set;
        kept = set.create("kept", "k", kMeasuresId);
        return addAttribute(kept);
    }

private:
    static MObject kept;
};

/// Makes the measures 1 to `count`.
class Maker : public MPxNode
{
public:
    static void* create() { return new Maker; }
    static MStatus initialize()
    {
        MFnNumericAttribute number;
        count = number.create("count", "c", MFnNumericData::kInt, 2);
        MFnTypedAttribute set;
        made = set.create("made", "m", kMeasuresId);
        set.setWritable(false);
        set.setStorable(false);
        addAttribute(count);
        addAttribute(made);
        return attributeAffects(count, made);
    }
    MStatus compute(const MPlug& plug, MDataBlock& block) override
    {
        if (plug != made)
            return MS::kUnknownParameter;
        MFnPluginData set;
        MStatus status;
        set.create(kMeasuresId, &status);
        if (!status)
            return status;
        auto* measures = static_cast<Measures*>(set.data());
        measures->values.resize(static_cast<std::size_t>(block.inputValue(count).asInt()));
        std::iota(measures->values.begin(), measures->values.end(), 1.0);
        block.outputValue(made).set(measures);
        return block.setClean(plug);
    }

private:
    static MObject count, made;
};

/// The sum of measures; -1 where there are none.
class Sum : public MPxNode
{
public:
    static void* create() { return new Sum; }
    static MStatus initialize()
    {
        MFnTypedAttribute set;
        measures = set.create("measures", "ms", kMeasuresId);
        MFnNumericAttribute number;
        sum = number.create("sum", "s", MFnNumericData::kDouble);
        number.setWritable(false);
        addAttribute(measures);
        addAttribute(sum);
        return attributeAffects(measures, sum);
    }
    MStatus compute(const MPlug& plug, MDataBlock& block) override
    {
        if (plug != sum)
            return MS::kUnknownParameter;
        const MDataHandle handle = block.inputValue(measures);
        const auto* given = static_cast<const Measures*>(handle.asPluginData());
        block.outputValue(sum).setDouble(given ? given->sum() : -1.0);
        return block.setClean(plug);
    }

private:
    static MObject measures, sum;
};

MObject Keeper::kept;
MObject Maker::count;
MObject Maker::made;
MObject Sum::measures;
MObject Sum::sum;

MStatus findPlug(const MString& name, MPlug& plug)
{
    MSelectionList list;
    const MStatus found = list.add(name);
    return found ? list.getPlug(0, plug) : found;
}

/// setMeasures PLUG LABEL NUMBER…
class SetMeasures : public MPxCommand
{
public:
    static void* create() { return new SetMeasures; }
    MStatus doIt(const MArgList& list) override
    {
        MPlug plug;
        if (const MStatus found = findPlug(list.asString(0), plug); !found)
            return found;
        MFnPluginData set;
        MObject object = set.create(kMeasuresId);
        auto* measures = static_cast<Measures*>(set.data());
        measures->label = list.asString(1);
        for (unsigned int i = 2; i < list.length(); ++i)
            measures->values.push_back(list.asDouble(i));
        return plug.setMObject(object);
    }
};

/// tellMeasures PLUG: the label, a colon and the sum.
class TellMeasures : public MPxCommand
{
public:
    static void* create() { return new TellMeasures; }
    MStatus doIt(const MArgList& list) override
    {
        MPlug plug;
        MStatus status = findPlug(list.asString(0), plug);
        const MObject object = status ? plug.asMObject(MDGContext::fsNormal, &status) : MObject();
        const MFnPluginData set(object, &status);
        const auto* measures = status ? static_cast<const Measures*>(set.constData(&status)) : nullptr;
        if (!measures) {
            displayError("no measures");
            return MS::kFailure;
        }
        MString told = measures->label;
        told += ":";
        told += measures->sum();
        setResult(told);
        return MS::kSuccess;
    }
};

} // namespace

PLUGIN_EXPORT MStatus initializePlugin(MObject object)
{
    MFnPlugin plugin(object, "Measuring", "1.2", "Any");
    // The types of data come first: attributes are made of them.
    if (const MStatus status = plugin.registerData(kMeasuresName, kMeasuresId, Measures::create); !status)
        return status;
    plugin.registerNode("measureKeeper", kKeeperId, Keeper::create, Keeper::initialize);
    plugin.registerNode("measureMaker", kMakerId, Maker::create, Maker::initialize);
    plugin.registerNode("measureSum", kSumId, Sum::create, Sum::initialize);
    plugin.registerCommand("setMeasures", SetMeasures::create);
    return plugin.registerCommand("tellMeasures", TellMeasures::create);
}

PLUGIN_EXPORT MStatus uninitializePlugin(MObject object)
{
    MFnPlugin plugin(object);
    plugin.deregisterCommand("setMeasures");
    plugin.deregisterCommand("tellMeasures");
    plugin.deregisterNode(kSumId);
    plugin.deregisterNode(kMakerId);
    plugin.deregisterNode(kKeeperId);
    return plugin.deregisterData(kMeasuresId);
}
