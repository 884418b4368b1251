// Files, folders, and the dialogs that choose them.
#include "core/utils/tvxMayaUtils.h"

#include "core/utils/tvxTrace.h"

#include <maya/MCommandResult.h>
#include <maya/MGlobal.h>

#include <ostream>

namespace tarvox::crowd {

namespace {

std::string answerOf(const char* command)
{
    MString answer;
    MGlobal::executeCommand(command, answer, false, false);
    return answer.asChar();
}

/// Runs a command that opens a dialog; the one thing that the user chose, or nothing.
/// @param member  qualified name; `name` is how its reports begin
MString choice(const char* member, const char* name, const MString& command)
{
    MCommandResult result;
    if (!MGlobal::executeCommand(command, result, false, false))
        TVX_WARN(member, name << ": Could not open file dialog");
    MStringArray chosen;
    if (!result.getResult(chosen))
        TVX_WARN(member, name << ": Can't convert result filedialog2 to a string array");
    return chosen.length() == 1 ? chosen[0] : MString();
}

} // namespace

MStatus MayaUtils::createDirectory(const std::string& path, bool display)
{
    int made = 0;
    const std::string command = "sysFile -makeDir \"" + path + "\"";
    MStatus status = MGlobal::executeCommand(command.c_str(), made, display, false);
    if (status && made != 1) {
        status = MStatus(MStatus::kFailure);
        status.perror(("Unable to create directory " + path).c_str());
    }
    return status;
}

std::string MayaUtils::getWorkspacePath()
{
    return answerOf("workspace -q -fn");
}

std::string MayaUtils::getSceneShortName(bool stripExtension)
{
    const std::string name = answerOf("file -q -shn -sn");
    return stripExtension ? name.substr(0, name.find('.')) : name;
}

MString MayaUtils::getFilePath(const MString& filter, bool existingFile)
{
    MString command("fileDialog2 -ds 2 ");
    if (existingFile)
        command += " -fm 1 ";
    command += MString("-ff \"") + filter + "\"";
    return choice(TVX_UTILS_MEMBER("getFilePath"), "MayaUtils::getFilePath", command);
}

MString MayaUtils::getDirectoryPath(const MString& startingDirectory)
{
    MString command("fileDialog2 -fileMode 3 ");
    if (startingDirectory.length() > 0)
        command += MString("-startingDirectory \"") + startingDirectory + "\"";
    return choice(TVX_UTILS_MEMBER("getDirectoryPath"), "MayaUtils::getDirectoryPath", command);
}

} // namespace tarvox::crowd
