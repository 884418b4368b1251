// The standard flags of a new attribute.
#include "core/utils/tvxMayaUtils.h"

#include "../log/LogRecorder.h"
#include "api/support/faults.h"

#include <maya/MFnNumericAttribute.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace tarvox::crowd {
namespace {

namespace faults = tvxhost::api::faults;

using testing::ElementsAre;

class SetAttributeFlags : public testing::Test
{
protected:
    SetAttributeFlags() { attribute.create("attribute", "a", MFnNumericData::kInt); }
    ~SetAttributeFlags() override { faults::clear(); }

    std::string flags() const
    {
        const auto letter = [](bool on, char name) { return on ? name : '-'; };
        return {letter(attribute.isKeyable(), 'K'),  letter(attribute.isReadable(), 'R'),
                letter(attribute.isWritable(), 'W'), letter(attribute.isHidden(), 'H'),
                letter(attribute.isArray(), 'A'),    letter(attribute.indexMatters(), 'I')};
    }

    MFnNumericAttribute attribute;
};

TEST_F(SetAttributeFlags, SetsEachFlagFromItsArgument)
{
    MayaUtils::setAttributeFlags(attribute, false, false, false, false, false, false);
    EXPECT_EQ(flags(), "------");
    MayaUtils::setAttributeFlags(attribute, true, false, false, false, false, false);
    EXPECT_EQ(flags(), "K-----");
    MayaUtils::setAttributeFlags(attribute, false, true, false, false, false, false);
    EXPECT_EQ(flags(), "-R----");
    MayaUtils::setAttributeFlags(attribute, false, false, true, false, false, false);
    EXPECT_EQ(flags(), "--W---");
    MayaUtils::setAttributeFlags(attribute, false, false, false, true, false, false);
    EXPECT_EQ(flags(), "---H--");
    MayaUtils::setAttributeFlags(attribute, false, false, false, false, true, false);
    EXPECT_EQ(flags(), "----A-");
    MayaUtils::setAttributeFlags(attribute, false, false, false, false, false, true);
    EXPECT_EQ(flags(), "-----I");
    MayaUtils::setAttributeFlags(attribute, true, true, true, true, true, true);
    EXPECT_EQ(flags(), "KRWHAI");
}

TEST_F(SetAttributeFlags, SetsThemInOrder)
{
    faults::record(true);
    MayaUtils::setAttributeFlags(attribute, false, true, true, false, false, true);
    EXPECT_THAT(faults::calls(), ElementsAre("MFnAttribute::setKeyable", "MFnAttribute::setReadable",
                                             "MFnAttribute::setWritable", "MFnAttribute::setHidden",
                                             "MFnAttribute::setArray", "MFnAttribute::setIndexMatters"));
}

TEST_F(SetAttributeFlags, IgnoresAFlagThatMayaRefusesAndSetsTheOthers)
{
    const test::LogRecorder recorder;
    coreLog().setSeverityFilter(core::kDebug);
    const struct
    {
        const char* call;
        const char* flags; ///< as a new attribute has it, the others as they are set
    } rows[] = {
        {"MFnAttribute::setKeyable", "-RWHAI"},  {"MFnAttribute::setReadable", "KRWHAI"},
        {"MFnAttribute::setWritable", "KRWHAI"}, {"MFnAttribute::setHidden", "KRW-AI"},
        {"MFnAttribute::setArray", "KRWH-I"},    {"MFnAttribute::setIndexMatters", "KRWHAI"},
    };
    for (const auto& row : rows) {
        attribute.create("attribute", "a", MFnNumericData::kInt);
        faults::failCall(row.call, 1, MStatus(MStatus::kFailure));
        MayaUtils::setAttributeFlags(attribute, true, true, true, true, true, true);
        EXPECT_EQ(flags(), row.flags) << row.call;
    }
    attribute.create("attribute", "a", MFnNumericData::kInt);
    faults::failCall("MFnAttribute::setWritable", 1, MStatus(MStatus::kFailure));
    MayaUtils::setAttributeFlags(attribute, true, false, false, true, true, false);
    EXPECT_EQ(flags(), "K-WHA-");
    EXPECT_THAT(recorder.events, testing::IsEmpty());
}

} // namespace
} // namespace tarvox::crowd
