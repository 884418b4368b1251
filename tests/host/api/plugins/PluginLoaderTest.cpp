// PluginLoader: finding, loading and unloading plug-ins, with libraries good and bad.
#include "../../support/temporaryFolder.h"
#include "../nodeFixture.h"

#include <maya/MPlug.h>

#include <dlfcn.h>

#include <cstdlib>

using namespace tvxhost::api;
using namespace tvxhost::api::test;
using tvxhost::engine::MessageKind;
using tvxhost::engine::Reason;
using tvxhost::engine::ScriptRunner;

namespace {

/// Knows some procedures, and lists what it was told to run.
class Scripts final : public ScriptRunner
{
public:
    explicit Scripts(tvxhost::engine::Scene& scene) : m_scene(scene) {}

    bool run(const std::string& script, bool, bool, Result&) override
    {
        ran.push_back(script);
        if (!isMissing)
            return true;
        m_scene.scriptEditor().error("Cannot find procedure.");
        return false;
    }
    bool sourceFile(const std::string&) override { return false; }
    void runOnIdle(const std::string&, bool) override {}

    std::vector<std::string> ran;
    bool isMissing = false;

private:
    tvxhost::engine::Scene& m_scene;
};

class Loading : public NodeFixture
{
protected:
    Loading() : scripts(scene)
    {
        setenv("MAYA_PLUG_IN_PATH", "/no/such/folder:" TEST_PLUGIN_DIRECTORY, 1);
        scene.scriptRunner = &scripts;
    }

    static std::string path(const std::string& name) { return TEST_PLUGIN_DIRECTORY "/" + name; }
    static bool isMapped(const std::string& name)
    {
        void* handle = dlopen(path(name).c_str(), RTLD_LAZY | RTLD_NOLOAD);
        if (handle)
            dlclose(handle);
        return handle != nullptr;
    }

    Scripts scripts;
};

} // namespace

TEST_F(Loading, AnEntryOfThePathIsFoundWithAndWithoutExtension)
{
    EXPECT_EQ(path("goodPlugin.so"), PluginLoader::find("goodPlugin").value().string());
    EXPECT_EQ(path("goodPlugin.so"), PluginLoader::find("goodPlugin.so").value().string());
    EXPECT_EQ(path("goodPlugin.so"), PluginLoader::find(path("goodPlugin.so")).value().string());
    EXPECT_EQ(path("goodPlugin.so"), PluginLoader::find(path("goodPlugin")).value().string());
    EXPECT_FALSE(PluginLoader::find("noSuchPlugin"));
    EXPECT_FALSE(PluginLoader::find(""));
}

TEST_F(Loading, WhatIsNotThereIsSaidByName)
{
    const PluginResult result = loader.load("noSuchPlugin");
    EXPECT_EQ(Reason::doesNotExist, result.outcome.reason);
    EXPECT_EQ("Plug-in, \"noSuchPlugin\", was not found on MAYA_PLUG_IN_PATH.", result.outcome.text);
}

TEST_F(Loading, ALoadedPluginIsDescribed)
{
    const PluginResult result = loader.load("goodPlugin");
    ASSERT_TRUE(result.outcome) << result.outcome.text;
    EXPECT_EQ("", result.warning);
    EXPECT_EQ("goodPlugin", result.name);
    const Plugin* found = loader.findLoaded("goodPlugin");
    ASSERT_NE(nullptr, found);
    EXPECT_EQ(path("goodPlugin.so"), found->file.string());
    EXPECT_EQ("Good Vendor", found->vendor);
    EXPECT_EQ("2.5", found->version);
    EXPECT_EQ("201602", found->apiVersion);
    EXPECT_EQ("Any", found->requiredApiVersion);
    EXPECT_EQ(std::vector<std::string>{"greet"}, found->commands);
    const auto types = loader.nodeTypes(*found);
    ASSERT_EQ(2u, types.size());
    EXPECT_EQ("doubler", types[0]->name);
    EXPECT_EQ(0x3000u, types[0]->id);
    EXPECT_EQ("pinLocator", types[1]->name);
    EXPECT_EQ(found, loader.findLoaded("goodPlugin.so"));
    EXPECT_EQ(found, loader.findLoaded(path("goodPlugin.so")));
    EXPECT_EQ(std::vector<Plugin*>{const_cast<Plugin*>(found)}, loader.loaded());
    EXPECT_TRUE(loader.unload("goodPlugin").outcome);
}

TEST_F(Loading, ALoadedPluginWorks)
{
    ASSERT_TRUE(loader.load("goodPlugin").outcome);
    {
        const MObject node = make("doubler");
        EXPECT_TRUE(plug(node, "input").setValue(21.0));
        EXPECT_EQ(42.0, plug(node, "output").asDouble());
        ScriptRunner::Result result;
        EXPECT_TRUE(scene.pluginCommands.at("greet").run({}, result));
        EXPECT_EQ(std::vector<std::string>{"hello"}, result.strings);
    }
    EXPECT_TRUE(loader.unload("goodPlugin", true).outcome);
}

