// Loading and unloading the plug-in: what is registered, what is said, and every failure on the way.
#include "PluginSession.h"

#include "CoreLogTrap.h"
#include "TestFolder.h"
#include "api/support/faults.h"

#include <maya/MStatus.h>
#include <maya/MString.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <dlfcn.h>
#include <string>
#include <vector>

namespace tarvox::crowd {
namespace {

namespace faults = tvxhost::api::faults;

using test::Lines;
using test::PluginSession;
using test::reportOf;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr char kEntryFile[] = "global/tvxCrowdRenderPlugin.cpp";

// The node types in the order in which they are registered.
constexpr const char* kTypes[] = {"CrowdRenderManagerNode",    "CrowdProxyVRay",
                                  "CrowdProxyRendermanStudio", "CrowdSwitchShaderVRay",
                                  "CrowdHSLShaderVRay",        "CrowdGetUserDataVRay",
                                  "CrowdSwitchShader3Delight", "CrowdGetUserData3Delight"};

// The statement of each report of the entry points.
constexpr char kNoPlugin[] = "\"registering Plugin\"";
constexpr char kNoNode[] = "\"registering \" << row.name";
constexpr char kNoInterface[] = "\"registering Crowd Render UI\"";
constexpr char kLoaded[] = "\" plugin loaded.\"";
constexpr char kNoLongerNode[] = "\"unregistering \" << row.name";

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
    bool isRegistered(const char* type) { return session.scene.types().find(std::string(type)) != nullptr; }

