// MFnLightDataAttribute: what a light says of itself to shaders.
#include <maya/MFnLightDataAttribute.h>

#include "support/attributeSets.h"

#include <array>

using namespace tvxhost::api;
using tvxhost::engine::Attribute;
using tvxhost::engine::AttributeKind;

namespace {

/// Direction, intensity, ambient, diffuse, specular, shadow fraction, intensity before the shadow, blind
/// data.
constexpr std::size_t kChildren = 8;

/// The default numbers of all children but the last, whose default is a pointer.
constexpr std::size_t kNumbers = 11;

/// Where the numbers of an attribute's children are, in order; empty when they are others.
std::vector<Attribute*> leavesOf(const Attribute& attribute)
{
    std::vector<Attribute*> leaves;
    for (std::size_t i = 0; i + 1 < attribute.children.size(); ++i)
        for (Attribute* leaf : numbersOf(*attribute.children[i]))
            leaves.push_back(leaf);
    if (leaves.size() != kNumbers)
        leaves.clear();
    return leaves;
}

/// The blind data's default: its attribute holds a pointer as a number.
Attribute& blindData(const Attribute& attribute)
{
    return *attribute.children.back();
}

} // namespace

TVX_FUNCTION_SET(MFnLightDataAttribute, MFn::kLightDataAttribute)

MObject MFnLightDataAttribute::create(const MString& fullName, const MString& briefName,
                                      const MObject& direction, const MObject& intensity,
                                      const MObject& ambient, const MObject& diffuse, const MObject& specular,
                                      const MObject& shadowFraciton, const MObject& preShadowIntensity,
                                      const MObject& blindData, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnLightDataAttribute::create", ReturnStatus, MObject());
    const std::array<const MObject*, kChildren> children = {
        &direction,      &intensity,          &ambient,  &diffuse, &specular,
        &shadowFraciton, &preShadowIntensity, &blindData};
    for (const MObject* child : children) {
        const Attribute* attribute = attributeOf(*child);
        if (!attribute || attribute->parent || !isFree(*attribute)) {
            give(ReturnStatus, failure(StatusText::objectIsIncompatible));
            return MObject();
        }
    }
    const tvxhost::engine::Ref<Attribute> made(
        new Attribute(AttributeKind::lightData, tvxAccess::text(fullName), tvxAccess::text(briefName)));
    for (const MObject* child : children)
        made->addChild(attributeOf(*child));
    return adoptAttribute(*this, made, ReturnStatus);
}

MStatus MFnLightDataAttribute::getDefault(float& defDirectionX, float& defDirectionY, float& defDirectionZ,
                                          float& defIntensityR, float& defIntensityG, float& defIntensityB,
                                          bool& defAmbient, bool& defDiffuse, bool& defSpecular,
                                          float& defShadowFraction, float& defPreShadowIntensity,
                                          void*& defBlindData)
{
    TVX_API_CALL("MFnLightDataAttribute::getDefault");
    const Attribute* attribute = attributeOf(*this);
    if (!attribute)
        return notAttached();
    const std::vector<Attribute*> leaves = leavesOf(*attribute);
    if (leaves.empty())
        return failure(StatusText::objectIsIncompatible);
    const auto number = [&](std::size_t i) { return static_cast<float>(leaves[i]->defaultNumber); };
    defDirectionX = number(0);
    defDirectionY = number(1);
    defDirectionZ = number(2);
    defIntensityR = number(3);
    defIntensityG = number(4);
    defIntensityB = number(5);
    defAmbient = leaves[6]->defaultNumber != 0.0;
    defDiffuse = leaves[7]->defaultNumber != 0.0;
    defSpecular = leaves[8]->defaultNumber != 0.0;
    defShadowFraction = number(9);
    defPreShadowIntensity = number(10);
    defBlindData = reinterpret_cast<void*>(static_cast<std::intptr_t>(blindData(*attribute).defaultNumber));
    return MS::kSuccess;
}

MStatus MFnLightDataAttribute::setDefault(float defDirectionX, float defDirectionY, float defDirectionZ,
                                          float defIntensityR, float defIntensityG, float defIntensityB,
                                          bool defAmbient, bool defDiffuse, bool defSpecular,
                                          float defShadowFraction, float defPreShadowIntensity,
                                          void* defBlindData)
{
    TVX_API_CALL("MFnLightDataAttribute::setDefault");
    const Attribute* attribute = attributeOf(*this);
    if (!attribute)
        return notAttached();
    const std::vector<Attribute*> leaves = leavesOf(*attribute);
    if (leaves.empty())
        return failure(StatusText::objectIsIncompatible);
    const std::array<double, kNumbers> numbers = {static_cast<double>(defDirectionX),
                                                  static_cast<double>(defDirectionY),
                                                  static_cast<double>(defDirectionZ),
                                                  static_cast<double>(defIntensityR),
                                                  static_cast<double>(defIntensityG),
                                                  static_cast<double>(defIntensityB),
                                                  defAmbient ? 1.0 : 0.0,
                                                  defDiffuse ? 1.0 : 0.0,
                                                  defSpecular ? 1.0 : 0.0,
                                                  static_cast<double>(defShadowFraction),
                                                  static_cast<double>(defPreShadowIntensity)};
    for (std::size_t i = 0; i < kNumbers; ++i)
        leaves[i]->defaultNumber = numbers[i];
    blindData(*attribute).defaultNumber = static_cast<double>(reinterpret_cast<std::intptr_t>(defBlindData));
    return MS::kSuccess;
}

MObject MFnLightDataAttribute::child(unsigned int index, MStatus* returnStatus)
{
    return childAt(*this, "MFnLightDataAttribute::child", index, returnStatus);
}
