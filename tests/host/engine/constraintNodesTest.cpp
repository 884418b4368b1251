// Constraints: what they give the object that they constrain.
#include "fixtures.h"

#include <array>
#include <cmath>
#include <string>
#include <vector>

namespace tvxhost::engine {
namespace {

constexpr double kDegree = 3.14159265358979323846 / 180.0;

/// From a transform's attribute to a constraint's; pairs that a constraint lacks are left out.
struct Wire
{
    const char* from;
    const char* to;
};

constexpr Wire kTargetWires[] = {
    {"translate", "targetTranslate"},
    {"rotatePivot", "targetRotatePivot"},
    {"rotate", "targetRotate"},
    {"rotatePivotTranslate", "targetRotateTranslate"},
    {"scale", "targetScale"},
    {"rotateOrder", "targetRotateOrder"},
    {"jointOrient", "targetJointOrient"},
    {"parentMatrix[0]", "targetParentMatrix"},
};

constexpr Wire kConstrainedWires[] = {
    {"rotatePivot", "constraintRotatePivot"},
    {"rotatePivotTranslate", "constraintRotateTranslate"},
    {"rotateOrder", "constraintRotateOrder"},
    {"jointOrient", "constraintJointOrient"},
    {"parentInverseMatrix[0]", "constraintParentInverseMatrix"},
};

class Constraints : public SceneTest
{
protected:
    Constraints()
    {
        parent = &makeTransform("parent");
        makeTransform("driven", parent);
        makeTransform("a");
        makeTransform("b");
    }

    /// A constraint "c" of "driven" with some targets, connected as the commands do it.
    void constrain(const std::string& type, const std::vector<std::string>& targets)
    {
        Node& constraint = make(type, "c");
        wire("driven", kConstrainedWires, constraint, "c");
        for (std::size_t i = 0; i < targets.size(); ++i)
            wire(targets[i], kTargetWires, constraint, "c.target[" + std::to_string(i) + "]");
        for (const Wire& output : {Wire{"constraintTranslate", "translate"},
                                   {"constraintRotate", "rotate"},
                                   {"constraintScale", "scale"}}) {
            const bool isInput = type == "aimConstraint" && std::string(output.from) == "constraintTranslate";
            if (constraint.findAttribute(output.from) && !isInput) {
                EXPECT_TRUE(connect("c." + std::string(output.from), "driven." + std::string(output.to)));
            }
        }
        if (type == "aimConstraint") {
            EXPECT_TRUE(connect("driven.translate", "c.constraintTranslate"));
        }
    }

    void move(const std::string& name, const std::vector<double>& values)
    {
        const Outcome outcome = writeNumbers(plug(name), values);
        EXPECT_TRUE(outcome) << outcome.text;
    }
    void turn(const std::string& name, const std::vector<double>& degrees)
    {
        move(name, {degrees[0] * kDegree, degrees[1] * kDegree, degrees[2] * kDegree});
    }
    void expectNumbers(const std::string& name, const std::vector<double>& expected, double unit = 1.0)
    {
        const std::vector<double> values = readNumbers(plug(name)).value;
        ASSERT_EQ(values.size(), expected.size());
        for (std::size_t i = 0; i < values.size(); ++i)
            EXPECT_NEAR(values[i] / unit, expected[i], 1e-9) << name << ' ' << i;
    }
    void expectDegrees(const std::string& name, const std::vector<double>& expected)
    {
        expectNumbers(name, expected, kDegree);
    }
    Matrix world(const std::string& name)
    {
        const Expected<Ref<Data>> data = readData(plug(name + ".worldMatrix[0]"));
        EXPECT_TRUE(data) << data.outcome.text;
        return static_cast<const MatrixData&>(*data.value).value;
    }
    void expectDirection(const std::string& name, const Vec3d& own, const Vec3d& expected)
    {
        Vec3d direction;
        world(name).multDirMatrix(own, direction);
        EXPECT_LT((direction - expected.normalized()).length(), 1e-9) << direction;
    }

