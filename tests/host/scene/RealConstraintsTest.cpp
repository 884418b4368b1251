// A rig that real Maya wrote: what its constraints yield here is what Maya noted when they were made, and its
// joints stand where its skins were bound. TVX_SCENES_DIR names the folder of the scenes.
#include "scene/reader.h"

#include "engine/matrixParts.h"
#include "engine/scene.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tvxhost::scene {
namespace {

using engine::Matrix;
using engine::Node;
using engine::Plug;
using engine::Vec3d;

/// Their objects were given other parents after they were made.
const std::vector<std::string> kReparented = {"TwistFollowSpine2_M_parentConstraint1",
                                              "TwistFollowParentSpine2_M_parentConstraint1"};

class Rig : public testing::Test
{
protected:
    Rig()
    {
        const auto opened =
            openScene(scene, std::string(TVX_SCENES_DIR) +
                                 "/GenEugene+GenEugene-Rigs/MAIN/Rigs/BoxMan/rig_BoxMan_Norman.ma");
        EXPECT_TRUE(opened.outcome) << opened.outcome.text;
    }

    Plug plug(const std::string& name)
    {
        const auto found = scene.findPlug(name);
        EXPECT_TRUE(found) << found.outcome.text;
        return found.value;
    }
    Vec3d vector(const std::string& name)
    {
        const std::vector<double> numbers = engine::readNumbers(plug(name)).value;
        return numbers.size() == 3 ? Vec3d(numbers[0], numbers[1], numbers[2]) : Vec3d(0.0);
    }
    std::vector<Node*> nodesOf(const std::string& type)
    {
        std::vector<Node*> nodes;
        for (Node* node : scene.nodes())
            if (node->type().name == type)
                nodes.push_back(node);
        return nodes;
    }

    /// The constraints of a type that yield something else than they did when they were made.
    std::vector<std::string> movedSince(const std::string& type)
    {
        std::vector<std::string> moved;
        for (Node* node : nodesOf(type)) {
            const std::string& name = node->name();
            const Vec3d off = vector(name + ".constraintTranslate") - vector(name + ".restTranslate");
            if (!(off.length() < kNear))
                moved.push_back(name);
        }
        return moved;
    }
    std::vector<std::string> turnedSince(const std::string& type)
    {
        std::vector<std::string> turned;
        for (Node* node : nodesOf(type)) {
            const std::string& name = node->name();
            if (!areAlike(vector(name + ".constraintRotate"), vector(name + ".restRotate")))
                turned.push_back(name);
        }
        return turned;
    }
    /// Different angles can be one orientation.
    static bool areAlike(const Vec3d& angles, const Vec3d& others)
    {
        return engine::rotation(angles, 0).equalWithAbsError(engine::rotation(others, 0), kNear);
    }

    static constexpr double kNear = 1e-5;
    engine::Scene scene;
};

TEST_F(Rig, ConstraintsOfPlacesYieldWhatMayaNoted)
{
    EXPECT_EQ(nodesOf("pointConstraint").size(), 82U);
    EXPECT_THAT(movedSince("pointConstraint"), testing::IsEmpty());
    EXPECT_EQ(nodesOf("parentConstraint").size(), 39U);
    EXPECT_THAT(movedSince("parentConstraint"), testing::UnorderedElementsAreArray(kReparented));
}

TEST_F(Rig, ConstraintsOfOrientationsYieldWhatMayaNoted)
{
    EXPECT_EQ(nodesOf("orientConstraint").size(), 78U);
    EXPECT_THAT(turnedSince("orientConstraint"), testing::IsEmpty());
    EXPECT_THAT(turnedSince("parentConstraint"), testing::UnorderedElementsAreArray(kReparented));
}

TEST_F(Rig, PoleVectorsPointWhereMayaNoted)
{
    EXPECT_EQ(nodesOf("poleVectorConstraint").size(), 5U);
    EXPECT_THAT(movedSince("poleVectorConstraint"),
                testing::UnorderedElementsAre("IKLegHandle_R_poleVectorConstraint1",
                                              "IKLegHandle_L_poleVectorConstraint1"))
        << "the knees' have followed an object that was constrained later";
}

TEST_F(Rig, AnAimConstraintYieldsWhatMayaNoted)
{
    // When it was made, the constrained object stood at the hip; a point constraint has moved it since.
    for (const std::string side : {"R", "L"}) {
        const std::string name = "PoleAimLeg_" + side + "_aimConstraint1";
        const Plug place = plug(name + ".constraintTranslate");
        ASSERT_TRUE(scene.disconnect(engine::sourceOf(place), place));
        const auto data = engine::readData(plug("IKXHip_" + side + ".worldMatrix[0]"));
        const Vec3d at = static_cast<const engine::MatrixData&>(*data.value).value.translation();
        ASSERT_TRUE(engine::writeNumbers(place, {at.x, at.y, at.z}));
        EXPECT_TRUE(areAlike(vector(name + ".constraintRotate"), vector(name + ".restRotate"))) << name;
    }
}

TEST_F(Rig, JointsStandWhereTheSkinsWereBound)
{
    int joints = 0;
    for (Node* skin : nodesOf("skinCluster")) {
        const Plug inverses = plug(skin->name() + ".bindPreMatrix");
        const Plug matrices = plug(skin->name() + ".matrix");
        for (const int i : engine::existingElements(matrices)) {
            const auto place = engine::readData(matrices.element(i));
            const auto inverse = engine::readData(inverses.element(i));
            ASSERT_TRUE(place && inverse) << skin->name() << ' ' << i;
            const Matrix off = static_cast<const engine::MatrixData&>(*inverse.value).value *
                               static_cast<const engine::MatrixData&>(*place.value).value;
            EXPECT_TRUE(off.equalWithAbsError(Matrix(), 1e-4)) << skin->name() << ' ' << i << '\n' << off;
            ++joints;
        }
    }
    EXPECT_GT(joints, 0);
}

} // namespace
} // namespace tvxhost::scene