    PluginSession session;
};

TEST_F(Plugin, SaysThatItIsLoaded)
{
    ASSERT_TRUE(session.load());
    EXPECT_THAT(session.takeReports(), ElementsAre(loadedReport()));
}

TEST_F(Plugin, SaysTheSameOnEveryOutput)
{
    const test::TestFolder folder;
    session.scene.optionVars().set("tvxPrefLogToOW", 1);
    session.scene.optionVars().set("tvxPrefLogToFile", 1);
    session.scene.optionVars().set("tvxPrefLogDirectory", folder.path());
    testing::internal::CaptureStdout();
    ASSERT_TRUE(session.load());
    const std::string line = "[TarvoxCrowd::INFO]\tCrowd Render: At line " +
                             std::to_string(test::lineOf(kEntryFile, kLoaded)) + " in file " + kEntryFile +
                             ": initializePlugin: tvxCrowdRender plugin loaded.\n";
    EXPECT_EQ(testing::internal::GetCapturedStdout(), line);
    EXPECT_EQ(folder.read("tvxCrowd.log"), line);
}

TEST_F(Plugin, IdentifiesItself)
{
    ASSERT_TRUE(session.load());
    const tvxhost::api::Plugin* plugin = session.loader.findLoaded("tvxCrowdRender");
    ASSERT_NE(plugin, nullptr);
    EXPECT_EQ(plugin->vendor, "Tarvox");
    EXPECT_EQ(plugin->version, "2.5.0.1");
    EXPECT_EQ(plugin->apiVersion, "201602");
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

TEST_F(Plugin, TakesItsNodeTypesBackInTheSameOrderAndSaysNothing)
{
    ASSERT_TRUE(session.load());
    session.takeReports();
    faults::record(true);
    ASSERT_TRUE(session.unload());
    EXPECT_EQ(faults::countOf("MFnPlugin::deregisterNode"), std::size(kTypes));
    EXPECT_THAT(session.takeReports(), IsEmpty()) << "the logger is stopped before the last report";
    EXPECT_THAT(session.scene.types().ofPlugin("tvxCrowdRender"), IsEmpty());
}

TEST_F(Plugin, LogsEachLoadOnce)
{
    for (int round = 0; round < 3; ++round) {
        ASSERT_TRUE(session.load());
        EXPECT_THAT(session.takeReports(), ElementsAre(loadedReport()));
        ASSERT_TRUE(session.unload());
    }
}

// The library stays in the process: the second load meets the logger of the first one.
TEST_F(Plugin, LoadedAgainWithinTheLifeOfItsLibraryGoesOnWithTheSameLogger)
{
    const test::TestFolder folder;
    session.scene.optionVars().set("tvxPrefLogToFile", 1);
    session.scene.optionVars().set("tvxPrefLogDirectory", folder.path());
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

TEST_F(Plugin, SaysNothingBelowInfoButRegistersAllTheSame)
{
    for (const int level : {0, 1, 2}) {
        session.scene.optionVars().set("tvxPrefLogLevelForCrowd_Render", level);
        ASSERT_TRUE(session.load());
        EXPECT_THAT(session.takeReports(), IsEmpty()) << level;
        for (const char* type : kTypes)
            EXPECT_TRUE(isRegistered(type)) << type;
        ASSERT_TRUE(session.unload());
    }
    for (const int level : {3, 4}) {
        session.scene.optionVars().set("tvxPrefLogLevelForCrowd_Render", level);
        ASSERT_TRUE(session.load());
        EXPECT_THAT(session.takeReports(), ElementsAre(loadedReport())) << level;
        ASSERT_TRUE(session.unload());
    }
}

// Failures of loading

TEST_F(Plugin, ReportsThatMayaDoesNotAcceptIt)
{
    faults::failCall("MFnPlugin::MFnPlugin", 1, kRefused);
    EXPECT_FALSE(session.load());
    EXPECT_THAT(
        session.takeReports(),
        ElementsAre(entryReport("ERROR", kNoPlugin,
                                "initializePlugin: Problem while registering Plugin - " + refusedText())));
    EXPECT_THAT(session.scene.types().ofPlugin("tvxCrowdRender"), IsEmpty());
}

TEST_F(Plugin, ReportsTheFirstNodeTypeThatIsRefusedAndTriesNoOther)
{
    for (std::size_t refused = 0; refused < std::size(kTypes); ++refused) {
        PluginSession own;
        faults::record(true);
        faults::failCall("MFnPlugin::registerNode", refused + 1, kRefused);
        EXPECT_FALSE(own.load());
        EXPECT_THAT(own.takeReports(),
                    ElementsAre(entryReport("ERROR", kNoNode,
                                            std::string("initializePlugin: Problem while registering ") +
                                                kTypes[refused] + " node - " + refusedText())));
        EXPECT_EQ(faults::countOf("MFnPlugin::registerNode"), refused + 1);
        EXPECT_EQ(faults::countOf("MFnPlugin::registerUI"), 0u);
        EXPECT_EQ(registeredTypes(own), Lines(kTypes, kTypes + refused));
    }
}

TEST_F(Plugin, ReportsThatItsInterfaceIsRefusedAndKeepsItsNodeTypes)
{
    faults::failCall("MFnPlugin::registerUI", 1, kRefused);
    EXPECT_FALSE(session.load());
    EXPECT_THAT(session.takeReports(),
                ElementsAre(entryReport("ERROR", kNoInterface,
                                        "initializePlugin: Problem while registering Crowd Render UI - " +
                                            refusedText())));
    for (const char* type : kTypes)
        EXPECT_TRUE(isRegistered(type)) << type;
}

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

TEST_F(Plugin, FailsSilentlyWhenOnlyCriticalMessagesPass)
{
    session.scene.optionVars().set("tvxPrefLogLevelForCrowd_Render", 0);
    faults::failCall("MFnPlugin::registerNode", 2, kRefused);
    EXPECT_FALSE(session.load());
    EXPECT_THAT(session.takeReports(), IsEmpty());
    EXPECT_THAT(registeredTypes(session), ElementsAre("CrowdRenderManagerNode"));
}

TEST_F(Plugin, LogsACoreExceptionInPlaceOfAReport)
{
    faults::failCall("MFnPlugin::registerUI", 1, kRefused);
    test::breakCoreLog(1);
    EXPECT_FALSE(session.load());
    EXPECT_THAT(session.takeReports(), ElementsAre("ERROR]\tthe log is broken"));
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

// Failures of unloading

TEST_F(Plugin, ReportsTheFirstNodeTypeThatCannotBeTakenBackAndTriesNoOther)
{
    for (std::size_t refused = 0; refused < std::size(kTypes); ++refused) {
        PluginSession own;
        ASSERT_TRUE(own.load());
        own.takeReports();
        faults::record(true);
        faults::failCall("MFnPlugin::deregisterNode", refused + 1, kRefused);
        EXPECT_FALSE(own.unload());
        EXPECT_THAT(own.takeReports(),
                    ElementsAre(entryReport("ERROR", kNoLongerNode,
                                            std::string("uninitializePlugin: Problem while unregistering ") +
                                                kTypes[refused] + " node - " + refusedText())));
        EXPECT_EQ(faults::countOf("MFnPlugin::deregisterNode"), refused + 1);
        EXPECT_EQ(registeredTypes(own), Lines(kTypes + refused, std::end(kTypes)));
    }
}

} // namespace
} // namespace tarvox::crowd
