// Lights, and the attribute that carries what they say.
#include "../sceneFixture.h"

#include <maya/MColor.h>
#include <maya/MFloatVector.h>
#include <maya/MFnAmbientLight.h>
#include <maya/MFnAreaLight.h>
#include <maya/MFnDirectionalLight.h>
#include <maya/MFnLightDataAttribute.h>
#include <maya/MFnNumericAttribute.h>
#include <maya/MFnPointLight.h>
#include <maya/MFnSpotLight.h>
#include <maya/MFnVolumeLight.h>

namespace tvxhost::api::test {
namespace {

constexpr double kPi = 3.14159265358979323846;

class MFnLightTest : public SceneFixture
{
};

TEST_F(MFnLightTest, LightsAreMadeBelowTransforms)
{
    MStatus status;
    MFnDirectionalLight alone;
    const MObject transform = alone.create(true, &status);
    ASSERT_EQ(status, MS::kSuccess);
    EXPECT_TRUE(transform.hasFn(MFn::kTransform));
    EXPECT_TRUE(alone.object().hasFn(MFn::kDirectionalLight));

    make("transform", "rig");
    MFnPointLight below;
    const MObject shape = below.create(object("rig"), true, false, &status);
    ASSERT_EQ(status, MS::kSuccess);
    EXPECT_EQ(shape, below.object());
    EXPECT_EQ(below.parent(0), object("rig"));
    MFnAreaLight own;
    const MObject ownTransform = own.create(object("rig"), true, true, &status);
    ASSERT_EQ(status, MS::kSuccess);
    EXPECT_EQ(own.parent(0), ownTransform);
    EXPECT_EQ(MFnDagNode(ownTransform, nullptr).parent(0), object("rig"));
    EXPECT_TRUE(MFnSpotLight().create(shape, true, false, &status).isNull());
    EXPECT_EQ(status, MS::kInvalidParameter) << "no transform";
}

TEST_F(MFnLightTest, AttributesAreReadAndSet)
{
    make("spotLight", "lamp", "");
    MFnSpotLight light(object("lamp"), nullptr);
    EXPECT_EQ(light.color(), MColor(1.0F, 1.0F, 1.0F));
    EXPECT_EQ(light.setColor(MColor(0.5F, 0.25F, 1.0F)), MS::kSuccess);
    EXPECT_EQ(light.color(), MColor(0.5F, 0.25F, 1.0F));
    EXPECT_EQ(light.setIntensity(2.0F), MS::kSuccess);
    EXPECT_EQ(light.intensity(), 2.0F);
    EXPECT_EQ(light.lightIntensity(), MColor(1.0F, 0.5F, 2.0F));
    EXPECT_EQ(light.setUseRayTraceShadows(true), MS::kSuccess);
    EXPECT_TRUE(light.useRayTraceShadows());
    EXPECT_EQ(light.setDecayRate(2), MS::kSuccess);
    EXPECT_EQ(light.decayRate(), 2);
    EXPECT_NEAR(light.coneAngle(), 40.0 * kPi / 180.0, 1e-12) << "radians";
    EXPECT_EQ(light.setConeAngle(kPi / 3.0), MS::kSuccess);
    EXPECT_NEAR(plug("lamp.coneAngle").asDouble(), kPi / 3.0, 1e-12);
    EXPECT_EQ(light.setBarnDoorAngle(MFnSpotLight::kTop, 0.5), MS::kSuccess);
    EXPECT_DOUBLE_EQ(light.barnDoorAngle(MFnSpotLight::kTop), 0.5);
    EXPECT_EQ(light.startDistance(MFnSpotLight::kSecond), 3.0F);
    EXPECT_EQ(light.setEndDistance(MFnSpotLight::kThird, 20.0F), MS::kSuccess);
    EXPECT_EQ(light.endDistance(MFnSpotLight::kThird), 20.0F);
    MStatus status;
    EXPECT_EQ(light.depthMapResolution(&status), 512);
    EXPECT_TRUE(light.lightDiffuse());
    EXPECT_FALSE(light.lightAmbient());
    EXPECT_EQ(light.startDistance(static_cast<MFnSpotLight::MDecayRegion>(3), &status), 0.0F);
    EXPECT_EQ(status, MS::kInvalidParameter);
}

TEST_F(MFnLightTest, ShinesAlongItsNegativeZAxis)
{
    make("transform", "rig");
    make("directionalLight", "sun", "rig");
    set("rig.ry", {kPi / 2.0});
    MFnLight light(path("sun"), nullptr);
    EXPECT_TRUE(light.lightDirection().isEquivalent(MFloatVector(-1.0F, 0.0F, 0.0F), 1e-6F));
    EXPECT_TRUE(light.lightDirection(0, MSpace::kObject).isEquivalent(MFloatVector(0.0F, 0.0F, -1.0F)));
    MStatus status;
    light.lightDirection(1, MSpace::kWorld, &status);
    EXPECT_EQ(status, MS::kInvalidParameter) << "there is one instance";
}

TEST_F(MFnLightTest, SetsFitTheLightsTheyAreFor)
{
    make("ambientLight", "glow");
    make("pointLight", "bulb");
    MStatus status;
    const MFnAmbientLight ambient(object("glow"), &status);
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_TRUE(ambient.lightAmbient());
    EXPECT_FLOAT_EQ(ambient.ambientShade(), 0.45F);
    const MFnNonAmbientLight wrong(object("glow"), &status);
    EXPECT_EQ(status, MS::kInvalidParameter);
    EXPECT_EQ(wrong.decayRate(&status), 0);
    EXPECT_EQ(text(status), "(kFailure): Object does not exist");
    const MFnNonExtendedLight plain(object("bulb"), &status);
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_FALSE(plain.castSoftShadows(&status));
    EXPECT_EQ(status, MS::kSuccess);
    make("spotLight", "lamp");
    const MFnSpotLight lamp(object("lamp"), &status);
    EXPECT_EQ(lamp.startDistance(static_cast<MFnSpotLight::MDecayRegion>(3), &status), 0.0F);
    EXPECT_EQ(status, MS::kInvalidParameter) << "there are three regions";
}

TEST_F(MFnLightTest, SoftShadowsAreSaidOfEveryLight)
{
    make("ambientLight", "glow");
    MFnAmbientLight ambient(object("glow"), nullptr);
    EXPECT_FALSE(ambient.castSoftShadows());
    EXPECT_EQ(ambient.setCastSoftShadows(true), MS::kSuccess);
    EXPECT_TRUE(plug("glow.castSoftShadows").asBool());
    EXPECT_EQ(ambient.setShadowRadius(1.5F), MS::kSuccess);
    EXPECT_EQ(plug("glow.shadowRadius").asFloat(), 1.5F);
    EXPECT_EQ(ambient.shadowRadius(), 1.5F);
    make("pointLight", "bulb");
    MFnPointLight point(object("bulb"), nullptr);
    EXPECT_EQ(point.setCastSoftShadows(true), MS::kSuccess);
    EXPECT_TRUE(point.castSoftShadows());
    EXPECT_EQ(point.setShadowRadius(0.5F), MS::kSuccess);
    EXPECT_EQ(plug("bulb.lightRadius").asFloat(), 0.5F);
}

TEST_F(MFnLightTest, AVolumeLightHasAShape)
{
    MStatus status;
    MFnVolumeLight light;
    const MObject transform = light.create(true, &status);
    ASSERT_EQ(status, MS::kSuccess);
    EXPECT_TRUE(transform.hasFn(MFn::kTransform));
    EXPECT_EQ(light.object().apiType(), MFn::kVolumeLight);
    EXPECT_TRUE(light.object().hasFn(MFn::kPointLight));
    EXPECT_EQ(light.lightShape(&status), MFnVolumeLight::kSphereVolume);
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_EQ(light.setLightShape(MFnVolumeLight::kConeVolume), MS::kSuccess);
    EXPECT_EQ(light.lightShape(), MFnVolumeLight::kConeVolume);
    make("pointLight", "bulb");
    const MFnVolumeLight wrong(object("bulb"), &status);
    EXPECT_EQ(status, MS::kInvalidParameter);
}

TEST_F(MFnLightTest, LightDataIsACompoundOfItsParts)
{
    MFnNumericAttribute numbers;
    const MObject direction = numbers.createPoint("lightDirection", "ld");
    const MObject intensity = numbers.createColor("lightIntensity", "li");
    const MObject ambient = numbers.create("lightAmbient", "la", MFnNumericData::kBoolean);
    const MObject diffuse = numbers.create("lightDiffuse", "ldf", MFnNumericData::kBoolean);
    const MObject specular = numbers.create("lightSpecular", "ls", MFnNumericData::kBoolean);
    const MObject fraction = numbers.create("lightShadowFraction", "lsf", MFnNumericData::kFloat);
    const MObject before = numbers.create("preShadowIntensity", "psi", MFnNumericData::kFloat);
    const MObject blind = numbers.create("lightBlindData", "lbd", MFnNumericData::kInt64);
    MStatus status;
    MFnLightDataAttribute set;
    const MObject made = set.create("lightDataArray", "ltd", direction, intensity, ambient, diffuse, specular,
                                    fraction, before, blind, &status);
    ASSERT_EQ(status, MS::kSuccess) << text(status);
    EXPECT_EQ(made, set.object());
    EXPECT_EQ(set.child(5, &status), fraction);
    EXPECT_TRUE(set.child(8, &status).isNull());
    EXPECT_EQ(status, MS::kInvalidParameter);

    int payload = 0;
    EXPECT_EQ(set.setDefault(0.0F, 0.0F, -1.0F, 1.0F, 0.5F, 0.25F, false, true, true, 0.75F, 2.0F, &payload),
              MS::kSuccess);
    float x, y, z, r, g, b, shadow, intensityBefore;
    bool isAmbient, isDiffuse, isSpecular;
    void* data = nullptr;
    ASSERT_EQ(
        set.getDefault(x, y, z, r, g, b, isAmbient, isDiffuse, isSpecular, shadow, intensityBefore, data),
        MS::kSuccess);
    EXPECT_EQ(z, -1.0F);
    EXPECT_EQ(b, 0.25F);
    EXPECT_FALSE(isAmbient);
    EXPECT_TRUE(isSpecular);
    EXPECT_EQ(shadow, 0.75F);
    EXPECT_EQ(intensityBefore, 2.0F);
    EXPECT_EQ(data, &payload);
    set.create("again", "ag", direction, intensity, ambient, diffuse, specular, fraction, before, blind,
               &status);
    EXPECT_EQ(status, MS::kInvalidParameter) << "the parts belong to something already";
}

} // namespace
} // namespace tvxhost::api::test
