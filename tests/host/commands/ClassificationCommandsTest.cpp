// getClassification, listNodeTypes.
#include "CommandFixture.h"

namespace tvxhost::mel {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class ClassificationCommandsTest : public CommandFixture
{
protected:
    ClassificationCommandsTest()
    {
        addType("paint", 0x7f200, "shader/reflective/phong:texture");
        addType("mixer", 0x7f201, "utility/general:swatch/mixerSwatch");
        addType("marker", 0x7f202, "");
    }

    void addType(const char* name, std::uint32_t id, const char* classification)
    {
        const auto type = scene.types().add(name, id, *scene.types().find("THdependNode"));
        ASSERT_TRUE(type) << type.outcome.text;
        type.value->classification = classification;
    }
};

TEST_F(ClassificationCommandsTest, theClassificationIsOneStringOrNone)
{
    EXPECT_THAT(strings("getClassification paint"), ElementsAre("shader/reflective/phong:texture"));
    EXPECT_THAT(strings("getClassification mixer"), ElementsAre("utility/general:swatch/mixerSwatch"));
    EXPECT_THAT(strings("getClassification marker"), IsEmpty());
    EXPECT_EQ(failure("getClassification nobody"), "Unknown object type: nobody");
}

TEST_F(ClassificationCommandsTest, aPartIsSatisfiedByWhatIsBelowIt)
{
    EXPECT_EQ(run("getClassification -satisfies \"shader:texture\" paint"), "1");
    EXPECT_EQ(run("getClassification -sat \"shader/reflective/phong:texture\" paint"), "1");
    EXPECT_EQ(run("getClassification -sat \"texture:shader/reflective\" paint"), "1");
    EXPECT_EQ(run("getClassification -sat \"shader/reflective/phong/deep:texture\" paint"), "0");
    EXPECT_EQ(run("getClassification -sat \"shade:texture\" paint"), "0");
}

TEST_F(ClassificationCommandsTest, everyCategoryOfTheTypeCounts)
{
    EXPECT_EQ(run("getClassification -sat \"shader\" paint"), "0");
    EXPECT_EQ(run("getClassification -sat \"shader:texture:light\" paint"), "0");
    EXPECT_EQ(run("getClassification -sat \"shader\" marker"), "0");
}

TEST_F(ClassificationCommandsTest, theSwatchIsNoCategoryButCanBeAskedFor)
{
    EXPECT_EQ(run("getClassification -sat \"utility\" mixer"), "1");
    EXPECT_EQ(run("getClassification -sat \"utility/general\" mixer"), "1");
    EXPECT_EQ(run("getClassification -sat \"utility/general:swatch/mixerSwatch\" mixer"), "1");
    EXPECT_EQ(run("getClassification -sat \"utility/general:swatch/otherSwatch\" mixer"), "0");
    EXPECT_EQ(run("getClassification -sat \"swatch\" mixer"), "0");
}

TEST_F(ClassificationCommandsTest, typesAreListedByClassification)
{
    EXPECT_THAT(strings("listNodeTypes \"utility\""), Contains("mixer"));
    EXPECT_THAT(strings("listNodeTypes \"utility\""), Not(Contains("paint")));
    EXPECT_THAT(strings("listNodeTypes \"shader:texture\""), ElementsAre("paint"));
    EXPECT_THAT(strings("listNodeTypes -exclude \"utility/general\" \"utility\""), Not(Contains("mixer")));
}

} // namespace tvxhost::mel
