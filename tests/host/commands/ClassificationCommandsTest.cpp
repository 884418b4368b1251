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

    bool satisfies(const std::string& type, const std::string& wanted)
    {
        return run("getClassification -satisfies \"" + wanted + "\" " + type) == "1";
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
    EXPECT_TRUE(satisfies("paint", "shader:texture"));
    EXPECT_TRUE(satisfies("paint", "shader/reflective/phong:texture"));
    EXPECT_TRUE(satisfies("paint", "texture:shader/reflective"));
    EXPECT_FALSE(satisfies("paint", "shader/reflective/phong/deep:texture"));
    EXPECT_FALSE(satisfies("paint", "shade:texture"));
}

TEST_F(ClassificationCommandsTest, everyCategoryOfTheTypeCounts)
{
    EXPECT_FALSE(satisfies("paint", "shader"));
    EXPECT_FALSE(satisfies("paint", "shader:texture:light"));
    EXPECT_FALSE(satisfies("marker", "shader"));
}

TEST_F(ClassificationCommandsTest, theSwatchIsNoCategoryButCanBeAskedFor)
{
    EXPECT_TRUE(satisfies("mixer", "utility"));
    EXPECT_TRUE(satisfies("mixer", "utility/general"));
    EXPECT_TRUE(satisfies("mixer", "utility/general:swatch/mixerSwatch"));
    EXPECT_FALSE(satisfies("mixer", "utility/general:swatch/otherSwatch"));
    EXPECT_FALSE(satisfies("mixer", "swatch"));
}

TEST_F(ClassificationCommandsTest, typesAreListedByClassification)
{
    EXPECT_THAT(strings("listNodeTypes \"utility\""), Contains("mixer"));
    EXPECT_THAT(strings("listNodeTypes \"utility\""), Not(Contains("paint")));
    EXPECT_THAT(strings("listNodeTypes \"shader:texture\""), ElementsAre("paint"));
    EXPECT_THAT(strings("listNodeTypes -exclude \"utility/general\" \"utility\""), Not(Contains("mixer")));
}

} // namespace tvxhost::mel
