// MRampAttribute: entries, their order, and what a ramp yields between them.
#include "../arrays.h"
#include "../sceneFixture.h"

#include <maya/MColor.h>
#include <maya/MColorArray.h>
#include <maya/MFnAttribute.h>
#include <maya/MFnDependencyNode.h>
#include <maya/MRampAttribute.h>

#include <sstream>

namespace tvxhost::api::test {
namespace {

class MRampAttributeTest : public SceneFixture
{
protected:
    /// A ramp of numbers on a new node: 0 at 0, 4 at 0.5, 2 at 1, all linear.
    MRampAttribute makeTent()
    {
        make("transform", "owner");
        MStatus status;
        MRampAttribute::createRamp("height", "hg", object("owner"), floats({0, 4, 2}), floats({0, 0.5F, 1}),
                                   ints({1, 1, 1}), &status);
        EXPECT_EQ(status, MS::kSuccess) << text(status);
        return MRampAttribute(plug("owner.height"), nullptr);
    }
    /// "index:position=value/interpolation" of each entry.
    static std::string entries(MRampAttribute& ramp)
    {
        MIntArray indices, interpolations;
        MFloatArray positions, values;
        MStatus status;
        ramp.getEntries(indices, positions, values, interpolations, &status);
        EXPECT_EQ(status, MS::kSuccess) << text(status);
        std::ostringstream all;
        for (unsigned int i = 0; i < indices.length(); ++i)
            all << indices[i] << ':' << positions[i] << '=' << values[i] << '/' << interpolations[i] << ' ';
        return all.str();
    }
    static float at(MRampAttribute& ramp, float position)
    {
        float value = -1.0F;
        MStatus status;
        ramp.getValueAtPosition(position, value, &status);
        EXPECT_EQ(status, MS::kSuccess);
        return value;
    }
};

TEST_F(MRampAttributeTest, AnAttributeHasMayasParts)
{
    MStatus status;
    const MObject curve = MRampAttribute::createCurveRamp("height", "hg", &status);
    EXPECT_EQ(status, MS::kSuccess);
    MFnDependencyNode owner(tvxAccess::handle(&make("transform", "owner")), nullptr);
    EXPECT_EQ(owner.addAttribute(curve), MS::kSuccess);
    EXPECT_EQ(owner.addAttribute(MRampAttribute::createColorRamp("tint", "tn")), MS::kSuccess);
    for (const char* name :
         {"height_Position", "hgp", "height_FloatValue", "hgfv", "height_Interp", "hgi", "tint_Position",
          "tnp", "tint_Color", "tnc", "tint_ColorG", "tncg", "tint_Interp"})
        EXPECT_TRUE(owner.hasAttribute(name)) << name;
    EXPECT_TRUE(MFnAttribute(curve, nullptr).isArray());
    EXPECT_TRUE(MRampAttribute(owner.object(), curve).isCurveRamp());
    EXPECT_FALSE(MRampAttribute(owner.object(), curve).isColorRamp());
    EXPECT_TRUE(MRampAttribute(plug("owner.tint")).isColorRamp());
    EXPECT_EQ(MRampAttribute(plug("owner.tint")).getNumEntries(), 0u);
}

TEST_F(MRampAttributeTest, AnotherPlugIsNoRamp)
{
    make("transform", "owner");
    MStatus status;
    MRampAttribute ramp(plug("owner.translate"), &status);
    EXPECT_EQ(text(status), "(kInvalidParameter): Object is incompatible with this method");
    EXPECT_EQ(ramp.getNumEntries(&status), 0u);
    EXPECT_EQ(text(status), "(kFailure): Object does not exist");
    EXPECT_EQ(MRampAttribute().pack(), MS::kFailure);
}

TEST_F(MRampAttributeTest, EntriesComeAndGoByIndex)
{
    MRampAttribute ramp = makeTent();
    EXPECT_EQ(entries(ramp), "0:0=0/1 1:0.5=4/1 2:1=2/1 ");
    MStatus status;
    MIntArray one = ints({1});
    ramp.deleteEntries(one, &status);
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_FALSE(ramp.hasIndex(1));
    EXPECT_TRUE(ramp.hasIndex(2));
    ramp.deleteEntries(one, &status);
    EXPECT_EQ(text(status), "(kInvalidParameter): No element at given index");
    MFloatArray positions = floats({0.25F, 0.75F}), values = floats({7, 8});
    MIntArray interpolations = ints({2, 3});
    ramp.addEntries(positions, values, interpolations, &status);
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_EQ(entries(ramp), "0:0=0/1 1:0.25=7/2 2:1=2/1 3:0.75=8/3 ");
    EXPECT_EQ(ramp.getNumEntries(), 4u);
    interpolations = ints({2});
    ramp.addEntries(positions, values, interpolations, &status);
    EXPECT_EQ(status, MS::kInvalidParameter) << "the arrays are not equally long";
    MColorArray colors(2);
    interpolations = ints({1, 1});
    ramp.addEntries(positions, colors, interpolations, &status);
    EXPECT_EQ(status, MS::kInvalidParameter) << "it holds numbers";
}

TEST_F(MRampAttributeTest, OneThingOfAnEntryIsChanged)
{
    MRampAttribute ramp = makeTent();
    MStatus status;
    ramp.setValueAtIndex(5.0F, 1, &status);
    EXPECT_EQ(status, MS::kSuccess);
    ramp.setPositionAtIndex(0.75F, 1);
    ramp.setInterpolationAtIndex(MRampAttribute::kSmooth, 1);
    EXPECT_EQ(entries(ramp), "0:0=0/1 1:0.75=5/2 2:1=2/1 ");
    ramp.setValueAtIndex(5.0F, 9, &status);
    EXPECT_EQ(status, MS::kInvalidParameter);
    EXPECT_FALSE(ramp.hasIndex(9)) << "it was not made by that";
    MColor red(1, 0, 0);
    ramp.setColorAtIndex(red, 1, &status);
    EXPECT_EQ(status, MS::kInvalidParameter);
}

TEST_F(MRampAttributeTest, YieldsWhatItsInterpolationsSay)
{
    MRampAttribute ramp = makeTent();
    EXPECT_FLOAT_EQ(at(ramp, 0.25F), 2.0F);
    EXPECT_FLOAT_EQ(at(ramp, 0.75F), 3.0F);
    EXPECT_FLOAT_EQ(at(ramp, -1.0F), 0.0F);
    EXPECT_FLOAT_EQ(at(ramp, 7.0F), 2.0F);
    ramp.setInterpolationAtIndex(MRampAttribute::kNone, 0);
    EXPECT_FLOAT_EQ(at(ramp, 0.49F), 0.0F);
    EXPECT_FLOAT_EQ(at(ramp, 0.5F), 4.0F);
    ramp.setInterpolationAtIndex(MRampAttribute::kSmooth, 0);
    // 3 t² - 2 t³ at a quarter of the way is 5/32.
    EXPECT_FLOAT_EQ(at(ramp, 0.125F), 4.0F * 5.0F / 32.0F);
    ramp.setInterpolationAtIndex(MRampAttribute::kSpline, 0);
    // Halfway: the mean, and an eighth of the width times the difference of the slopes 8 and 2.
    EXPECT_FLOAT_EQ(at(ramp, 0.25F), 2.0F + 0.5F * (8.0F - 2.0F) / 8.0F);
    MFloatArray samples;
    ramp.setInterpolationAtIndex(MRampAttribute::kLinear, 0);
    ramp.sampleValueRamp(5, samples);
    EXPECT_EQ(tvxAccess::elements(samples), (std::vector<float>{0, 2, 4, 3, 2}));
    MColor color;
    MStatus status;
    ramp.getColorAtPosition(0.5F, color, &status);
    EXPECT_EQ(status, MS::kInvalidParameter);
}

TEST_F(MRampAttributeTest, ColorsAreMixedByChannel)
{
    make("transform", "owner");
    MColorArray colors;
    colors.append(MColor(1, 0, 0));
    colors.append(MColor(0, 0.5F, 1));
    MRampAttribute::createRamp("tint", "tn", object("owner"), colors, floats({0, 1}), ints({1, 1}));
    MRampAttribute ramp(plug("owner.tint"));
    MColor color;
    ramp.getColorAtPosition(0.5F, color);
    EXPECT_EQ(color, MColor(0.5F, 0.25F, 0.5F));
    MColorArray samples;
    ramp.sampleColorRamp(2, samples);
    ASSERT_EQ(samples.length(), 2u);
    EXPECT_EQ(samples[1], MColor(0, 0.5F, 1));
    MIntArray indices, interpolations;
    MFloatArray positions;
    MColorArray values;
    ramp.getEntries(indices, positions, values, interpolations);
    ASSERT_EQ(values.length(), 2u);
    EXPECT_EQ(values[0], MColor(1, 0, 0));
    MColor green(0, 1, 0);
    ramp.setColorAtIndex(green, 0);
    ramp.getColorAtPosition(0.0F, color);
    EXPECT_EQ(color, green);
    EXPECT_EQ(ramp.setRamp(MColor(0.25F, 0.5F, 1)), MS::kSuccess);
    EXPECT_EQ(ramp.getNumEntries(), 1u);
    EXPECT_EQ(ramp.setRamp(0.5F), MS::kInvalidParameter);
    EXPECT_EQ(ramp.setRamp(colors, floats({0, 1}), ints({0, 0})), MS::kSuccess);
    EXPECT_EQ(ramp.getNumEntries(), 2u);
}

TEST_F(MRampAttributeTest, IsPutInOrder)
{
    MRampAttribute ramp = makeTent();
    EXPECT_EQ(ramp.setRamp(floats({1, 2, 3}), floats({0.9F, 0.1F, 0.5F}), ints({1, 0, 2})), MS::kSuccess);
    MIntArray first = ints({0});
    ramp.deleteEntries(first);
    EXPECT_EQ(entries(ramp), "1:0.1=2/0 2:0.5=3/2 ");
    EXPECT_EQ(ramp.sort(false), MS::kSuccess);
    EXPECT_EQ(entries(ramp), "1:0.5=3/2 2:0.1=2/0 ");
    EXPECT_EQ(ramp.sort(), MS::kSuccess);
    EXPECT_EQ(entries(ramp), "1:0.1=2/0 2:0.5=3/2 ");
    EXPECT_EQ(ramp.pack(), MS::kSuccess);
    EXPECT_EQ(entries(ramp), "0:0.1=2/0 1:0.5=3/2 ");
    EXPECT_EQ(ramp.setRamp(6.0F, 0.25F, MRampAttribute::kSmooth), MS::kSuccess);
    EXPECT_EQ(entries(ramp), "0:0.25=6/2 ");
}

} // namespace
} // namespace tvxhost::api::test
