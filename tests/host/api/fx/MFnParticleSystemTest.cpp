// MFnParticleSystem: particles as a plug-in sees them.
#include "../arrays.h"
#include "../sceneFixture.h"

#include "engine/particle.h"

#include <maya/MFnDoubleArrayData.h>
#include <maya/MFnParticleSystem.h>
#include <maya/MFnVectorArrayData.h>
#include <maya/MVectorArray.h>

#include <gmock/gmock.h>

#include <limits>

namespace tvxhost::api::test {

using Numbers = std::vector<double>;
using Rows = std::vector<std::vector<double>>;

namespace {

Rows rows(const MVectorArray& array)
{
    Rows all;
    for (unsigned int i = 0; i < array.length(); ++i)
        all.push_back({array[i].x, array[i].y, array[i].z});
    return all;
}

const char* const kInternal = "(kFailure): Unexpected Internal Failure";

} // namespace

class MFnParticleSystemTest : public SceneFixture
{
protected:
    MFnParticleSystemTest()
    {
        make("transform", "crowd");
        make("particle", "crowdShape", "crowd");
        addArray("lifespanPP", engine::DataType::doubleArray);
        addArray("lifespanPP0", engine::DataType::doubleArray);
        addArray("goalPP", engine::DataType::vectorArray);
        addArray("stepPP", engine::DataType::intArray);
        setVectors("position0", {{1, 2, 3}, {4, 5, 6}});
        setDoubles("mass0", {1, 7});
        setDoubles("lifespanPP0", {0.5, 1.5});
    }

