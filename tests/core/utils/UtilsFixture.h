// A scene, what reaches the core log, and what reaches the script language.
#pragma once

#include "../../host/api/sceneFixture.h"
#include "../log/LogRecorder.h"
#include "core/utils/tvxMayaUtils.h"

#include <maya/MFnDagNode.h>
#include <maya/MFnDependencyNode.h>

#include <gmock/gmock.h>

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace tarvox::crowd::test {

namespace faults = tvxhost::api::faults;

/// Stands where the script language is: notes the commands, and answers as it was told.
class CommandRecorder : public tvxhost::engine::ScriptRunner
{
public:
    bool run(const std::string& script, bool display, bool undoable, Result& result) override;
    bool sourceFile(const std::string&) override { return false; }
    void runOnIdle(const std::string&, bool) override {}

    void answer(const std::string& script, int value);
    void answer(const std::string& script, const std::string& value);
    void answer(const std::string& script, const std::vector<std::string>& values);

    /// The commands so far: "display|command" for those that were to be shown, "|command" for the others;
    /// "undo" stands before the bar when they could be undone.
    std::vector<std::string> commands;
    std::set<std::string> failing; ///< what cannot be run

private:
    std::map<std::string, Result> m_answers;
};

class UtilsFixture : public tvxhost::api::test::SceneFixture
{
protected:
    UtilsFixture() { scene.scriptRunner = &runner; }

    /// The errors since the last call, "member|text" each; one that is not told with its line and file, or
    /// not by `file` in core/utils, stands there as it came.
    std::vector<std::string> takeErrors(const std::string& file);

    /// Makes the n-th call fail and expects the member to fail with one report of `file`, as takeErrors() has
    /// it, or with none when the filter rejects it.
    void expectFailure(const std::string& file, const std::string& call, std::size_t n,
                       const std::string& report, const std::function<MStatus()>& member);

    /// A status to make calls fail with, and its text.
    static MStatus failure() { return MStatus(MStatus::kNotFound); }
    static std::string failureText() { return failure().errorString().asChar(); }

    LogRecorder recorder;
    CommandRecorder runner;
};

} // namespace tarvox::crowd::test