TEST_F(Loading, LoadingTwiceIsAWarningAndInitialisesOnce)
{
    ASSERT_TRUE(loader.load("goodPlugin").outcome);
    for (const std::string& again : {std::string("goodPlugin"), path("goodPlugin.so")}) {
        const PluginResult result = loader.load(again);
        EXPECT_TRUE(result.outcome);
        EXPECT_EQ("Plug-in, \"goodPlugin\", is already loaded.", result.warning);
    }
    EXPECT_EQ(std::vector<std::string>{"good plug-in: initialize"}, shown(scene, MessageKind::info));
    EXPECT_TRUE(loader.unload("goodPlugin").outcome);
}

TEST_F(Loading, UnloadingWhatIsNotLoadedIsAWarning)
{
    const PluginResult result = loader.unload("goodPlugin");
    EXPECT_TRUE(result.outcome);
    EXPECT_EQ("Plug-in, \"goodPlugin\", is not loaded.", result.warning);
}

TEST_F(Loading, AnUnloadedPluginIsGoneAndCanComeBack)
{
    for (int round = 0; round < 3; ++round) {
        ASSERT_TRUE(loader.load("goodPlugin").outcome);
        EXPECT_TRUE(isMapped("goodPlugin.so"));
        ASSERT_TRUE(loader.unload("goodPlugin").outcome);
        EXPECT_FALSE(isMapped("goodPlugin.so"));
        EXPECT_EQ(nullptr, scene.types().find("doubler"));
        EXPECT_TRUE(scene.pluginCommands.empty());
        EXPECT_TRUE(loader.loaded().empty());
    }
}

TEST_F(Loading, LivingNodesForbidUnloadingBeforeTheEntryPointIsAsked)
{
    ASSERT_TRUE(loader.load("goodPlugin").outcome);
    make("doubler", "inTheWay");
    const PluginResult refused = loader.unload("goodPlugin");
    EXPECT_EQ(Reason::inUse, refused.outcome.reason);
    EXPECT_EQ("Plug-in, \"goodPlugin\", cannot be unloaded because it is still in use.",
              refused.outcome.text);
    EXPECT_EQ(std::vector<std::string>{"good plug-in: initialize"}, shown(scene, MessageKind::info));
    ASSERT_TRUE(scene.deleteNode(*scene.findNode("inTheWay").value));
    EXPECT_TRUE(loader.unload("goodPlugin").outcome);
}

TEST_F(Loading, ForceLeavesUnknownNodesThatKeepTheirValues)
{
    ASSERT_TRUE(loader.load("goodPlugin").outcome);
    const MObject node = make("doubler", "orphan");
    EXPECT_TRUE(plug(node, "input").setValue(21.0));
    ASSERT_TRUE(loader.unload("goodPlugin", true).outcome);
    EXPECT_FALSE(isMapped("goodPlugin.so"));
    EXPECT_EQ(MFn::kUnknown, node.apiType());
    EXPECT_EQ(21.0, plug(node, "input").asDouble());
}

TEST_F(Loading, TheInterfaceIsMadeAfterLoadingAndRemovedBeforeUnloading)
{
    scene.setBatch(false);
    ASSERT_TRUE(loader.load("goodPlugin").outcome);
    EXPECT_EQ(std::vector<std::string>{"goodCreate()"}, scripts.ran);
    ASSERT_TRUE(loader.unload("goodPlugin").outcome);
    EXPECT_EQ((std::vector<std::string>{"goodCreate()", "goodDelete()"}), scripts.ran);
}

TEST_F(Loading, InBatchTheBatchProceduresRunAndEmptyNamesAreSkipped)
{
    ASSERT_TRUE(loader.load("goodPlugin").outcome);
    ASSERT_TRUE(loader.unload("goodPlugin").outcome);
    EXPECT_EQ(std::vector<std::string>{"goodBatchCreate()"}, scripts.ran);
}

TEST_F(Loading, AMissingProcedureIsAnErrorAndTheLoadSucceeds)
{
    scripts.isMissing = true;
    const PluginResult result = loader.load("goodPlugin");
    EXPECT_TRUE(result.outcome);
    EXPECT_EQ(std::vector<std::string>{"Cannot find procedure."}, shown(scene, MessageKind::error));
    EXPECT_NE(nullptr, loader.findLoaded("goodPlugin"));
    EXPECT_TRUE(loader.unload("goodPlugin").outcome);
}

TEST_F(Loading, AnIdThatIsTakenFailsTheLoadAndKeepsWhatWasRegistered)
{
    ASSERT_TRUE(loader.load("goodPlugin").outcome);
    const PluginResult result = loader.load("clashingPlugin");
    EXPECT_EQ("initializePlugin function failed (clashingPlugin)", result.outcome.text);
    EXPECT_EQ(std::vector<std::string>{"clashing: (kFailure): Unexpected Internal Failure"},
              shown(scene, MessageKind::error));
    EXPECT_EQ(nullptr, loader.findLoaded("clashingPlugin"));
    EXPECT_NE(nullptr, scene.types().find("before"));
    EXPECT_EQ(nullptr, scene.types().find("clashing"));
    EXPECT_TRUE(isMapped("clashingPlugin.so"));
    EXPECT_EQ(MFn::kPluginDependNode, make("before").apiType());
    EXPECT_TRUE(loader.unload("goodPlugin").outcome);
}

