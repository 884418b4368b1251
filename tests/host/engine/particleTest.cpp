// Particles: the present state, the initial one, and what becomes of both.
#include "engine/particle.h"

#include "fixtures.h"

#include <gmock/gmock.h>

namespace tvxhost::engine {

using testing::ElementsAre;

class ParticleTest : public SceneTest
{
protected:
    ParticleTest() : shape(make("particle", "dustShape")) {}

    void addArray(const std::string& name, DataType type)
    {
        Ref<Attribute> attribute(new Attribute(AttributeKind::typed, name, name));
        attribute->dataType = type;
        EXPECT_TRUE(shape.addDynamicAttribute(attribute));
    }
    void setDoubles(const std::string& name, std::vector<double> values)
    {
        EXPECT_TRUE(writeData(plug("dustShape." + name), DoubleArrayData(std::move(values))));
    }
    std::vector<double> doubles(const std::string& name)
    {
        const Ref<Data> data = readData(plug("dustShape." + name)).value;
        const auto* array = dynamic_cast<const DoubleArrayData*>(data.get());
        return array ? array->values : std::vector<double>();
    }
    std::vector<std::string> names(const std::vector<Attribute*>& attributes)
    {
        std::vector<std::string> list;
        for (const Attribute* attribute : attributes)
            list.push_back(attribute->longName);
        return list;
    }

    Node& shape;
};

TEST_F(ParticleTest, TheStateIsWhatHasABeginningOrWasAdded)
{
    addArray("heatPP", DataType::doubleArray);
    addArray("heatPP0", DataType::doubleArray);
    addArray("loose", DataType::vectorArray);
    addArray("other", DataType::stringArray);
    EXPECT_THAT(names(particleState(shape)),
                ElementsAre("position", "velocity", "acceleration", "mass", "particleId", "birthTime", "age",
                            "heatPP", "loose"));
    EXPECT_EQ(initialStateOf(shape, *shape.findAttribute("heatPP")), shape.findAttribute("heatPP0"));
    EXPECT_EQ(initialStateOf(shape, *shape.findAttribute("loose")), nullptr);
    EXPECT_TRUE(isPerParticle(shape, *shape.findAttribute("heatPP0")));
    EXPECT_FALSE(isPerParticle(shape, *shape.findAttribute("other")));
    EXPECT_FALSE(isPerParticle(shape, *shape.findAttribute("conserve")));
}

TEST_F(ParticleTest, WhatIsSetStaysUntilTheTimeMoves)
{
    EXPECT_TRUE(connect("time1.outTime", "dustShape.currentTime"));
    addArray("heatPP", DataType::doubleArray);
    addArray("heatPP0", DataType::doubleArray);
    setDoubles("heatPP0", {1, 2});
    EXPECT_THAT(doubles("heatPP"), ElementsAre(1, 2));
    setDoubles("heatPP", {8, 9});
    EXPECT_THAT(doubles("heatPP"), ElementsAre(8, 9));
    EXPECT_THAT(doubles("heatPP0"), ElementsAre(1, 2));
    doubles("mass");
    scene.setTime(1.0);
    EXPECT_THAT(doubles("mass"), ElementsAre());
}

TEST_F(ParticleTest, TheStateIsACopyOfTheInitialOne)
{
    setDoubles("mass0", {1, 2});
    const Ref<Data> present = readData(plug("dustShape.mass")).value;
    static_cast<DoubleArrayData&>(*present).values[0] = 7;
    EXPECT_THAT(doubles("mass"), ElementsAre(7, 2));
    EXPECT_THAT(doubles("mass0"), ElementsAre(1, 2));
}

TEST_F(ParticleTest, NewParticlesGetTheNextIds)
{
    EXPECT_TRUE(emitParticles(shape, {Vec3d(1, 0, 0), Vec3d(2, 0, 0)}));
    EXPECT_TRUE(emitParticles(shape, {Vec3d(3, 0, 0)}));
    EXPECT_EQ(particleCount(shape), 3u);
    EXPECT_THAT(doubles("particleId"), ElementsAre(0, 1, 2));
    EXPECT_EQ(number("dustShape.nextId"), 3);
    EXPECT_TRUE(setParticleCount(shape, 1));
    EXPECT_TRUE(emitParticles(shape, {Vec3d(4, 0, 0)}));
    EXPECT_THAT(doubles("particleId"), ElementsAre(0, 3));
    EXPECT_TRUE(saveInitialState(shape));
    EXPECT_THAT(doubles("particleId0"), ElementsAre(0, 3));
    EXPECT_EQ(number("dustShape.nextId0"), 4);
}

TEST_F(ParticleTest, NewParticlesAreBornNow)
{
    scene.setTime(2.5);
    EXPECT_TRUE(emitParticles(shape, {Vec3d(0)}));
    EXPECT_THAT(doubles("birthTime"), ElementsAre(2.5));
    EXPECT_THAT(doubles("age"), ElementsAre(0));
}

TEST_F(ParticleTest, OnlyParticlesCanBeEmitted)
{
    Node& other = make("transform", "t");
    EXPECT_EQ(emitParticles(other, {Vec3d(0)}).reason, Reason::wrongKind);
    EXPECT_EQ(setParticleCount(other, 2).text, "'t' is not a particle shape");
    EXPECT_EQ(particleCount(other), 0u);
}

} // namespace tvxhost::engine
