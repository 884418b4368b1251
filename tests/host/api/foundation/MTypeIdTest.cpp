// MTypeId: the number that names a type of node or data.
#include <maya/MTypeId.h>

#include <maya/MStatus.h>

#include <gtest/gtest.h>

namespace {

TEST(MTypeId, IsItsNumber)
{
    EXPECT_EQ(MTypeId().id(), 0u);
    EXPECT_EQ(MTypeId(0x12345u).id(), 0x12345u);
    MStatus status = MS::kFailure;
    EXPECT_EQ(MTypeId(0x12345u).id(&status), 0x12345u);
    EXPECT_EQ(status, MS::kSuccess);
}

TEST(MTypeId, IsMadeFromABlockAndANumberInIt)
{
    EXPECT_EQ(MTypeId(0x00123400u >> 8, 0x56u).id(), 0x00123456u);
}

TEST(MTypeId, ComparesByNumber)
{
    const MTypeId one(1u);
    MTypeId copy(one);
    EXPECT_TRUE(copy == one);
    copy = MTypeId(2u);
    EXPECT_TRUE(copy != one);
}

} // namespace
