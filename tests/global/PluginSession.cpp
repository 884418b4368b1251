// A session of the host with the plug-in in it.
#include "PluginSession.h"

#include "api/support/faults.h"

#include <filesystem>
#include <fstream>

namespace tarvox::crowd::test {

namespace {

using tvxhost::api::PluginLoader;
using tvxhost::engine::Message;
using tvxhost::engine::Scene;

constexpr char kMark[] = "[TarvoxCrowd::";
constexpr char kLogName[] = "Crowd Render: ";

} // namespace

PluginSession::PluginSession() : loader(scene), m_library(m_folder.path("tvxCrowdRender.so"))
{
    std::filesystem::copy_file(TVX_PLUGIN_FILE, m_library);
    Scene::makeCurrent(&scene);
    PluginLoader::makeCurrent(&loader);
}

PluginSession::~PluginSession()
{
    tvxhost::api::faults::clear();
    unload();
    PluginLoader::makeCurrent(nullptr);
    Scene::makeCurrent(nullptr);
}

bool PluginSession::load()
{
    return load(m_library);
}

bool PluginSession::load(const std::string& file)
{
    return static_cast<bool>(loader.load(file).outcome);
}

bool PluginSession::unload()
{
    return static_cast<bool>(loader.unload("tvxCrowdRender").outcome);
}

Lines PluginSession::takeReports()
{
    Lines reports;
    for (const Message& message : scene.scriptEditor().history()) {
        std::string text = message.text;
        if (text.rfind(kMark, 0) != 0)
            continue;
        text.erase(0, sizeof kMark - 1);
        const std::size_t name = text.find(kLogName);
        reports.push_back(name == std::string::npos ? text : text.erase(name, sizeof kLogName - 1));
    }
    scene.scriptEditor().clearHistory();
    return reports;
}

std::string reportOf(const std::string& severity, const std::string& file, const std::string& statement,
                     const std::string& text)
{
    return severity + "]\tAt line " + std::to_string(lineOf(file, statement)) + " in file " + file + ": " +
           text;
}

int lineOf(const std::string& file, const std::string& text)
{
    std::ifstream source(TVX_SOURCE_DIR "/" + file);
    std::string line;
    int found = 0;
    for (int number = 1; std::getline(source, line); ++number)
        if (line.find(text) != std::string::npos) {
            if (found != 0)
                return 0;
            found = number;
        }
    return found;
}

} // namespace tarvox::crowd::test
