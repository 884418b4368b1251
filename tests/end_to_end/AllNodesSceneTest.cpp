// A scene with every type of the plug-in, each of its attributes changed, locked and connected somewhere:
// what is written of it, and that it survives.
#include "../host/support/temporaryFolder.h"
#include "program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <regex>
#include <string>
#include <vector>

namespace {

using namespace tvxhost::test;
using testing::UnorderedElementsAreArray;

using Lines = std::vector<std::string>;

/// An attribute that can be set: its names, a value as a script gives it and as a scene holds it.
struct Setting
{
    std::string longName;
    std::string shortName;
    std::string given;
    std::string written;
};

/// An output, and the type and attributes of a node that it can be connected to.
struct Output
{
    std::string longName;
    std::string takerType;
    std::string taken;
    std::string takenShort;
};

struct Type
{
    std::string name;
    bool isLocator;
    std::vector<Setting> settings;
    std::vector<Output> outputs;
};

Setting text(const std::string& longName, const std::string& shortName)
{
    return {longName, shortName, "-type \"string\" \"" + longName + " \\\"quoted\\\"\"",
            "-type \"string\" \"" + longName + " \\\"quoted\\\"\""};
}
Setting number(const std::string& longName, const std::string& shortName, const std::string& value)
{
    return {longName, shortName, value, value};
}
Setting color(const std::string& longName, const std::string& shortName)
{
    return {longName, shortName, "-type \"double3\" 0 0.5 0.25", "-type \"float3\" 0 0.5 0.25 "};
}

std::vector<Type> types()
{
    std::vector<Type> all = {
        {"CrowdRenderManagerNode", true, {}, {}},
        {"CrowdProxyVRay",
         true,
         {text("sceneName", "scn"), text("vrsceneFileDir", "vfd"), text("pythonCallback", "pyc")},
         {}},
        {"CrowdProxyRendermanStudio",
         true,
         {text("sceneName", "scn"), number("frame", "cfr", "-12"), number("frameRate", "fr", "23.976"),
          text("ribFileDir", "rfd")},
         {}},
        {"CrowdSwitchShaderVRay",
         false,
         {number("selector", "sel", "3"), number("startOffset", "sto", "-2"), color("default", "def")},
         {{"output", "CrowdHSLShaderVRay", "input", "in"}}},
        {"CrowdHSLShaderVRay",
         false,
         {number("h", "h", "0.5"), number("s", "s", "-1"), number("l", "l", "1"), color("input", "in")},
         {{"output", "CrowdSwitchShaderVRay", "shader7", "sh7"}}},
        {"CrowdGetUserDataVRay",
         false,
         {number("paramType", "pt", "1"), number("default", "df", "42.5")},
         {{"output", "CrowdHSLShaderVRay", "h", "h"}}},
        {"CrowdSwitchShader3Delight",
         false,
         {text("shadingParameters", "sp"), text("shadingCode", "sc")},
         {}},
        {"CrowdGetUserData3Delight", false, {text("shadingParameters", "sp"), text("shadingCode", "sc")}, {}},
    };
    for (const char* digit : {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9"})
        all[3].settings.push_back(color(std::string("shader") + digit, std::string("sh") + digit));
    return all;
}

/// The nodes of a type: one as it is made, one with all attributes changed, one with all of them changed and
/// locked, one with all of them connected to the second.
std::string nodeOf(const Type& type, const char* role)
{
    return role + type.name;
}
constexpr const char* kRoles[] = {"new", "changed", "locked", "driven"};

std::string creation(const Type& type, const char* role)
{
    const std::string name = nodeOf(type, role);
    if (!type.isLocator)
        return "createNode " + type.name + " -n \"" + name + "\";\n";
    return "createNode transform -n \"" + name + "Place\";\ncreateNode " + type.name + " -n \"" + name +
           "\" -p \"" + name + "Place\";\n";
}

/// The script that makes the scene.
std::string script()
{
    std::string mel;
    for (const Type& type : types()) {
        for (const char* role : kRoles)
            mel += creation(type, role);
        for (const Setting& setting : type.settings) {
            const auto plug = [&](const char* role) { return nodeOf(type, role) + "." + setting.longName; };
            for (const char* role : {"changed", "locked"})
                mel += "setAttr \"" + plug(role) + "\" " + setting.given + ";\n";
            mel += "setAttr -lock true \"" + plug("locked") + "\";\n";
            mel += "connectAttr \"" + plug("changed") + "\" \"" + plug("driven") + "\";\n";
        }
        for (const Output& output : type.outputs)
            mel += "createNode " + output.takerType + " -n \"taker" + type.name +
                   "\";\nconnectAttr \"changed" + type.name + "." + output.longName + "\" \"taker" +
                   type.name + "." + output.taken + "\";\n";
    }
    return mel;
}

std::string joined(const Lines& lines)
{
    std::string whole;
    for (const std::string& line : lines)
        whole += line + "\n";
    return whole;
}

/// What a scene is expected to say of the nodes, in the order of their creation; identities left out.
std::string expectedNodes()
{
    Lines lines;
    const auto expectCreation = [&](const Type& type, const char* role) {
        for (const std::string& line : linesOf(creation(type, role)))
            lines.push_back(line);
        if (type.isLocator)
            lines.push_back("\tsetAttr -k off \".v\";");
    };
    for (const Type& type : types()) {
        for (const char* role : kRoles) {
            expectCreation(type, role);
            for (const Setting& setting : type.settings) {
                const std::string rest = "\"." + setting.shortName + "\" " + setting.written + ";";
                if (role == std::string("changed"))
                    lines.push_back("\tsetAttr " + rest);
                if (role == std::string("locked"))
                    lines.push_back("\tsetAttr -l on " + rest);
            }
        }
        for (const Output& output : type.outputs)
            lines.push_back("createNode " + output.takerType + " -n \"taker" + type.name + "\";");
    }
    return joined(lines);
}

Lines expectedConnections()
{
    Lines lines;
    const auto expect = [&](const std::string& source, const std::string& destination) {
        lines.push_back("connectAttr \"" + source + "\" \"" + destination + "\";");
    };
    for (const Type& type : types()) {
        for (const Setting& setting : type.settings)
            expect(nodeOf(type, "changed") + "." + setting.shortName,
                   nodeOf(type, "driven") + "." + setting.shortName);
        for (const Output& output : type.outputs)
            expect(nodeOf(type, "changed") + ".op", "taker" + type.name + "." + output.takenShort);
    }
    return lines;
}

/// The lines of a scene from the first of our nodes to the first that is not about one, identities left out.
std::string writtenNodes(const std::string& scene)
{
    Lines all = linesOf(scene);
    const auto first =
        std::find(all.begin(), all.end(), "createNode transform -n \"newCrowdRenderManagerNodePlace\";");
    const auto last = std::find_if(first, all.end(), [](const std::string& line) {
        return line[0] != '\t' && line.rfind("createNode ", 0) != 0;
    });
    Lines lines(first, last);
    lines.erase(std::remove_if(lines.begin(), lines.end(),
                               [](const std::string& line) { return line.rfind("\trename -uid ", 0) == 0; }),
                lines.end());
    return joined(lines);
}

class AllNodesScene : public testing::Test
{
protected:
    std::filesystem::path file(const std::string& name) const { return m_folder / name; }

    /// Runs the program with the plug-in; it is to go without an error.
    void run(std::vector<std::string> arguments)
    {
        arguments.insert(arguments.begin(), {"--plugin", pluginFile()});
        const ProgramResult result = runHost(arguments, {{"SOURCE_DATE_EPOCH", "1457345551"}});
        EXPECT_EQ(result.exitCode, 0);
        EXPECT_EQ(result.errors, "");
    }

    /// The scene as it is saved right after it was made.
    std::string save(const std::filesystem::path& scene)
    {
        writeFile(file("make.mel"), script());
        run({"--script", file("make.mel"), "--save", scene});
        return contentsOf(scene);
    }

    TemporaryFolder m_folder;
};

TEST_F(AllNodesScene, HoldsWhatWasChangedOrLockedAndNothingElse)
{
    EXPECT_EQ(writtenNodes(save(file("first.ma"))), expectedNodes());
}

TEST_F(AllNodesScene, HoldsEveryConnection)
{
    // A statement that fills its line ends in the next one.
    const std::string scene = std::regex_replace(save(file("first.ma")), std::regex("\n\t\t;"), ";");
    EXPECT_THAT(linesWith(scene, "connectAttr \"changed"), UnorderedElementsAreArray(expectedConnections()));
}

TEST_F(AllNodesScene, RequiresThePluginForEveryType)
{
    const std::string scene = save(file("first.ma"));
    const std::size_t begin = scene.find("requires -nodeType");
    ASSERT_NE(begin, std::string::npos);
    // A long statement goes on in the next line.
    std::string requirement = scene.substr(begin, scene.find(';', begin) - begin);
    requirement = std::regex_replace(requirement, std::regex("\n\t\t"), "");
    std::string expected = "requires";
    for (const Type& type : types())
        expected += " -nodeType \"" + type.name + "\"";
    EXPECT_EQ(requirement, expected + " \"tvxCrowdRender\" \"2.5.0.1\"");
}

TEST_F(AllNodesScene, SurvivesReadingAndSavingByteForByte)
{
    std::filesystem::create_directory(file("again"));
    const std::string first = save(file("all.ma"));
    run({file("all.ma"), "--save", file("again/all.ma")});
    EXPECT_EQ(contentsOf(file("again/all.ma")), first);
}

TEST_F(AllNodesScene, SurvivesAHostWithoutThePlugin)
{
    std::filesystem::create_directory(file("without"));
    std::filesystem::create_directory(file("with"));
    const std::string first = save(file("all.ma"));
    const ProgramResult without =
        runHost({file("all.ma"), "--save", file("without/all.ma")}, {{"MAYA_PLUG_IN_PATH", m_folder.path()}});
    EXPECT_EQ(without.exitCode, 0) << without.errors;
    run({file("without/all.ma"), "--save", file("with/all.ma")});
    EXPECT_EQ(writtenNodes(contentsOf(file("with/all.ma"))), expectedNodes());
}

} // namespace
