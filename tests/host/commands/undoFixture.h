// What tests of undo share: a session that records, and its scene as text in two ways.
#pragma once

#include "../support/savedText.h"
#include "../support/sceneState.h"
#include "CommandFixture.h"

namespace tvxhost::mel {

class UndoFixture : public CommandFixture
{
protected:
    UndoFixture() { run("undoInfo -state on -infinity on"); }

    /// The scene as a file would hold it.
    std::string text() { return test::savedText(scene); }
    /// The same, and what no file holds: identities, selection, the order of nodes.
    std::string state()
    {
        const std::string saved = text();
        return saved + test::SceneState::of(scene);
    }

    /// Whether a name in a script would be found.
    bool exists(const std::string& name) { return run("objExists \"" + name + "\"") == "1"; }

    /// Runs a script as a whole, and takes it back and does it again twice.
    void expectUndoable(const std::string& script)
    {
        const std::string before = state();
        run(script);
        const std::string after = state();
        EXPECT_NE(before, after) << script;
        for (int round = 0; round < 2; ++round) {
            run("undo");
            EXPECT_EQ(before, state()) << "taken back: " << script;
            run("redo");
            EXPECT_EQ(after, state()) << "done again: " << script;
        }
    }
};

} // namespace tvxhost::mel