    void addArray(const std::string& name, engine::DataType type)
    {
        engine::Ref<engine::Attribute> attribute(
            new engine::Attribute(engine::AttributeKind::typed, name, name));
        attribute->dataType = type;
        EXPECT_TRUE(node("crowdShape").addDynamicAttribute(attribute));
    }
    void setVectors(const std::string& name, std::vector<engine::Vec3d> values)
    {
        EXPECT_TRUE(engine::writeData(scene.findPlug("crowdShape." + name).value,
                                      engine::VectorArrayData(std::move(values))));
    }
    void setDoubles(const std::string& name, std::vector<double> values)
    {
        EXPECT_TRUE(engine::writeData(scene.findPlug("crowdShape." + name).value,
                                      engine::DoubleArrayData(std::move(values))));
    }
    /// A set on the shape, as often as it is asked for.
    MFnParticleSystem& particles()
    {
        EXPECT_EQ(m_set.setObject(object("crowdShape")), MS::kSuccess);
        return m_set;
    }
    /// The values of all particles.
    template <class Array>
    Array values(const char* name)
    {
        Array array;
        MStatus status;
        const MFnParticleSystem set(object("crowdShape"), &status);
        const unsigned int size = set.getPerParticleAttribute(name, array, &status);
        EXPECT_EQ(size, array.length());
        EXPECT_EQ(status, MS::kSuccess);
        return array;
    }
    Numbers doubles(const char* name) { return elementsOf(values<MDoubleArray>(name)); }
    Rows vectors(const char* name) { return rows(values<MVectorArray>(name)); }

private:
    MFnParticleSystem m_set;
};

TEST_F(MFnParticleSystemTest, attachesToParticlesOnly)
{
    MStatus status;
    const MFnParticleSystem classic(object("crowdShape"), &status);
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_TRUE(classic.isValid());
    EXPECT_EQ(text(classic.particleName()), "crowdShape");
    make("nParticle", "newShape", "crowd");
    const MFnParticleSystem nucleus(object("newShape"), &status);
    EXPECT_EQ(status, MS::kSuccess);
    const MFnParticleSystem above(path("crowd"), &status);
    EXPECT_EQ(status, MS::kSuccess) << "the shape below a path that ends above it";
    const MFnParticleSystem group(object("crowd"), &status);
    EXPECT_EQ(text(status), "(kInvalidParameter): Object is incompatible with this method");
    EXPECT_FALSE(group.isValid());
    const MFnParticleSystem nothing(MObject::kNullObj, &status);
    EXPECT_EQ(text(status), "(kInvalidParameter): Argument is a NULL pointer");
}

TEST_F(MFnParticleSystemTest, aLoadedStateIsTheInitialOne)
{
    EXPECT_EQ(particles().count(), 2u);
    EXPECT_EQ(doubles("mass"), Numbers({1, 7}));
    EXPECT_EQ(doubles("lifespanPP"), Numbers({0.5, 1.5}));
    EXPECT_EQ(vectors("position"), Rows({{1, 2, 3}, {4, 5, 6}}));
    EXPECT_EQ(vectors("position0"), Rows({{1, 2, 3}, {4, 5, 6}}));
    MVectorArray positions;
    particles().position(positions);
    EXPECT_EQ(rows(positions), Rows({{1, 2, 3}, {4, 5, 6}}));
}

TEST_F(MFnParticleSystemTest, theStateFollowsTheInitialOne)
{
    EXPECT_EQ(doubles("lifespanPP"), Numbers({0.5, 1.5}));
    setDoubles("lifespanPP0", {3, 4});
    setVectors("position0", {{0, 0, 9}});
    EXPECT_EQ(doubles("lifespanPP"), Numbers({3, 4}));
    EXPECT_EQ(particles().count(), 1u);
    EXPECT_EQ(plug("crowdShape.count").asInt(), 1);
}

TEST_F(MFnParticleSystemTest, tellsKindsOfAttributes)
{
    const MFnParticleSystem system(object("crowdShape"), nullptr);
    MStatus status = MS::kFailure;
    EXPECT_TRUE(system.isPerParticleDoubleAttribute("mass", &status));
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_TRUE(system.isPerParticleDoubleAttribute("lifespanPP", &status));
    EXPECT_TRUE(system.isPerParticleVectorAttribute("goalPP", &status));
    EXPECT_TRUE(system.isPerParticleIntAttribute("stepPP", &status));
    EXPECT_FALSE(system.isPerParticleVectorAttribute("mass", &status));
    EXPECT_FALSE(system.isPerParticleDoubleAttribute("position", &status));
    EXPECT_FALSE(system.isPerParticleIntAttribute("mass", &status));
    EXPECT_FALSE(system.isPerParticleDoubleAttribute("conserve", &status)) << "one number for all";
    EXPECT_FALSE(system.isPerParticleDoubleAttribute("nothing", &status));
    EXPECT_EQ(status, MS::kSuccess) << "an unknown name is an answer";
    EXPECT_FALSE(MFnParticleSystem().isPerParticleDoubleAttribute("mass", &status));
    EXPECT_EQ(text(status), "(kFailure): Object does not exist");
}

TEST_F(MFnParticleSystemTest, anAttributeOfAnotherKindLeavesTheArray)
{
    MDoubleArray array(2, 5.0);
    MStatus status;
    for (const char* name : {"nothing", "position", "conserve"}) {
        EXPECT_EQ(particles().getPerParticleAttribute(name, array, &status), 0u) << name;
        EXPECT_EQ(text(status), kInternal) << name;
    }
    EXPECT_EQ(elementsOf(array), Numbers({5, 5}));
    particles().setPerParticleAttribute("nothing", array, &status);
    EXPECT_EQ(text(status), kInternal);
    EXPECT_EQ(MFnParticleSystem().getPerParticleAttribute("mass", array, &status), 0u);
    EXPECT_EQ(text(status), "(kFailure): Object does not exist");
}

TEST_F(MFnParticleSystemTest, whatHoldsNothingIsEmpty)
{
    MVectorArray array(3);
    MStatus status = MS::kFailure;
    EXPECT_EQ(particles().getPerParticleAttribute("goalPP", array, &status), 0u);
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_EQ(array.length(), 0u);
}

TEST_F(MFnParticleSystemTest, setsAttributes)
{
    MDoubleArray masses(2, 3.0);
    MVectorArray goals(2, MVector(1, 0, 0));
    MStatus status;
    particles().setPerParticleAttribute("mass", masses, &status);
    EXPECT_EQ(status, MS::kSuccess);
    particles().setPerParticleAttribute("goalPP", goals, &status);
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_EQ(doubles("mass"), Numbers({3, 3}));
    EXPECT_EQ(doubles("mass0"), Numbers({1, 7})) << "the initial state stays";
    EXPECT_EQ(vectors("goalPP"), Rows({{1, 0, 0}, {1, 0, 0}}));
}

TEST_F(MFnParticleSystemTest, editsOfThePlugsDataStayUntilTheTimeMoves)
{
    const auto connected =
        scene.connect(scene.findPlug("time1.outTime").value, scene.findPlug("crowdShape.currentTime").value);
    ASSERT_TRUE(connected) << connected.text;
    MStatus status;
    MFnDoubleArrayData data(plug("crowdShape.mass").asMObject(), &status);
    ASSERT_EQ(status, MS::kSuccess);
    EXPECT_EQ(data.set(11.0, 1), MS::kSuccess);
    EXPECT_EQ(doubles("mass"), Numbers({1, 11}));
    scene.setTime(2.0);
    EXPECT_EQ(doubles("mass"), Numbers({1, 7}));
}

TEST_F(MFnParticleSystemTest, vectorsCanBeReadFromThePlug)
{
    MStatus status;
    const MFnVectorArrayData data(plug("crowdShape.position").asMObject(), &status);
    ASSERT_EQ(status, MS::kSuccess);
    ASSERT_EQ(data.length(), 2u);
    EXPECT_EQ(data[1], MVector(4, 5, 6));
}

TEST_F(MFnParticleSystemTest, emittedParticlesAreNewAndUnsaved)
{
    EXPECT_EQ(particles().emit(MPoint(7, 8, 9), MVector(0, 1, 0)), MS::kSuccess);
    EXPECT_EQ(particles().count(), 3u);
    EXPECT_EQ(vectors("position"), Rows({{1, 2, 3}, {4, 5, 6}, {7, 8, 9}}));
    EXPECT_EQ(vectors("velocity"), Rows({{0, 0, 0}, {0, 0, 0}, {0, 1, 0}}));
    EXPECT_EQ(doubles("mass"), Numbers({1, 7, 1}));
    EXPECT_EQ(doubles("lifespanPP"),
              Numbers({0.5, 1.5, static_cast<double>(std::numeric_limits<float>::max())}));
    EXPECT_EQ(vectors("position0"), Rows({{1, 2, 3}, {4, 5, 6}}));
    EXPECT_EQ(particles().saveInitialState(), MS::kSuccess);
    EXPECT_EQ(vectors("position0"), Rows({{1, 2, 3}, {4, 5, 6}, {7, 8, 9}}));
    EXPECT_EQ(doubles("mass0"), Numbers({1, 7, 1}));
}

TEST_F(MFnParticleSystemTest, emitWantsAsManyVelocitiesAsPositions)
{
    const MPointArray two(2);
    EXPECT_EQ(text(particles().emit(two, MVectorArray(1))),
              "(kInvalidParameter): Unexpected Internal Failure");
    EXPECT_EQ(particles().count(), 2u);
    EXPECT_EQ(particles().emit(two), MS::kSuccess);
    EXPECT_EQ(particles().count(), 4u);
    EXPECT_EQ(text(MFnParticleSystem().emit(two)), "(kFailure): Object does not exist");
}

TEST_F(MFnParticleSystemTest, countsCanBeSet)
{
    particles().setCount(1);
    EXPECT_EQ(vectors("position"), Rows({{1, 2, 3}}));
    EXPECT_EQ(doubles("lifespanPP"), Numbers({0.5}));
    particles().setCount(2);
    EXPECT_EQ(vectors("position"), Rows({{1, 2, 3}, {0, 0, 0}}));
}

TEST_F(MFnParticleSystemTest, createMakesATransformOrTheShapeBelowOne)
{
    MFnParticleSystem set;
    MStatus status;
    const MObject transform = set.create(&status);
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_EQ(transform.apiType(), MFn::kTransform);
    EXPECT_EQ(set.object().apiType(), MFn::kParticle);
    EXPECT_EQ(set.emit(MPoint(1, 1, 1)), MS::kSuccess);
    MIntArray ids;
    set.particleIds(ids);
    ASSERT_EQ(ids.length(), 1u);
    EXPECT_EQ(ids[0], 0);
    const MObject shape = set.create(object("crowd"), &status);
    EXPECT_EQ(shape.apiType(), MFn::kParticle);
    EXPECT_EQ(set.count(), 0u);
}

TEST_F(MFnParticleSystemTest, whatTheShapeSaysCountsForAllParticles)
{
    const MFnParticleSystem system(object("crowdShape"), nullptr);
    EXPECT_EQ(system.renderType(), MFnParticleSystem::kPoints);
    set("crowdShape.particleRenderType", {4});
    EXPECT_EQ(system.renderType(), MFnParticleSystem::kSpheres);
    EXPECT_TRUE(system.hasLifespan());
    EXPECT_FALSE(system.hasRgb());
    EXPECT_FALSE(system.hasOpacity());
    MDoubleArray radii;
    system.radius(radii);
    EXPECT_EQ(elementsOf(radii), Numbers({0, 0})) << "one per particle";
    EXPECT_TRUE(system.primaryVisibility());
    EXPECT_TRUE(system.castsShadows());
    EXPECT_FALSE(system.visibleInReflections());
}

TEST_F(MFnParticleSystemTest, theFailureOfACallReachesTheCaller)
{
    faults::failCall("MFnParticleSystem::getPerParticleAttribute", 1, MStatus(MS::kFailure));
    MDoubleArray array;
    MStatus status;
    EXPECT_EQ(particles().getPerParticleAttribute("mass", array, &status), 0u);
    EXPECT_EQ(status, MS::kFailure);
    EXPECT_EQ(particles().getPerParticleAttribute("mass", array, &status), 2u);
    EXPECT_EQ(status, MS::kSuccess);
}

} // namespace tvxhost::api::test
