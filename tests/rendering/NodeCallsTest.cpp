// What the nodes ask Maya for, in which order.
#include "NodeTest.h"
#include "api/support/faults.h"

#include <maya/MObject.h>
#include <maya/MPlug.h>

#include <gtest/gtest.h>

#include <map>
#include <regex>
#include <string>
#include <vector>

namespace tarvox::crowd {
namespace {

namespace faults = tvxhost::api::faults;

using test::Lines;
using test::NodeTest;
using test::PluginSession;

// A letter for each call that an initializer makes.
char letterOf(const std::string& call)
{
    static const std::map<std::string, char> letters = {
        {"MFnNumericAttribute::create", 'C'},     {"MFnNumericAttribute::createColor", 'C'},
        {"MFnEnumAttribute::create", 'C'},        {"MFnTypedAttribute::create", 'C'},
        {"MFnNumericAttribute::setDefault", 'v'}, {"MFnNumericAttribute::setMin", 'v'},
        {"MFnNumericAttribute::setMax", 'v'},     {"MFnEnumAttribute::addField", 'v'},
        {"MFnAttribute::setKeyable", 'k'},        {"MFnAttribute::setReadable", 'r'},
        {"MFnAttribute::setWritable", 'w'},       {"MFnAttribute::setHidden", 'h'},
        {"MFnAttribute::setArray", 'a'},          {"MFnAttribute::setIndexMatters", 'i'},
        {"MPxNode::addAttribute", '+'},           {"MFnAttribute::setStorable", 's'},
        {"MPxNode::attributeAffects", '>'}};
    const auto found = letters.find(call);
    return found == letters.end() ? '?' : found->second;
}

// The calls of each initializer, one after the other as the node types are registered.
Lines callsOfInitializers()
{
    PluginSession session;
    faults::record(true);
    EXPECT_TRUE(session.load());
    Lines all;
    for (const std::string& call : faults::calls()) {
        if (call == "MFnPlugin::registerUI")
            break;
        if (call == "MFnPlugin::registerNode")
            all.emplace_back();
        else if (!all.empty() && letterOf(call) != '?')
            all.back() += letterOf(call);
    }
    return all;
}

std::string times(std::size_t count, const std::string& text)
{
    std::string all;
    for (std::size_t i = 0; i < count; ++i)
        all += text;
    return all;
}

TEST(InitializerCalls, SetTheFlagsOfEachAttributeThenAddItThenTakeItOutOfSavedScenesAndDeclareAffectsLast)
{
    const std::regex attributesThenAffects("(Cv*krwhaiv*\\+s?)*>*");
    const Lines all = callsOfInitializers();
    EXPECT_EQ(all.size(), 8u);
    for (const std::string& calls : all)
        EXPECT_TRUE(std::regex_match(calls, attributesThenAffects)) << calls;
}

TEST(InitializerCalls, OfTheSwitchShaderForVRayMakeOneOutputAndThirteenInputs)
{
    constexpr std::size_t kPlace = 3;
    const std::string color = "Cvkrwhai+";
    const std::string number = "Ckrwhai+";
    EXPECT_EQ(callsOfInitializers().at(kPlace),
              color + "s" + times(2, number) + times(11, color) + times(13, ">"));
}

TEST(InitializerCalls, OfTheVRayProxyMakeThreeStrings)
{
    constexpr std::size_t kPlace = 1;
    EXPECT_EQ(callsOfInitializers().at(kPlace), times(3, "Ckrwhai+"));
}

// What the node's own code asks for when it is asked for a plug: how often for the plug's parent, and for the
// values of how many attributes.
class ComputeCalls : public NodeTest
{
protected:
    struct Asked
    {
        std::size_t parents;
        std::size_t values;
    };

    static Asked askedFor(const MObject& node, const MPlug& plug)
    {
        faults::record(true);
        compute(node, plug);
        faults::record(false);
        return {faults::countOf("MPlug::parent"),
                faults::countOf("MDataBlock::inputValue") + faults::countOf("MDataBlock::outputValue")};
    }
};

TEST_F(ComputeCalls, AskForTheParentOnlyOfAPlugThatIsNotTheOutputItself)
{
    const MObject node = createNode("CrowdSwitchShaderVRay");
    const MPlug output = plugOf(node, "output");
    EXPECT_EQ(askedFor(node, output).parents, 0u);
    EXPECT_EQ(askedFor(node, output.child(2)).parents, 1u);
    EXPECT_EQ(askedFor(node, plugOf(node, "shader3")).parents, 1u);
}

TEST_F(ComputeCalls, TouchNoDataForAPlugThatIsNotComputed)
{
    const MObject shader = createNode("CrowdSwitchShaderVRay");
    EXPECT_EQ(askedFor(shader, plugOf(shader, "output")).values, 2u);
    EXPECT_EQ(askedFor(shader, plugOf(shader, "shader3")).values, 0u);
    const MObject proxy = createShape("CrowdProxyVRay");
    EXPECT_EQ(askedFor(proxy, plugOf(proxy, "sceneName")).values, 0u);
}

} // namespace
} // namespace tarvox::crowd
