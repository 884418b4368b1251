// MUuid: the identity of a node across files.
#include <maya/MString.h>
#include <maya/MUuid.h>

#include <gtest/gtest.h>

#include <algorithm>

namespace {

const char* const kText = "0123ABCD-4567-89AB-CDEF-0123456789AB";
const unsigned char kBytes[16] = {0x01, 0x23, 0xAB, 0xCD, 0x45, 0x67, 0x89, 0xAB,
                                  0xCD, 0xEF, 0x01, 0x23, 0x45, 0x67, 0x89, 0xAB};

TEST(MUuid, IsEmptyByDefault)
{
    EXPECT_FALSE(MUuid().valid());
    EXPECT_STREQ(MUuid().asString().asChar(), "00000000-0000-0000-0000-000000000000");
}

TEST(MUuid, IsTheSameFromTextBytesAndWords)
{
    MStatus status = MS::kFailure;
    const MUuid fromText(MString(kText), &status);
    EXPECT_EQ(status, MS::kSuccess);
    const unsigned int words[4] = {0x0123ABCDu, 0x456789ABu, 0xCDEF0123u, 0x456789ABu};
    EXPECT_TRUE(fromText == MUuid(kBytes));
    EXPECT_TRUE(fromText == MUuid(words));
    EXPECT_TRUE(fromText == MUuid(MString("0123abcd-4567-89ab-cdef-0123456789ab")));
    EXPECT_STREQ(fromText.asString().asChar(), kText);
    unsigned char bytes[16] = {};
    EXPECT_EQ(fromText.get(bytes), MS::kSuccess);
    EXPECT_TRUE(std::equal(bytes, bytes + 16, kBytes));
}

TEST(MUuid, RefusesWhatIsNoIdentifier)
{
    for (const char* text :
         {"", "0123ABCD", "0123ABCD-4567-89AB-CDEF-0123456789AG", "0123ABCD+4567-89AB-CDEF-0123456789AB",
          "0123ABCD-4567-89AB-CDEF-0123456789AB0"}) {
        MStatus status;
        EXPECT_FALSE(MUuid(MString(text), &status).valid()) << text;
        EXPECT_EQ(status, MS::kInvalidParameter) << text;
    }
}

TEST(MUuid, IsNewEachTimeItIsGenerated)
{
    MUuid one, two;
    EXPECT_EQ(one.generate(), MS::kSuccess);
    two.generate();
    EXPECT_TRUE(one.valid());
    EXPECT_TRUE(one != two);
    MUuid copy(one);
    EXPECT_TRUE(copy == one);
    copy.copy(two);
    EXPECT_TRUE(copy == two);
    EXPECT_EQ(one.asString().asChar()[14], '4') << "version 4";
}

} // namespace
