// The script editor: how lines look, where they go, what is counted.
#include "engine/scriptEditor.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

namespace tvxhost::engine {

class ScriptEditorTest : public testing::Test
{
protected:
    ScriptEditorTest() { editor.setStreams(&out, &err); }

    std::ostringstream out, err;
    ScriptEditor editor;
};

TEST_F(ScriptEditorTest, BatchLinesAreBareAndTroubleGoesToTheErrorStream)
{
    editor.print("a");
    editor.print("b\n");
    editor.info("info");
    editor.result("42");
    editor.warning("careful");
    editor.error("broken");
    editor.error("typed", {"", 3});
    editor.error("sourced", {"/s/x.mel", 12});
    EXPECT_EQ(out.str(), "ab\ninfo\n42\n");
    EXPECT_EQ(err.str(), "Warning: careful\nError: broken\nError: line 3: typed\n"
                         "Error: file: /s/x.mel line 12: sourced\n");
}

TEST_F(ScriptEditorTest, InteractiveLinesAreComments)
{
    editor.setFrame(ScriptEditor::Frame::interactive);
    editor.print("a\n");
    editor.info("info");
    editor.result("42");
    editor.warning("careful");
    editor.error("sourced", {"/s/x.mel", 12});
    EXPECT_EQ(out.str(), "a\n// info\n// Result: 42 // \n");
    EXPECT_EQ(err.str(), "// Warning: careful // \n// Error: file: /s/x.mel line 12: sourced // \n");
}

TEST_F(ScriptEditorTest, WarningsAndErrorsAreCountedAndKept)
{
    editor.warning("w");
    editor.error("e");
    editor.error("f");
    editor.info("i");
    EXPECT_EQ(editor.warnings(), 1);
    EXPECT_EQ(editor.errors(), 2);
    ASSERT_EQ(editor.history().size(), 4u);
    EXPECT_EQ(editor.history()[1].text, "e");
    EXPECT_EQ(editor.history()[1].kind, MessageKind::error);
    editor.clearHistory();
    EXPECT_TRUE(editor.history().empty());
}

TEST_F(ScriptEditorTest, QuietSwallowsTroubleAndNothingElse)
{
    editor.pushQuiet();
    editor.pushQuiet();
    editor.error("unheard");
    editor.popQuiet();
    editor.warning("unheard");
    editor.info("heard");
    editor.popQuiet();
    editor.error("heard too");
    EXPECT_EQ(out.str() + err.str(), "heard\nError: heard too\n");
    EXPECT_EQ(editor.errors(), 1);
    EXPECT_EQ(editor.warnings(), 0);
}

TEST_F(ScriptEditorTest, WhatIsNotImplementedIsSaidOnce)
{
    editor.notImplemented("MFnMesh::extractFaces");
    editor.notImplemented("MFnMesh::extractFaces");
    editor.notImplemented("MFnMesh::split");
    EXPECT_EQ(err.str(), "Error: Not implemented: MFnMesh::extractFaces\n"
                         "Error: Not implemented: MFnMesh::split\n");
}

TEST_F(ScriptEditorTest, AListenerHearsEveryMessageAfterItWasShown)
{
    std::string heard;
    editor.setListener([&](const Message& message) { heard += message.text + "|" + out.str(); });
    editor.info("i");
    EXPECT_EQ(heard, "i|i\n");
}

} // namespace tvxhost::engine
