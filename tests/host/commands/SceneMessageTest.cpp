// What plug-ins hear of files, references and connections when commands work on them.
#include "projectFixture.h"

#include <maya/MDistance.h>
#include <maya/MEventMessage.h>
#include <maya/MFileObject.h>
#include <maya/MFnDependencyNode.h>
#include <maya/MObject.h>
#include <maya/MPlug.h>
#include <maya/MSceneMessage.h>
#include <maya/MString.h>
#include <maya/MTime.h>

namespace tvxhost::mel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Heard = std::vector<std::string>;

/// What one callback is given: the word that it adds to what was heard.
struct Word
{
    Heard* heard;
    std::string text;
};

void hear(void* clientData)
{
    const Word& word = *static_cast<Word*>(clientData);
    word.heard->push_back(word.text);
}

/// With the reference node, when there is one, and the file's name.
void hearReference(const MObject& node, const MFileObject& file, void* clientData)
{
    const Word& word = *static_cast<Word*>(clientData);
    const std::string name =
        node.isNull() ? "none" : std::string(MFnDependencyNode(node, nullptr).name().asChar());
    word.heard->push_back(word.text + " " + name + " " + MFileObject(file).rawName().asChar());
}

void forbidReference(bool* isAllowed, const MObject&, MFileObject&, void*)
{
    *isAllowed = false;
}

class SceneMessageTest : public ProjectFixture
{
protected:
    SceneMessageTest()
    {
        engine::Scene::makeCurrent(&scene);
        writeScene("tree.ma", "createNode transform -n \"trunk\";\n");
    }
    ~SceneMessageTest() override { engine::Scene::makeCurrent(nullptr); }

    void listen(MSceneMessage::Message message, const std::string& text)
    {
        MStatus status;
        MSceneMessage::addCallback(message, hear, word(text), &status);
        EXPECT_EQ(MS::kSuccess, status) << text;
    }
    void listenToReference(MSceneMessage::Message message, const std::string& text)
    {
        MStatus status;
        MSceneMessage::addReferenceCallback(message, hearReference, word(text), &status);
        EXPECT_EQ(MS::kSuccess, status) << text;
    }
    void* word(const std::string& text)
    {
        m_words.push_back(std::make_unique<Word>(Word{&heard, text}));
        return m_words.back().get();
    }
    Heard takeHeard() { return std::exchange(heard, {}); }

    static constexpr const char* kReference = "file -reference -namespace \"tree\" \"tree.ma\"";
    Heard heard;

private:
    std::vector<std::unique_ptr<Word>> m_words;
};

TEST_F(SceneMessageTest, AReferenceIsToldFromItsMakingToItsRemoval)
{
    listenToReference(MSceneMessage::kBeforeCreateReference, "create");
    listenToReference(MSceneMessage::kAfterCreateReference, "created");
    listenToReference(MSceneMessage::kBeforeLoadReference, "load");
    listenToReference(MSceneMessage::kAfterLoadReference, "loaded");
    listenToReference(MSceneMessage::kBeforeUnloadReference, "unload");
    listenToReference(MSceneMessage::kAfterUnloadReference, "unloaded");
    listenToReference(MSceneMessage::kBeforeRemoveReference, "remove");
    listenToReference(MSceneMessage::kAfterRemoveReference, "removed");
    run(kReference);
    EXPECT_THAT(takeHeard(), ElementsAre("create none tree.ma", "load treeRN tree.ma",
                                         "loaded treeRN tree.ma", "created treeRN tree.ma"));
    run("file -unloadReference treeRN");
    EXPECT_THAT(takeHeard(), ElementsAre("unload treeRN tree.ma", "unloaded treeRN tree.ma"));
    run("file -loadReference treeRN");
    EXPECT_THAT(takeHeard(), ElementsAre("load treeRN tree.ma", "loaded treeRN tree.ma"));
    run("file -removeReference -referenceNode treeRN");
    EXPECT_THAT(takeHeard(), ElementsAre("remove treeRN tree.ma", "unload treeRN tree.ma",
                                         "unloaded treeRN tree.ma", "removed none tree.ma"));
}

TEST_F(SceneMessageTest, ADeferredReferenceIsMadeButNotLoaded)
{
    listen(MSceneMessage::kBeforeReference, "reference");
    listen(MSceneMessage::kAfterReference, "referenced");
    listen(MSceneMessage::kBeforeLoadReference, "load");
    run("file -reference -deferReference true -namespace \"tree\" \"tree.ma\"");
    EXPECT_THAT(takeHeard(), ElementsAre("reference", "referenced"));
}

TEST_F(SceneMessageTest, OpeningASceneLoadsItsReferences)
{
    run(kReference);
    run("file -rename \"forest.ma\"; file -save -type mayaAscii");
    listenToReference(MSceneMessage::kBeforeLoadReference, "load");
    listenToReference(MSceneMessage::kAfterLoadReference, "loaded");
    listen(MSceneMessage::kAfterOpen, "opened");
    run("file -force -open \"forest.ma\"");
    // The head of the file comes before its nodes, so the reference node is not there yet.
    const Heard all = takeHeard();
    ASSERT_EQ(3u, all.size());
    EXPECT_THAT(all[0], testing::EndsWith("tree.ma"));
    EXPECT_THAT(all[1], testing::StartsWith("loaded"));
    EXPECT_EQ("opened", all[2]);
}

TEST_F(SceneMessageTest, AReferenceThatSomebodyForbidsIsNotMade)
{
    listen(MSceneMessage::kBeforeCreateReference, "create");
    MSceneMessage::addCheckReferenceCallback(MSceneMessage::kBeforeCreateReferenceCheck, forbidReference);
    EXPECT_EQ("File operation cancelled by user supplied callback.", failure(kReference));
    EXPECT_THAT(takeHeard(), IsEmpty());
    EXPECT_EQ("0", run("objExists treeRN"));
}

