// A session of the host with the plug-in in it, for one test.
#pragma once

#include "../host/support/temporaryFolder.h"
#include "api/plugins/pluginLoader.h"
#include "engine/scene.h"

#include <string>
#include <vector>

namespace tarvox::crowd::test {

using Lines = std::vector<std::string>;

/// The current session while it lives; nothing is loaded at first. The script editor, its messages and the
/// preferences are the session's own, and so is the library: a copy of the plug-in, because the host keeps a
/// library whose loading failed, with all its statics.
class PluginSession
{
public:
    PluginSession();
    ~PluginSession();
    PluginSession(const PluginSession&) = delete;
    PluginSession& operator=(const PluginSession&) = delete;

    /// Loads or unloads the plug-in, or the library given. False when the host says that it failed.
    bool load();
    bool load(const std::string& file);
    bool unload();

    /// The plug-in's lines in the script editor since the last call, without "[TarvoxCrowd::" and the name of
    /// the log: "INFO]\tAt line …".
    Lines takeReports();

    /// The plug-in's library.
    const std::string& library() const { return m_library; }

    tvxhost::engine::Scene scene;
    tvxhost::api::PluginLoader loader;

private:
    tvxhost::test::TemporaryFolder m_folder;
    std::string m_library;
};

/// The report that a statement of the sources makes, as takeReports() gives it.
/// @param severity   "ERROR", "INFO" …
/// @param file       from the root of the sources
/// @param statement  a text that only the line where the statement begins contains
std::string reportOf(const std::string& severity, const std::string& file, const std::string& statement,
                     const std::string& text);

/// The number, from 1, of the only line of a source file that contains a text; 0 when it is not the only one.
int lineOf(const std::string& file, const std::string& text);

} // namespace tarvox::crowd::test