TEST_F(Loading, ALibraryWithoutEntryPointsIsRefusedWithTheSystemsMessage)
{
    const PluginResult result = loader.load("noEntryPoints");
    EXPECT_EQ(path("noEntryPoints.so") + ": undefined symbol: initializePlugin (noEntryPoints)",
              result.outcome.text);
    EXPECT_FALSE(isMapped("noEntryPoints.so"));
}

TEST_F(Loading, ALibraryThatLacksASymbolIsRefusedWithTheSystemsMessage)
{
    const PluginResult result = loader.load("missingSymbol");
    EXPECT_EQ(path("missingSymbol.so") + ": undefined symbol: _Z13nobodyHasThisv (missingSymbol)",
              result.outcome.text);
}

TEST_F(Loading, WhatIsNoLibraryIsRefused)
{
    const tvxhost::test::TemporaryFolder folder;
    const std::string file = folder.path("text.so");
    folder.write("text.so", "text");
    EXPECT_EQ(file + ": file too short (text)", loader.load(file).outcome.text);
    folder.write("text.so", std::string(4096, 'x'));
    EXPECT_EQ(file + ": invalid ELF header (text)", loader.load(file).outcome.text);
    EXPECT_TRUE(loader.loaded().empty());
}

TEST_F(Loading, EntryPointsWithPlainNamesAreFoundAndLeftoversRemoved)
{
    ASSERT_TRUE(loader.load("plainEntryPlugin").outcome);
    EXPECT_NE(nullptr, scene.types().find("leftBehind"));
    const Plugin* found = loader.findLoaded("plainEntryPlugin");
    EXPECT_EQ("Unknown", found->vendor);
    EXPECT_EQ("Unknown", found->version);
    ASSERT_TRUE(loader.unload("plainEntryPlugin").outcome);
    EXPECT_EQ(nullptr, scene.types().find("leftBehind"));
}

TEST_F(Loading, AFailingUninitializeKeepsThePluginLoaded)
{
    ASSERT_TRUE(loader.load("stubbornPlugin").outcome);
    EXPECT_EQ(nullptr, loader.findLoaded("stubbornPlugi"));
    ASSERT_NE(nullptr, loader.findLoaded("stubborn"));
    const PluginResult result = loader.unload("stubborn");
    EXPECT_EQ("uninitializePlugin function failed (stubborn)", result.outcome.text);
    EXPECT_NE(nullptr, loader.findLoaded("stubborn"));
}

TEST_F(Loading, AnExceptionFailsTheLoad)
{
    const PluginResult result = loader.load("throwingPlugin");
    EXPECT_EQ("initializePlugin function failed (throwingPlugin)", result.outcome.text);
    EXPECT_TRUE(loader.loaded().empty());
}

TEST_F(Loading, AUsersNameIsMadeUnique)
{
    ASSERT_EQ("mine", loader.load("goodPlugin", "mine").name);
    EXPECT_EQ("mine1", loader.load("plainEntryPlugin", "mine").name);
    EXPECT_EQ("mine", scene.types().find("doubler")->plugin);
    EXPECT_TRUE(loader.unload("mine1").outcome);
    EXPECT_TRUE(loader.unload("mine").outcome);
}

TEST_F(Loading, WhatAPluginRegisteredGoesByItsNewName)
{
    ASSERT_TRUE(loader.load("goodPlugin").outcome);
    Plugin& loaded = *loader.findLoaded("goodPlugin");
    ASSERT_TRUE(loader.rename(loaded, "better", false));
    EXPECT_EQ("better", scene.types().find("doubler")->plugin);
    EXPECT_EQ("better", scene.pluginCommands.at("greet").plugin);
    EXPECT_EQ(2u, loader.nodeTypes(loaded).size());
    EXPECT_TRUE(loader.unload("better").outcome);
}

TEST_F(Loading, AFaultInTheRegistrationReachesThePlugin)
{
    faults::failCall("MFnPlugin::registerNode", 2, MStatus(MS::kFailure));
    ASSERT_TRUE(loader.load("goodPlugin").outcome);
    EXPECT_NE(nullptr, scene.types().find("doubler"));
    EXPECT_EQ(nullptr, scene.types().find("pinLocator"));
    loader.unload("goodPlugin");
}

TEST_F(Loading, AThousandRoundsLeaveNothingBehind)
{
    const std::size_t types = scene.types().all().size();
    for (int round = 0; round < 1000; ++round) {
        ASSERT_TRUE(loader.load("goodPlugin").outcome);
        ASSERT_TRUE(loader.unload("goodPlugin").outcome);
    }
    EXPECT_EQ(types, scene.types().all().size());
    EXPECT_FALSE(isMapped("goodPlugin.so"));
}