    DagNode* parent = nullptr;

private:
    template <std::size_t count>
    void wire(const std::string& from, const Wire (&wires)[count], Node& constraint, const std::string& to)
    {
        for (const Wire& wire : wires) {
            const bool exists = scene.findPlug(from + "." + wire.from) && constraint.findAttribute(wire.to);
            if (exists) {
                const Outcome outcome = connect(from + "." + wire.from, to + "." + wire.to);
                EXPECT_TRUE(outcome) << outcome.text;
            }
        }
    }
};

// Points

TEST_F(Constraints, APointConstraintGoesToTheWeightedMean)
{
    constrain("pointConstraint", {"a", "b"});
    move("a.translate", {0, 0, 4});
    move("b.translate", {8, 4, 0});
    expectNumbers("driven.translate", {4, 2, 2});
    set("c.target[0].targetWeight", 3);
    expectNumbers("driven.translate", {2, 1, 3});
    set("c.target[1].targetWeight", 0);
    expectNumbers("driven.translate", {0, 0, 4});
}

TEST_F(Constraints, APointConstraintBringsPivotToPivot)
{
    constrain("pointConstraint", {"a"});
    move("a.translate", {1, 2, 3});
    move("a.rotatePivot", {10, 0, 0});
    move("driven.rotatePivot", {0, 5, 0});
    expectNumbers("driven.translate", {11, -3, 3});
}

TEST_F(Constraints, APointConstraintWorksInTheSpaceOfTheParent)
{
    constrain("pointConstraint", {"a"});
    move("a.translate", {7, 0, 0});
    move("parent.translate", {1, 0, 0});
    turn("parent.rotate", {0, 0, 90});
    move("parent.scale", {2, 2, 2});
    // (7,0,0) is (6,0,0) from the parent, whose x points up and whose y points to the left.
    expectNumbers("driven.translate", {0, -3, 0});
    move("c.offset", {0, 1, 0});
    expectNumbers("driven.translate", {0, -2, 0});
    set("c.constraintOffsetPolarity", 1);
    expectNumbers("driven.translate", {0, -4, 0});
}

TEST_F(Constraints, WithoutWeightAConstraintRestsOrStays)
{
    constrain("pointConstraint", {"a"});
    move("a.translate", {1, 2, 3});
    move("c.restTranslate", {7, 8, 9});
    expectNumbers("driven.translate", {1, 2, 3});
    set("c.target[0].targetWeight", 0);
    expectNumbers("driven.translate", {1, 2, 3});
    set("c.enableRestPosition", 1);
    expectNumbers("driven.translate", {7, 8, 9});
}

TEST_F(Constraints, APoleVectorPointsFromTheStartJointToTheTarget)
{
    make("poleVectorConstraint", "c");
    move("a.translate", {5, 5, 0});
    ASSERT_TRUE(connect("a.translate", "c.target[0].targetTranslate"));
    move("b.translate", {1, 0, 0});
    move("parent.translate", {0, 2, 0});
    ASSERT_TRUE(connect("b.translate", "c.constraintRotatePivot"));
    ASSERT_TRUE(connect("parent.worldMatrix[0]", "c.pivotSpace"));
    expectNumbers("c.constraintTranslate", {4, 3, 0});
    makeTransform("handleParent");
    turn("handleParent.rotate", {0, 0, 90});
    move("handleParent.translate", {100, 0, 0});
    ASSERT_TRUE(connect("handleParent.worldInverseMatrix[0]", "c.constraintParentInverseMatrix"));
    expectNumbers("c.constraintTranslate", {3, -4, 0});
}

// Orientations

TEST_F(Constraints, AnOrientConstraintTakesTheOrientationOver)
{
    constrain("orientConstraint", {"a"});
    turn("a.rotate", {10, 20, 30});
    expectDegrees("driven.rotate", {10, 20, 30});
    set("a.rotateOrder", 5);
    set("driven.rotateOrder", 5);
    expectDegrees("driven.rotate", {10, 20, 30});
    turn("parent.rotate", {0, 0, 90});
    EXPECT_TRUE(world("driven").equalWithAbsError(world("a"), 1e-9));
}

TEST_F(Constraints, AnOffsetIsTurnedFirst)
{
    constrain("orientConstraint", {"a"});
    turn("a.rotate", {0, 0, 90});
    turn("c.offset", {90, 0, 0});
    expectDirection("driven", {1, 0, 0}, {0, 1, 0});
    expectDirection("driven", {0, 1, 0}, {0, 0, 1});
}

TEST_F(Constraints, AnOrientConstraintMixesAsItIsTold)
{
    constrain("orientConstraint", {"a", "b"});
    turn("b.rotate", {0, 0, 200});
    struct Row
    {
        int type;
        double angle;
    };
    for (const Row& row : {Row{0, 100}, {1, -80}, {2, -80}, {3, 100}, {4, 100}}) {
        set("c.interpType", row.type);
        expectDegrees("driven.rotate", {0, 0, row.angle});
    }
}

TEST_F(Constraints, JointsKeepTheirOrientation)
{
    DagNode& leader = *make("joint", "leader").asDag();
    make("joint", "follower", parent);
    turn("leader.jointOrient", {0, 30, 0});
    turn("leader.rotate", {0, 0, 40});
    turn("follower.jointOrient", {0, 0, 90});
    Node& constraint = make("orientConstraint", "j");
    EXPECT_TRUE(connect("leader.rotate", "j.target[0].targetRotate"));
    EXPECT_TRUE(connect("leader.jointOrient", "j.target[0].targetJointOrient"));
    EXPECT_TRUE(connect("follower.jointOrient", "j.constraintJointOrient"));
    EXPECT_TRUE(connect("j.constraintRotate", "follower.rotate"));
    EXPECT_TRUE(world("follower").equalWithAbsError(world("leader"), 1e-9));
    EXPECT_TRUE(constraint.isAlive());
    EXPECT_TRUE(leader.isAlive());
}

// Parents

TEST_F(Constraints, AParentConstraintCarriesAlong)
{
    constrain("parentConstraint", {"a"});
    move("c.target[0].targetOffsetTranslate", {2, 0, 0});
    turn("c.target[0].targetOffsetRotate", {0, 0, 10});
    move("a.translate", {10, 0, 0});
    turn("a.rotate", {0, 0, 90});
    move("a.scale", {3, 1, 1});
    expectNumbers("driven.translate", {10, 6, 0});
    expectDegrees("driven.rotate", {0, 0, 100});
}

TEST_F(Constraints, AParentConstraintIsLikeAChild)
{
    DagNode& above = makeTransform("above");
    EXPECT_TRUE(scene.reparent(*scene.findNode("a").value->asDag(), nullptr, &above));
    constrain("parentConstraint", {"a"});
    move("above.translate", {1, 2, 3});
    turn("above.rotate", {20, 30, 40});
    move("a.translate", {4, 5, 6});
    turn("a.rotate", {-50, 15, 25});
    move("parent.translate", {-3, 1, 8});
    turn("parent.rotate", {70, -10, 5});
    move("c.target[0].targetOffsetTranslate", {2, -1, 3});
    turn("c.target[0].targetOffsetRotate", {15, 25, 35});
    makeTransform("child", scene.findNode("a").value->asDag());
    move("child.translate", {2, -1, 3});
    turn("child.rotate", {15, 25, 35});
    EXPECT_TRUE(world("driven").equalWithAbsError(world("child"), 1e-9));
}

TEST_F(Constraints, AParentConstraintMixesPlacesAndOrientations)
{
    constrain("parentConstraint", {"a", "b"});
    move("b.translate", {4, 0, 0});
    turn("b.rotate", {0, 80, 0});
    set("c.target[1].targetWeight", 3);
    set("c.interpType", 2);
    expectNumbers("driven.translate", {3, 0, 0});
    expectDegrees("driven.rotate", {0, 60, 0});
}

// Scales

TEST_F(Constraints, AScaleConstraintTakesTheGeometricMean)
{
    constrain("scaleConstraint", {"a", "b"});
    move("a.scale", {1, 2, 8});
    move("b.scale", {9, 2, 1});
    expectNumbers("driven.scale", {3, 2, std::sqrt(8.0)});
    set("c.target[1].targetWeight", 3);
    expectNumbers("driven.scale", {std::pow(9.0, 0.75), 2, std::pow(8.0, 0.25)});
}

TEST_F(Constraints, AScaleConstraintMatchesTheScaleInTheWorld)
{
    constrain("scaleConstraint", {"a"});
    move("a.scale", {6, 6, 6});
    move("parent.scale", {2, 3, 1});
    turn("parent.rotate", {0, 0, 90});
    expectNumbers("driven.scale", {3, 2, 6});
    move("c.offset", {1, 10, 1});
    expectNumbers("driven.scale", {3, 20, 6});
    set("c.constraintScaleCompensate", 1);
    expectNumbers("driven.scale", {6, 60, 6});
}

// Aiming

class AimConstraint : public Constraints
{
protected:
    AimConstraint()
    {
        constrain("aimConstraint", {"a"});
        move("driven.translate", {1, 1, 1});
        move("a.translate", {1, 1, 9});
        // Up type "vector".
        set("c.worldUpType", 3);
    }
};

TEST_F(AimConstraint, PointsAtItsTarget)
{
    expectDirection("driven", {1, 0, 0}, {0, 0, 1});
    expectDirection("driven", {0, 1, 0}, {0, 1, 0});
    move("a.translate", {4, 5, 1});
    expectDirection("driven", {1, 0, 0}, {3, 4, 0});
}

TEST_F(AimConstraint, PointsAtItsTargetFromBelowAParent)
{
    move("parent.translate", {5, -2, 1});
    turn("parent.rotate", {10, 70, -40});
    const Vec3d place = world("driven").translation();
    expectDirection("driven", {1, 0, 0}, Vec3d(1, 1, 9) - place);
}

TEST_F(AimConstraint, HasAxesOfItsOwn)
{
    move("c.aimVector", {0, 0, -1});
    move("c.upVector", {1, 0, 0});
    expectDirection("driven", {0, 0, -1}, {0, 0, 1});
    expectDirection("driven", {1, 0, 0}, {0, 1, 0});
}

TEST_F(AimConstraint, UpComesFromWhereItsTypeSays)
{
    move("c.worldUpVector", {1, 0, 0});
    makeTransform("upObject");
    move("upObject.translate", {1, -8, 1});
    turn("upObject.rotate", {0, 0, 180});
    ASSERT_TRUE(connect("upObject.worldMatrix[0]", "c.worldUpMatrix"));
    const std::array<Vec3d, 4> ups = {Vec3d(0, 1, 0), {0, -1, 0}, {-1, 0, 0}, {1, 0, 0}};
    for (std::size_t type = 0; type < ups.size(); ++type) {
        set("c.worldUpType", static_cast<double>(type));
        expectDirection("driven", {1, 0, 0}, {0, 0, 1});
        expectDirection("driven", {0, 1, 0}, ups[type]);
    }
}

TEST_F(AimConstraint, WithoutUpItTurnsTheShortWay)
{
    move("a.translate", {1, 1, 9});
    for (const int type : {4, 3}) {
        set("c.worldUpType", type);
        // For a vector: up along the aim says nothing.
        move("c.worldUpVector", {0, 0, 1});
        expectDegrees("driven.rotate", {0, -90, 0});
    }
}

TEST_F(AimConstraint, AnOffsetIsTurnedFirst)
{
    turn("c.offset", {0, 90, 0});
    expectDirection("driven", {0, 0, 1}, {0, 0, 1});
}

// Following

TEST_F(Constraints, FollowWhatTheirTargetsDo)
{
    constrain("parentConstraint", {"a"});
    makeTransform("child", scene.findNode("driven").value->asDag());
    move("a.translate", {1, 0, 0});
    EXPECT_EQ(world("child").translation(), Vec3d(1, 0, 0));
    move("a.translate", {2, 0, 0});
    EXPECT_EQ(world("child").translation(), Vec3d(2, 0, 0));
    move("c.target[0].targetOffsetTranslate", {0, 3, 0});
    EXPECT_EQ(world("child").translation(), Vec3d(2, 3, 0));
    move("parent.translate", {50, 0, 0});
    EXPECT_EQ(world("child").translation(), Vec3d(2, 3, 0));
}

} // namespace
} // namespace tvxhost::engine
