// Values of single particles.
#include "UtilsFixture.h"
#include "memberWarning.h"

#include "engine/attribute.h"
#include "engine/data.h"
#include "engine/plug.h"

#include <maya/MFnDoubleArrayData.h>

namespace tarvox::crowd::test {
namespace {

namespace engine = tvxhost::engine;

using testing::ElementsAre;
using testing::IsEmpty;

class Particles : public UtilsFixture
{
protected:
    Particles()
    {
        make("transform", "crowd");
        make("particle", "crowdShape", "crowd");
        std::vector<engine::Vec3d> positions;
        std::vector<double> masses;
        for (int i = 0; i < 10; ++i) {
            positions.push_back({i + 0.25, 2.0 * i, -1.0 * i});
            masses.push_back(0.1 + i);
        }
        write("position0", engine::VectorArrayData(positions));
        write("mass0", engine::DoubleArrayData(masses));
        make("transform", "other");
    }

    void write(const std::string& attribute, const engine::Data& data)
    {
        EXPECT_TRUE(engine::writeData(scene.findPlug("crowdShape." + attribute).value, data));
    }
    double mass(unsigned int index, MStatus* status = nullptr)
    {
        return MayaUtils::getDoubleAttributePP(object("crowdShape"), "mass", index, status);
    }
    static std::string warning(const std::string& member, const std::string& text)
    {
        return memberWarning("tvxMayaUtils.cpp", member, text);
    }
};

TEST_F(Particles, ADoubleIsReadByItsIndex)
{
    MStatus status(MStatus::kFailure);
    EXPECT_EQ(mass(0, &status), 0.1);
    EXPECT_EQ(status, MStatus::kSuccess);
    EXPECT_EQ(mass(9), 9.1);
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(Particles, ADoubleBehindTheLastParticleIsZeroAndNotTold)
{
    MStatus status(MStatus::kFailure);
    EXPECT_EQ(mass(10, &status), 0.0);
    EXPECT_EQ(status, MStatus::kSuccess);
    EXPECT_EQ(mass(4294967295u), 0.0);
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(Particles, ADoubleIsNarrowedToAFloat)
{
    MStatus status(MStatus::kFailure);
    EXPECT_EQ(MayaUtils::getDoubleAttributePPAsFloat(object("crowdShape"), "mass", 3, &status),
              static_cast<float>(3.1));
    EXPECT_EQ(status, MStatus::kSuccess);
    EXPECT_EQ(MayaUtils::getDoubleAttributePPAsFloat(object("crowdShape"), "mass", 10, nullptr), 0.0f);
    EXPECT_EQ(MayaUtils::getDoubleAttributePPAsFloat(object("other"), "mass", 0, &status), 0.0f);
    EXPECT_EQ(status, MStatus::kInvalidParameter);
}

TEST_F(Particles, AnUnknownAttributeIsToldAndZero)
{
    MStatus status;
    EXPECT_EQ(MayaUtils::getDoubleAttributePP(object("crowdShape"), "hunger", 0, &status), 0.0);
    EXPECT_FALSE(status);
    EXPECT_THAT(recorder.take(), ElementsAre(warning("getDoubleAttributePP",
                                                     "WARNING Per Particle Attribute 'hunger' not found.")));
    EXPECT_EQ(MayaUtils::getDoubleAttributePP(object("crowdShape"), "position", 0, nullptr), 0.0);
    EXPECT_EQ(recorder.take().size(), 1u);
    coreLog().setSeverityFilter(core::kError);
    EXPECT_EQ(MayaUtils::getDoubleAttributePPAsFloat(object("crowdShape"), "hunger", 0, nullptr), 0.0f);
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(Particles, AReadingThatFailsIsToldAndGivesWhatIsThere)
{
    faults::failCall("MFnParticleSystem::getPerParticleAttribute", 1, failure());
    MStatus status;
    EXPECT_EQ(mass(3, &status), 0.0);
    EXPECT_EQ(status, failure());
    EXPECT_THAT(recorder.take(), ElementsAre(warning("getDoubleAttributePP",
                                                     "WARNING Per Particle Attribute 'mass' not found.")));
}

TEST_F(Particles, WhatIsNoParticleShapeGivesZeroWithMayasStatus)
{
    MStatus status;
    EXPECT_EQ(MayaUtils::getDoubleAttributePP(object("other"), "mass", 0, &status), 0.0);
    EXPECT_EQ(status, MStatus::kInvalidParameter);
    status = MStatus::kSuccess;
    EXPECT_EQ(MayaUtils::getVectorAttributePP(object("other"), "position", 0, &status), MVector(0, 0, 0));
    EXPECT_EQ(status, MStatus::kInvalidParameter);
    faults::failCall("MFnParticleSystem::MFnParticleSystem", 0, failure());
    EXPECT_EQ(mass(0, &status), 0.0);
    EXPECT_EQ(status, failure());
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(Particles, AVectorIsReadByItsIndex)
{
    MStatus status(MStatus::kFailure);
    EXPECT_EQ(MayaUtils::getVectorAttributePP(object("crowdShape"), "position", 9, &status),
              MVector(9.25, 18, -9));
    EXPECT_EQ(status, MStatus::kSuccess);
    EXPECT_EQ(MayaUtils::getVectorAttributePP(object("crowdShape"), "position", 0, nullptr),
              MVector(0.25, 0, 0));
}

TEST_F(Particles, AVectorBehindTheLastParticleIsAnInvalidParameter)
{
    MStatus status;
    EXPECT_EQ(MayaUtils::getVectorAttributePP(object("crowdShape"), "position", 10, &status),
              MVector(0, 0, 0));
    EXPECT_EQ(status, MStatus::kInvalidParameter);
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(Particles, AVectorOfAnAttributeOfAnotherKindIsAnInvalidParameter)
{
    for (const char* name : {"mass", "hunger", "visibility"}) {
        MStatus status;
        EXPECT_EQ(MayaUtils::getVectorAttributePP(object("crowdShape"), name, 0, &status), MVector(0, 0, 0));
        EXPECT_EQ(status, MStatus::kInvalidParameter) << name;
    }
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(Particles, AVectorThatCannotBeReadIsAnInvalidParameter)
{
    for (const char* call :
         {"MFnParticleSystem::isPerParticleVectorAttribute", "MFnDependencyNode::findPlug",
          "MPlug::asMObject", "MFnVectorArrayData::MFnVectorArrayData", "MFnVectorArrayData::length"}) {
        const MObject shape = object("crowdShape");
        faults::failCall(call, 1, failure());
        MStatus status;
        EXPECT_EQ(MayaUtils::getVectorAttributePP(shape, "position", 3, &status), MVector(0, 0, 0)) << call;
        EXPECT_EQ(status, MStatus::kInvalidParameter) << call;
        faults::clear();
    }
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(Particles, ADoubleIsSetInTheDataThatThePlugHandsOut)
{
    faults::record(true);
    MayaUtils::setDoubleAttributePP(object("crowdShape"), "mass", 3, 42.5);
    EXPECT_EQ(faults::countOf("MPlug::setValue"), 0u);
    faults::record(false);
    EXPECT_EQ(mass(3), 42.5);
    EXPECT_EQ(mass(2), 2.1);
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(Particles, NothingIsSetBehindTheLastParticle)
{
    MayaUtils::setDoubleAttributePP(object("crowdShape"), "mass", 10, 42.5);
    MDoubleArray masses;
    MFnDoubleArrayData(plug("crowdShape.mass").asMObject(), nullptr).copyTo(masses);
    EXPECT_EQ(masses.length(), 10u);
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(Particles, NothingIsSetWhereThereIsNoSuchAttribute)
{
    MayaUtils::setDoubleAttributePP(object("other"), "translateX", 0, 42.5);
    EXPECT_EQ(plug("other.translateX").asDouble(), 0.0);
    MayaUtils::setDoubleAttributePP(object("crowdShape"), "hunger", 0, 42.5);
    MayaUtils::setDoubleAttributePP(object("crowdShape"), "position", 0, 42.5);
    MayaUtils::setDoubleAttributePP(MObject::kNullObj, "mass", 0, 42.5);
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(Particles, AValueThatCannotBeStoredIsTold)
{
    faults::failCall("MFnDoubleArrayData::set", 1, failure());
    MayaUtils::setDoubleAttributePP(object("crowdShape"), "mass", 3, 42.5);
    EXPECT_THAT(recorder.take(), ElementsAre(warning("setDoubleAttributePP", failureText())));
    faults::failCall("MFnDoubleArrayData::set", 1, failure());
    coreLog().setSeverityFilter(core::kError);
    MayaUtils::setDoubleAttributePP(object("crowdShape"), "mass", 3, 42.5);
    EXPECT_THAT(recorder.take(), IsEmpty());
    EXPECT_EQ(mass(3), 3.1);
}

TEST_F(Particles, StepsBeforeTheStoringFailSilently)
{
    for (const char* call :
         {"MFnParticleSystem::MFnParticleSystem", "MFnParticleSystem::isPerParticleDoubleAttribute",
          "MFnDependencyNode::findPlug", "MPlug::asMObject", "MFnDoubleArrayData::MFnDoubleArrayData",
          "MFnDoubleArrayData::length"}) {
        const MObject shape = object("crowdShape");
        faults::failCall(call, 1, failure());
        MayaUtils::setDoubleAttributePP(shape, "mass", 3, 42.5);
        faults::clear();
        EXPECT_EQ(mass(3), 3.1) << call;
    }
    EXPECT_THAT(recorder.take(), IsEmpty());
}

} // namespace
} // namespace tarvox::crowd::test