TEST_F(SceneMessageTest, AReferenceThatSomebodyForbidsToLoadStaysUnloaded)
{
    run(kReference);
    run("file -unloadReference treeRN");
    listen(MSceneMessage::kBeforeLoadReference, "load");
    MSceneMessage::addCheckReferenceCallback(MSceneMessage::kBeforeLoadReferenceCheck, forbidReference);
    EXPECT_EQ("The reference 'treeRN' could not be loaded", failure("file -loadReference treeRN"));
    EXPECT_THAT(takeHeard(), IsEmpty());
    EXPECT_EQ("0", run("objExists \"tree:trunk\""));
}

TEST_F(SceneMessageTest, AnExportIsNoSave)
{
    run("createNode transform -n trunk; file -rename \"own.ma\"");
    listen(MSceneMessage::kBeforeSave, "save");
    listen(MSceneMessage::kAfterSave, "saved");
    listen(MSceneMessage::kBeforeExport, "export");
    listen(MSceneMessage::kExportStarted, "started");
    listen(MSceneMessage::kAfterExport, "exported");
    run("file -exportAll -type mayaAscii \"copy.ma\"");
    EXPECT_THAT(takeHeard(), ElementsAre("export", "started", "exported"));
    EXPECT_EQ(path("own.ma"), run("file -query -sceneName"));
    EXPECT_TRUE(std::filesystem::exists(path("copy.ma")));
    MSceneMessage::addCheckCallback(MSceneMessage::kBeforeExportCheck,
                                    [](bool* isAllowed, void*) { *isAllowed = false; });
    EXPECT_EQ("File operation cancelled by user supplied callback.",
              failure("file -exportAll -type mayaAscii \"no.ma\""));
    EXPECT_FALSE(std::filesystem::exists(path("no.ma")));
}

TEST_F(SceneMessageTest, ConnectionsThatAFileCannotMakeAreTold)
{
    writeScene("broken.ma", "createNode transform -n \"a\";\n"
                            "createNode transform -n \"b\";\n"
                            "connectAttr \"a.gone\" \"b.tx\";\n"
                            "connectAttr \"a.ty\" \"b.ty\";\n");
    const auto hearFailure = [](MPlug& source, MPlug& destination, const MString& sourceName,
                                const MString& destinationName, void* clientData) {
        const Word& word = *static_cast<Word*>(clientData);
        const std::string ends = std::string(source.isNull() ? "none" : source.name().asChar()) + " " +
                                 (destination.isNull() ? "none" : destination.name().asChar());
        word.heard->push_back(ends + ", " + sourceName.asChar() + " " + destinationName.asChar());
    };
    MSceneMessage::addConnectionFailedCallback(hearFailure, word(""));
    run("file -force -open \"broken.ma\"");
    EXPECT_THAT(takeHeard(), ElementsAre("none b.translateX, a.gone b.tx"));
}

TEST_F(SceneMessageTest, TheSceneIsUpdatedByAllThatBringsOrTakesNodes)
{
    listen(MSceneMessage::kSceneUpdate, "update");
    run("file -force -new");
    run("file -import \"tree.ma\"");
    run(kReference);
    run("file -removeReference -referenceNode treeRN");
    EXPECT_THAT(takeHeard(), ElementsAre("update", "update", "update", "update"));
}

TEST_F(SceneMessageTest, MembersOfSetsThatComeAndGoAreTold)
{
    run("createNode transform -n a; sets -empty -name crowd");
    EXPECT_NE(0u, MEventMessage::addEventCallback("SetModified", hear, word("modified")));
    run("sets -addElement crowd a");
    run("sets -addElement crowd a");
    EXPECT_THAT(takeHeard(), ElementsAre("modified")) << "it is a member once";
    run("sets -remove crowd a");
    EXPECT_THAT(takeHeard(), ElementsAre("modified"));
}

TEST_F(SceneMessageTest, SettingsAreToldWhenTheyChange)
{
    for (const char* name : {"linearUnitChanged", "angularUnitChanged", "timeUnitChanged",
                             "playbackRangeChanged", "WorkspaceChanged"})
        EXPECT_NE(0u, MEventMessage::addEventCallback(name, hear, word(name))) << name;
    run("currentUnit -linear m");
    EXPECT_THAT(takeHeard(), ElementsAre("linearUnitChanged"));
    run("currentUnit -linear m -angle rad -time pal");
    EXPECT_THAT(takeHeard(), ElementsAre("angularUnitChanged", "timeUnitChanged"));
    EXPECT_EQ(MS::kSuccess, MDistance::setUIUnit(MDistance::kCentimeters));
    EXPECT_EQ(MS::kSuccess, MTime::setUIUnit(MTime::kFilm));
    EXPECT_THAT(takeHeard(), ElementsAre("linearUnitChanged", "timeUnitChanged"));
    run("playbackOptions -minTime 1 -maxTime 50");
    run("playbackOptions -maxTime 50 -by 2");
    EXPECT_THAT(takeHeard(), ElementsAre("playbackRangeChanged"));
    run("workspace -openWorkspace \"" + folder.path().string() + "\"");
    EXPECT_THAT(takeHeard(), ElementsAre("WorkspaceChanged"));
    EXPECT_NE("", failure("currentUnit -linear parsec"));
    EXPECT_THAT(takeHeard(), IsEmpty());
}

} // namespace
} // namespace tvxhost::mel
