// What the scene's observers are told of files and of undo.
#include "projectFixture.h"

#include "engine/observers.h"

namespace tvxhost::mel {
namespace {

using engine::Event;
using engine::Happening;
using testing::ElementsAre;
using testing::IsEmpty;

class FileEventsTest : public ProjectFixture
{
protected:
    void hear(Happening what, const std::string& name)
    {
        scene.observers().add({what}, [this, name](const Event& event) {
            heard.push_back(name + (event.text == path("shot.ma") ? " file" : event.text));
        });
    }
    void forbid(Happening check)
    {
        scene.observers().add({check}, [](const Event& event) { *event.isAllowed = false; });
    }
    void save() { run("file -rename \"shot.ma\"; file -save -type mayaAscii"); }
    std::vector<std::string> takeHeard() { return std::exchange(heard, {}); }

    std::vector<std::string> heard;
};

TEST_F(FileEventsTest, OfAFileThatIsNoSceneNothingBegins)
{
    hear(Happening::openBegun, "open");
    hear(Happening::importBegun, "import");
    hear(Happening::readBegun, "read");
    for (const char* const command : {"file -f -o", "file -i"})
        EXPECT_NE(failure(std::string(command) + " \"missing.ma\""), "");
    EXPECT_THAT(takeHeard(), ElementsAre());
}

TEST_F(FileEventsTest, EachStepIsToldInOrder)
{
    hear(Happening::newBegun, "new");
    hear(Happening::newDone, "made");
    hear(Happening::saveBegun, "save");
    hear(Happening::saveDone, "saved");
    hear(Happening::openBegun, "open");
    hear(Happening::readBegun, "read");
    hear(Happening::readDone, "was read");
    hear(Happening::openDone, "opened");
    hear(Happening::importBegun, "import");
    hear(Happening::importDone, "imported");
    run("file -force -new");
    EXPECT_THAT(takeHeard(), ElementsAre("new", "made"));
    save();
    EXPECT_THAT(takeHeard(), ElementsAre("save file", "saved file"));
    run("file -force -open \"shot.ma\"");
    EXPECT_THAT(takeHeard(), ElementsAre("open file", "read file", "was read file", "opened file"));
    run("file -import \"shot.ma\"");
    EXPECT_THAT(takeHeard(), ElementsAre("import file", "read file", "was read file", "imported file"));
}

TEST_F(FileEventsTest, WhatSomebodyForbidsIsNotDone)
{
    run("createNode transform -n kept");
    save();
    for (const Happening check :
         {Happening::newChecked, Happening::openChecked, Happening::importChecked, Happening::saveChecked})
        forbid(check);
    hear(Happening::newBegun, "new");
    hear(Happening::openBegun, "open");
    hear(Happening::saveBegun, "save");
    const std::string refusal = "File operation cancelled by user supplied callback.";
    EXPECT_EQ(refusal, failure("file -force -new"));
    EXPECT_EQ(refusal, failure("file -force -open \"shot.ma\""));
    EXPECT_EQ(refusal, failure("file -import \"shot.ma\""));
    EXPECT_EQ(refusal, failure("file -save"));
    EXPECT_THAT(takeHeard(), IsEmpty());
    EXPECT_EQ("1", run("objExists kept"));
}

TEST_F(FileEventsTest, UndoTellsItselfAndTheSelectionThatComesBack)
{
    run("undoInfo -state on; createNode transform -n a; createNode transform -n b");
    run("select -r a");
    run("select -r b");
    hear(Happening::selectionChanged, "selection");
    hear(Happening::undone, "undone");
    hear(Happening::redone, "redone");
    run("undo");
    EXPECT_THAT(takeHeard(), ElementsAre("selection", "undone"));
    run("redo");
    EXPECT_THAT(takeHeard(), ElementsAre("selection", "redone"));
}

} // namespace
} // namespace tvxhost::mel
