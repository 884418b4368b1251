// Loading and unloading the plug-in: what is registered, who owns it already, and how often it can be done.
// What is said of each failure is in PluginReportsTest.cpp.
#include "PluginSession.h"

#include "../host/support/temporaryFolder.h"
#include "CoreLogTrap.h"
#include "api/support/faults.h"

#include <maya/MStatus.h>
#include <maya/MString.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <dlfcn.h>
#include <filesystem>
#include <string>
#include <vector>

namespace tarvox::crowd {
namespace {

namespace faults = tvxhost::api::faults;

using test::Lines;
using test::PluginSession;
using test::reportOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;

constexpr char kEntryFile[] = "global/tvxCrowdRenderPlugin.cpp";

// The node types in the order in which they are registered.
constexpr const char* kTypes[] = {"CrowdRenderManagerNode",    "CrowdProxyVRay",
                                  "CrowdProxyRendermanStudio", "CrowdSwitchShaderVRay",
                                  "CrowdHSLShaderVRay",        "CrowdGetUserDataVRay",
                                  "CrowdSwitchShader3Delight", "CrowdGetUserData3Delight"};

// The statement of each report of the entry points.
constexpr char kNoNode[] = "\"registering \" << row.name";
constexpr char kLoaded[] = "\" plugin loaded.\"";

std::string entryReport(const std::string& severity, const char* statement, const std::string& text)
{
    return reportOf(severity, kEntryFile, statement, text);
}

std::string loadedReport()
{
    return entryReport("INFO", kLoaded, "initializePlugin: tvxCrowdRender plugin loaded.");
}

// The plug-in's node types that a session knows, in the order in which they were registered.
Lines registeredTypes(PluginSession& session)
{
    Lines names;
    for (const tvxhost::engine::NodeType* type : session.scene.types().ofPlugin("tvxCrowdRender"))
        names.push_back(type->name);
    return names;
}

const MStatus kRefused(MStatus::kFailure);

std::string refusedText()
{
    return kRefused.errorString().asChar();
}

class Plugin : public testing::Test
{
protected:
    PluginSession session;
};

TEST_F(Plugin, IdentifiesItself)
{
    ASSERT_TRUE(session.load());
    const tvxhost::api::Plugin* plugin = session.loader.findLoaded("tvxCrowdRender");
    ASSERT_NE(plugin, nullptr);
    EXPECT_EQ(plugin->vendor, "Tarvox");
    EXPECT_EQ(plugin->version, "2.5.0.1");
    EXPECT_EQ(plugin->apiVersion, "201602");
    EXPECT_EQ(plugin->requiredApiVersion, "Any");
    EXPECT_EQ(plugin->interfaceProcedures.creation, "tvxCrowdRenderCreateUI");
    EXPECT_EQ(plugin->interfaceProcedures.deletion, "tvxCrowdRenderDeleteUI");
    EXPECT_EQ(plugin->interfaceProcedures.batchCreation, "tvxCrowdRenderBatchMode");
    EXPECT_EQ(plugin->interfaceProcedures.batchDeletion, "");
}

TEST_F(Plugin, RegistersItsNodeTypesInOrder)
{
    ASSERT_TRUE(session.load());
    Lines types;
    for (const tvxhost::engine::NodeType* type : session.scene.types().ofPlugin("tvxCrowdRender"))
        types.push_back(type->name + " " + std::to_string(type->id) + (type->isShape ? " locator" : " node") +
                        " '" + type->classification + "'");
    EXPECT_THAT(types,
                ElementsAre("CrowdRenderManagerNode 1140965 locator ''", "CrowdProxyVRay 1140958 locator ''",
                            "CrowdProxyRendermanStudio 1140960 locator ''",
                            "CrowdSwitchShaderVRay 1140961 node 'utility/general:swatch/VRayMtlSwatchGen'",
                            "CrowdHSLShaderVRay 1140962 node 'utility/general:swatch/VRayMtlSwatchGen'",
                            "CrowdGetUserDataVRay 1140963 node 'utility/general'",
                            "CrowdSwitchShader3Delight 1140969 node 'utility/general'",
                            "CrowdGetUserData3Delight 1140968 node 'utility/general'"));
}

TEST_F(Plugin, CreatesThePreferenceOfItsLog)
{
    ASSERT_TRUE(session.load());
    EXPECT_THAT(session.scene.optionVars().names(), ElementsAre("tvxPrefLogLevelForCrowd_Render"));
    EXPECT_EQ(session.scene.optionVars().asInt("tvxPrefLogLevelForCrowd_Render"), 3);
}

TEST_F(Plugin, LogsEachLoadOnce)
{
    for (int round = 0; round < 3; ++round) {
        ASSERT_TRUE(session.load());
        EXPECT_THAT(session.takeReports(), ElementsAre(loadedReport()));
        ASSERT_TRUE(session.unload());
    }
}

TEST_F(Plugin, GoesByTheNameThatMayaKnowsItBy)
{
    const tvxhost::test::TemporaryFolder folder;
    std::filesystem::copy_file(session.library(), folder.path("otherName.so"));
    test::takeTraces();
    ASSERT_TRUE(session.load(folder.path("otherName.so")));
    ASSERT_TRUE(session.loader.unload("otherName").outcome);
    Lines messages;
    for (const test::Trace& trace : test::takeTraces())
        messages.push_back(trace.message);
    EXPECT_THAT(messages, ElementsAre(EndsWith(": initializePlugin: otherName plugin loaded."),
                                      EndsWith(": uninitializePlugin: otherName plugin unloaded.")));
}

// The library stays in the process: the second load meets the logger of the first one.
TEST_F(Plugin, LoadedAgainWithinTheLifeOfItsLibraryGoesOnWithTheSameLogger)
{
    const tvxhost::test::TemporaryFolder folder;
    session.scene.optionVars().set("tvxPrefLogToFile", 1);
    session.scene.optionVars().set("tvxPrefLogDirectory", folder.path().string());
    void* library = dlopen(session.library().c_str(), RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(library, nullptr) << dlerror();
    ASSERT_TRUE(session.load());
    const std::string firstLoad = folder.read("tvxCrowd.log");
    EXPECT_THAT(session.takeReports(), ElementsAre(loadedReport()));
    ASSERT_TRUE(session.unload());
    ASSERT_TRUE(session.load());
    EXPECT_THAT(session.takeReports(), ElementsAre(loadedReport()));
    EXPECT_EQ(folder.read("tvxCrowd.log"), firstLoad)
        << "unloading closed the file, and starting does not open it";
    ASSERT_TRUE(session.unload());
    dlclose(library);
}

TEST_F(Plugin, LeavesTheProcessAfterAThousandLoads)
{
    for (int round = 0; round < 1000; ++round) {
        ASSERT_TRUE(session.load()) << round;
        ASSERT_TRUE(session.unload()) << round;
        ASSERT_EQ(session.takeReports().size(), 1u) << round;
    }
    EXPECT_EQ(dlopen(session.library().c_str(), RTLD_NOW | RTLD_NOLOAD), nullptr);
}

// Failures of loading

TEST_F(Plugin, ReportsTheTypeWhoseIdAnotherPluginOwnsAndTriesNoOther)
{
    const char* const owners[] = {TVX_OWNERS_OF_IDS};
    ASSERT_EQ(std::size(owners), std::size(kTypes));
    for (std::size_t owned = 0; owned < std::size(kTypes); ++owned) {
        PluginSession own;
        ASSERT_TRUE(own.load(owners[owned]));
        faults::record(true);
        EXPECT_FALSE(own.load());
        EXPECT_THAT(own.takeReports(),
                    ElementsAre(entryReport("ERROR", kNoNode,
                                            std::string("initializePlugin: Problem while registering ") +
                                                kTypes[owned] + " node - " + refusedText())));
        EXPECT_EQ(registeredTypes(own), Lines(kTypes, kTypes + owned));
        EXPECT_NE(own.scene.types().find(std::string("OwnerOfTheId")), nullptr);
        EXPECT_EQ(faults::countOf("MFnPlugin::registerNode"), owned + 1);
        EXPECT_EQ(faults::countOf("MFnPlugin::registerUI"), 0u);
        faults::clear();
    }
}

TEST_F(Plugin, LetsNoCoreExceptionLeaveItsEntryPoint)
{
    faults::failCall("MFnPlugin::registerUI", 1, kRefused);
    test::breakCoreLog(2);
    EXPECT_FALSE(session.load());
    EXPECT_THAT(session.takeReports(), IsEmpty());
}

TEST_F(Plugin, LoadsThoughItsLogIsBroken)
{
    test::breakCoreLog(2);
    EXPECT_TRUE(session.load());
    EXPECT_THAT(session.takeReports(), IsEmpty());
}

} // namespace
} // namespace tarvox::crowd
