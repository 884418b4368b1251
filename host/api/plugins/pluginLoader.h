// PluginLoader: finds, loads and unloads plug-ins, and knows what each of them registered.
#pragma once

#include "engine/object.h"
#include "engine/outcome.h"
#include "engine/scene.h"

#include <maya/MTypes.h>

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tvxhost::api {

class Library;

/// One plug-in that is or was loaded. This is the object that its entry points are given.
class OPENMAYA_EXPORT Plugin final : public engine::Object
{
public:
    /// The names of the script procedures that make and remove a plug-in's user interface; empty for none.
    struct Interface
    {
        std::string creation;
        std::string deletion;
        std::string batchCreation;
        std::string batchDeletion;
    };

    Plugin(std::string pluginName, std::filesystem::path libraryFile);
    ~Plugin() override;

    std::string name;           ///< the file's name without folder and extension, unless it was given another
    std::filesystem::path file; ///< full path of the library
    std::string vendor;         ///< as its first MFnPlugin says
    std::string version;
    std::string requiredApiVersion; ///< as its first MFnPlugin says
    std::string apiVersion;         ///< of the interface that it was built with: its MApiVersion
    Interface interfaceProcedures;
    std::vector<std::string> commands; ///< in the order of registration
    bool isDescribed = false;          ///< its first MFnPlugin was constructed

private:
    friend class PluginLoader;
    std::unique_ptr<Library> m_library;
};

/// How a load or unload ended. Nothing of it has been shown: callers show the text of the outcome as an
/// error, the warning as a warning, with the place in the script that they know.
struct PluginResult
{
    engine::Outcome outcome;
    std::string warning; ///< empty for none; the outcome is then a success
    std::string name;    ///< of the plug-in, when it is known
};

/// The plug-ins of a session. Main thread only.
class OPENMAYA_EXPORT PluginLoader
{
public:
    explicit PluginLoader(engine::Scene& scene);
    ~PluginLoader();
    PluginLoader(const PluginLoader&) = delete;
    PluginLoader& operator=(const PluginLoader&) = delete;

    /// The loader of the current scene; made on first use, or the one last made current.
    static PluginLoader& current();
    static void makeCurrent(PluginLoader* loader);

    engine::Scene& scene() const { return m_scene; }

    /// The library of a plug-in: a path as it stands, or a name with or without extension along
    /// MAYA_PLUG_IN_PATH.
    static std::optional<std::filesystem::path> find(const std::string& nameOrPath);

    /// Loads a plug-in and runs its entry point, then the procedure that makes its interface (the batch one
    /// in batch mode). A missing or failing procedure is an error in the script editor, and the load still
    /// succeeds. Loading what is loaded is a warning. `wishedName` is made unique with a number.
    PluginResult load(const std::string& nameOrPath, const std::string& wishedName = {});

    /// Removes the interface, runs the other entry point, forgets the types and commands that are left, and
    /// closes the library. Refused with inUse while nodes or data of its types exist, unless `force`, which
    /// turns the nodes into unknown nodes and leaves of data what it is saved with. Unloading what is not
    /// loaded is a warning.
    PluginResult unload(const std::string& nameOrPath, bool force = false);

    /// In the order of loading.
    std::vector<Plugin*> loaded() const;
    /// By name, file name or path; null when it is not loaded.
    Plugin* findLoaded(const std::string& nameOrPath) const;
    std::vector<engine::NodeType*> nodeTypes(const Plugin& plugin) const;
    /// Whether there are nodes of its types, or data other than the defaults of their attributes.
    bool isInUse(const Plugin& plugin) const;
    /// Another name that no loaded plug-in has: the wish, or (when allowed) with a number.
    engine::Outcome rename(Plugin& plugin, const std::string& wish, bool makeUnique);

private:
    engine::Outcome start(Plugin& plugin);
    engine::Outcome stop(Plugin& plugin);
    void forget(Plugin& plugin);
    void runInterface(const std::string& interactive, const std::string& batch);
    std::string uniqueName(const std::string& wish) const;

    engine::Scene& m_scene;
    std::vector<engine::Ref<Plugin>> m_loaded;
    std::vector<engine::Ref<Plugin>> m_failed; ///< their libraries stay mapped
};

} // namespace tvxhost::api
