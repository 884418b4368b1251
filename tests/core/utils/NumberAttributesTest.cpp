// Accessors of numbers and strings: every form moves its value and reports every step that fails.
#include "HolderFixture.h"

#include <maya/MDataHandle.h>

#include <map>
#include <regex>
#include <tuple>

namespace tarvox::crowd::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The six members of a type of value.
template <class Value, class Parameter>
struct Members
{
    const char* name;      ///< as in get<name>Attribute
    const char* attribute; ///< of the holder
    Value (*getByObject)(const MObject&, const MObject&, bool);
    Value (*getByName)(const MObject&, const MString&);
    Value (*getInBlock)(MDataBlock&, const MObject&);
    void (*setByObject)(const MObject&, const MObject&, Parameter, bool);
    void (*setByName)(const MObject&, const MString&, Parameter);
    void (*setInBlock)(MDataBlock&, const MObject&, Parameter);
    std::vector<Value> values; ///< none is the attribute's default
    Value neutral;             ///< of a plug that is of no use
    Value (*read)(const MPlug&);
    void (*write)(MPlug, const Value&);
};

#define TVX_MEMBERS(Name, attribute, values, neutral, Value)                                                 \
#Name, attribute, &MayaUtils::get##Name##Attribute, &MayaUtils::get##Name##Attribute,                    \
        &MayaUtils::get##Name##Attribute, &MayaUtils::set##Name##Attribute,                                  \
        &MayaUtils::set##Name##Attribute, &MayaUtils::set##Name##Attribute, values, neutral,                 \
        [](const MPlug& plug) { return plug.as##Name(); }, [](MPlug plug,                                    \
                                                              const Value& value) { plug.set##Name(value); }

struct BoolMembers : Members<bool, bool>
{
    BoolMembers() : Members{TVX_MEMBERS(Bool, "boolValue", {true}, false, bool)} {}
};
struct ShortMembers : Members<short, short>
{
    ShortMembers() : Members{TVX_MEMBERS(Short, "shortValue", (std::vector<short>{-32768, 32767}), 0, short)}
    {
    }
};
struct IntMembers : Members<int, int>
{
    IntMembers()
        : Members{TVX_MEMBERS(Int, "intValue", (std::vector<int>{-2147483647 - 1, 2147483647}), 0, int)}
    {
    }
};
struct FloatMembers : Members<float, float>
{
    FloatMembers()
        : Members{TVX_MEMBERS(Float, "floatValue", (std::vector<float>{0.1f, -3e38f}), 0.0f, float)}
    {
    }
};
struct DoubleMembers : Members<double, double>
{
    DoubleMembers()
        : Members{TVX_MEMBERS(Double, "doubleValue", (std::vector<double>{0.1, -1e300}), 0.0, double)}
    {
    }
};
struct StringMembers : Members<MString, const MString&>
{
    StringMembers()
        : Members{
              TVX_MEMBERS(String, "stringValue", (std::vector<MString>{"text", "a \"b\" c"}), "", MString)}
    {
    }
};

#undef TVX_MEMBERS

/// What members report before the error string: of the function set, of the look-up, of the data block. Those
/// that are not listed report the error string alone.
using Prefixes = std::tuple<std::string, std::string, std::string>;
Prefixes prefixesOf(const std::string& member, const std::string& form)
{
    static const std::map<std::pair<std::string, std::string>, Prefixes> listed = {
        {{"getBoolAttribute", "object"}, {"getBoolAttribute:depFn : ", "getBoolAttribute:depFn : ", ""}},
        {{"getBoolAttribute", "name"}, {"getBoolAttribute:depFn : ", "getBoolAttribute:findPlug : ", ""}},
        {{"getBoolAttribute", "block"}, {"", "", "getBoolAttribute:inputValue : "}},
        {{"getDoubleAttribute", "name"},
         {"getDoubleAttribute:depFn : ", "getDoubleAttribute:findPlug : ", ""}},
        {{"getDoubleAttribute", "block"}, {"", "", "getDoubleAttribute:inputValue : "}},
        // A plug that was not found has no name.
        {{"getStringAttribute", "object"},
         {"getStringAttribute:depFn : ", "getStringAttribute:findPlug(holder,):", ""}},
        {{"getStringAttribute", "name"},
         {"getStringAttribute:depFn : ", "getStringAttribute:findPlug(holder,stringValue)", ""}},
    };
    const auto found = listed.find({member, form});
    return found == listed.end() ? Prefixes{} : found->second;
}

template <class Row>
class NumberAttributes : public HolderFixture
{
protected:
    std::string getter() const { return std::string("get") + row.name + "Attribute"; }
    std::string setter() const { return std::string("set") + row.name + "Attribute"; }
    MObject attributeOfRow() const { return attribute(row.attribute); }
    MPlug plugOfRow() const { return plug(row.attribute); }
    MString attributeName() const { return row.attribute; }

    /// The steps of a look-up. A function set that is attached to nothing has no name to tell.
    std::vector<Step> lookUp(const std::string& member, const std::string& form) const
    {
        const auto [node, plug, handle] = prefixesOf(member, form);
        const std::string withoutName = std::regex_replace(plug, std::regex("holder"), "");
        return {{"MFnDependencyNode::MFnDependencyNode", node},
                {"MFnDependencyNode::findPlug", plug, withoutName + errorOfUnattachedSet()}};
    }

    const Row row;
};

using Rows =
    testing::Types<BoolMembers, ShortMembers, IntMembers, FloatMembers, DoubleMembers, StringMembers>;
TYPED_TEST_SUITE(NumberAttributes, Rows);

TYPED_TEST(NumberAttributes, GettersOfAllFormsReadTheValue)
{
    for (const auto& value : this->row.values) {
        this->row.write(this->plugOfRow(), value);
        EXPECT_EQ(this->row.getByObject(this->holder, this->attributeOfRow(), true), value);
        EXPECT_EQ(this->row.getByObject(this->holder, this->attributeOfRow(), false), value);
        EXPECT_EQ(this->row.getByName(this->holder, this->attributeName()), value);
        MDataBlock block = this->block();
        EXPECT_EQ(this->row.getInBlock(block, this->attributeOfRow()), value);
    }
    EXPECT_THAT(this->recorder.take(), IsEmpty());
}

TYPED_TEST(NumberAttributes, SettersOfAllFormsWriteTheValue)
{
    MDataBlock block = this->block();
    for (const auto& value : this->row.values) {
        const auto expectWritten = [&] {
            EXPECT_EQ(this->row.read(this->plugOfRow()), value);
            this->row.write(this->plugOfRow(), this->row.neutral);
        };
        this->row.setByObject(this->holder, this->attributeOfRow(), value, true);
        expectWritten();
        this->row.setByObject(this->holder, this->attributeOfRow(), value, false);
        expectWritten();
        this->row.setByName(this->holder, this->attributeName(), value);
        expectWritten();
        this->row.setInBlock(block, this->attributeOfRow(), value);
        expectWritten();
    }
    EXPECT_THAT(this->recorder.take(), IsEmpty());
}

TYPED_TEST(NumberAttributes, TheFormByObjectReportsItsLookUp)
{
    const MObject attribute = this->attributeOfRow();
    this->expectReports(this->getter(), this->lookUp(this->getter(), "object"),
                        [&] { this->row.getByObject(this->holder, attribute, true); });
    this->expectReports(this->setter(), this->lookUp(this->setter(), "object"),
                        [&] { this->row.setByObject(this->holder, attribute, this->row.values[0], true); });
}

TYPED_TEST(NumberAttributes, TheFormByNameReportsItsLookUp)
{
    this->expectReports(this->getter(), this->lookUp(this->getter(), "name"),
                        [&] { this->row.getByName(this->holder, this->attributeName()); });
    this->expectReports(this->setter(), this->lookUp(this->setter(), "name"), [&] {
        this->row.setByName(this->holder, this->attributeName(), this->row.values[0]);
    });
}

TYPED_TEST(NumberAttributes, WithoutALookUpTheFormByObjectReportsNothing)
{
    // Only what the test does itself fails; the members make no function set and look nothing up.
    const MObject attribute = this->attributeOfRow();
    faults::failCall("MFnDependencyNode::MFnDependencyNode", 0, MStatus(MStatus::kFailure));
    faults::failCall("MFnDependencyNode::findPlug", 0, MStatus(MStatus::kFailure));
    this->row.setByObject(this->holder, attribute, this->row.values[0], false);
    EXPECT_EQ(this->row.getByObject(this->holder, attribute, false), this->row.values[0]);
    faults::clear();
    EXPECT_EQ(this->row.getByObject(this->holder, this->strangeAttribute(), false), this->row.neutral);
    this->row.setByObject(this->holder, this->strangeAttribute(), this->row.values[0], false);
    EXPECT_EQ(this->row.getByObject(MObject::kNullObj, attribute, false), this->row.neutral);
    EXPECT_THAT(this->recorder.take(), IsEmpty());
}

TYPED_TEST(NumberAttributes, TheFormInABlockReportsItsHandle)
{
    MDataBlock block = this->block();
    const MObject attribute = this->attributeOfRow();
    this->expectReports(this->getter(),
                        {{"MDataBlock::inputValue", std::get<2>(prefixesOf(this->getter(), "block"))}},
                        [&] { this->row.getInBlock(block, attribute); });
    this->expectReports(this->setter(), {{"MDataBlock::outputValue", ""}},
                        [&] { this->row.setInBlock(block, attribute, this->row.values[0]); });
}

TYPED_TEST(NumberAttributes, SettersLeaveWhatTheBlockHoldsDirtyOrCleanAsItWas)
{
    MDataBlock block = this->block();
    faults::record(true);
    this->row.setInBlock(block, this->attributeOfRow(), this->row.values[0]);
    EXPECT_EQ(faults::countOf("MDataBlock::setClean"), 0u);
    EXPECT_EQ(faults::countOf("MDataHandle::setClean"), 0u);
}

TYPED_TEST(NumberAttributes, APlugOfNoUseReadsAsTheNeutralValue)
{
    coreLog().setSeverityFilter(core::kCritical);
    EXPECT_EQ(this->row.getByObject(MObject::kNullObj, this->attributeOfRow(), true), this->row.neutral);
    EXPECT_EQ(this->row.getByName(this->holder, "missing"), this->row.neutral);
    MDataBlock block = this->block();
    EXPECT_EQ(this->row.getInBlock(block, this->strangeAttribute()), this->row.neutral);
}

class MetInScenes : public HolderFixture
{
};

TEST_F(MetInScenes, WithoutALookUpAMissingAttributeIsNotNoticed)
{
    EXPECT_FALSE(MayaUtils::getBoolAttribute(holder, strangeAttribute(), false));
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(MetInScenes, ALookUpOfAMissingAttributeIsToldInTheWordsOfTheFunctionSet)
{
    MStatus status;
    MFnDependencyNode(holder, nullptr).findPlug(strangeAttribute(), true, &status);
    EXPECT_FALSE(MayaUtils::getBoolAttribute(holder, strangeAttribute(), true));
    EXPECT_THAT(recorder.take(),
                ElementsAre(report("getBoolAttribute", "getBoolAttribute:depFn : " +
                                                           std::string(status.errorString().asChar()))));
}

TEST_F(MetInScenes, ALookUpOnWhatIsNoNodeIsToldTwiceInTheSameWords)
{
    MStatus status;
    MFnDependencyNode noNode(strangeAttribute(), &status);
    EXPECT_FALSE(MayaUtils::getBoolAttribute(strangeAttribute(), attribute("boolValue"), true));
    EXPECT_THAT(
        recorder.take(),
        ElementsAre(report("getBoolAttribute",
                           "getBoolAttribute:depFn : " + std::string(status.errorString().asChar())),
                    report("getBoolAttribute", "getBoolAttribute:depFn : " + errorOfUnattachedSet())));
}

TEST_F(MetInScenes, AStringOfAMissingNameIsToldWithNodeAndNameAndNoBlank)
{
    MStatus status;
    MFnDependencyNode(holder, nullptr).findPlug("absent", true, &status);
    const std::string error = status.errorString().asChar();
    EXPECT_EQ(MayaUtils::getStringAttribute(holder, "absent"), MString());
    EXPECT_THAT(recorder.take(), ElementsAre(report("getStringAttribute",
                                                    "getStringAttribute:findPlug(holder,absent)" + error)));
}

TEST_F(MetInScenes, AStringOfAMissingAttributeIsToldWithNodeAndPlugAndAColon)
{
    MStatus status;
    MFnDependencyNode(holder, nullptr).findPlug(strangeAttribute(), true, &status);
    const std::string error = status.errorString().asChar();
    EXPECT_EQ(MayaUtils::getStringAttribute(holder, strangeAttribute(), true), MString());
    EXPECT_THAT(recorder.take(),
                ElementsAre(report("getStringAttribute", "getStringAttribute:findPlug(holder,):" + error)));
}

TEST_F(MetInScenes, AStringOfNoNodeIsToldWithoutItsName)
{
    const std::string nullObject = errorOfNullObject();
    MayaUtils::getStringAttribute(MObject::kNullObj, "stringValue");
    EXPECT_THAT(recorder.take(),
                ElementsAre(report("getStringAttribute", "getStringAttribute:depFn : " + nullObject),
                            report("getStringAttribute",
                                   "getStringAttribute:findPlug(,stringValue)" + errorOfUnattachedSet())));
    MayaUtils::getStringAttribute(MObject::kNullObj, attribute("stringValue"), true);
    EXPECT_THAT(recorder.take(),
                ElementsAre(report("getStringAttribute", "getStringAttribute:depFn : " + nullObject),
                            report("getStringAttribute",
                                   "getStringAttribute:findPlug(,):" + errorOfUnattachedSet())));
}

TEST_F(MetInScenes, DoublesAreNarrowedToFloats)
{
    plug("doubleValue").setDouble(0.1);
    MDataBlock data = block();
    EXPECT_EQ(MayaUtils::getDoubleAttributeAsFloat(holder, attribute("doubleValue"), true), 0.1f);
    EXPECT_EQ(MayaUtils::getDoubleAttributeAsFloat(holder, attribute("doubleValue"), false), 0.1f);
    EXPECT_EQ(MayaUtils::getDoubleAttributeAsFloat(holder, "doubleValue"), 0.1f);
    EXPECT_EQ(MayaUtils::getDoubleAttributeAsFloat(data, attribute("doubleValue")), 0.1f);
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(MetInScenes, NarrowedDoublesReportAsTheDoublesDo)
{
    const MObject attribute = this->attribute("doubleValue");
    MDataBlock data = block();
    expectReports("getDoubleAttribute",
                  {{"MFnDependencyNode::MFnDependencyNode", ""},
                   {"MFnDependencyNode::findPlug", "", errorOfUnattachedSet()}},
                  [&] { MayaUtils::getDoubleAttributeAsFloat(holder, attribute, true); });
    expectReports("getDoubleAttribute",
                  {{"MFnDependencyNode::MFnDependencyNode", "getDoubleAttribute:depFn : "},
                   {"MFnDependencyNode::findPlug", "getDoubleAttribute:findPlug : ",
                    "getDoubleAttribute:findPlug : " + errorOfUnattachedSet()}},
                  [&] { MayaUtils::getDoubleAttributeAsFloat(holder, "doubleValue"); });
    expectReports("getDoubleAttribute", {{"MDataBlock::inputValue", "getDoubleAttribute:inputValue : "}},
                  [&] { MayaUtils::getDoubleAttributeAsFloat(data, attribute); });
}

TEST_F(MetInScenes, ReportsTellALineOfTheSource)
{
    MayaUtils::getIntAttribute(holder, "missing");
    ASSERT_EQ(recorder.lines.size(), 1u);
    EXPECT_GT(recorder.lines[0], 1);
}

TEST_F(MetInScenes, AnExceptionOfTheCoreIsLoggedInPlaceOfTheReportAndTheCallGoesOn)
{
    const MObject intValue = attribute("intValue");
    faults::failCall("MFnDependencyNode::MFnDependencyNode", 1, MStatus(MStatus::kFailure));
    recorder.exceptions = 1;
    MayaUtils::getIntAttribute(holder, intValue, true);
    EXPECT_THAT(recorder.take(), ElementsAre(report("getIntAttribute", "listener failed"),
                                             report("getIntAttribute", errorOfUnattachedSet())));
}

} // namespace
} // namespace tarvox::crowd::test
