// Scene: the nodes, their names and connections, selection, time, units and preferences of one session.
#pragma once

#include "dagPath.h"
#include "journal.h"
#include "node.h"
#include "nodeType.h"
#include "optionVars.h"
#include "outcome.h"
#include "playback.h"
#include "plug.h"
#include "reference.h"
#include "scriptEditor.h"
#include "selection.h"
#include "units.h"

#include <functional>
#include <list>
#include <memory>
#include <set>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

namespace tvxhost::engine {

class NameTable;
class Observers;
class PluginDataTypes;

/// Runs a script: implemented by the language, called by the API. `result` is the value of the last statement
/// as the language's own type, opaque here.
class ScriptRunner
{
public:
    virtual ~ScriptRunner() = default;
    struct Result
    {
        enum class Kind
        {
            none,
            integer,
            real,
            string,
            vector,
            matrix
        } kind = Kind::none;
        bool isArray = false;
        std::vector<int> integers;
        std::vector<double> reals; ///< three per vector, rows of `columns` for a matrix
        std::vector<std::string> strings;
        int columns = 0;
    };
    /// False when an error stopped the script; it has been shown then.
    virtual bool run(const std::string& script, bool display, bool undoable, Result& result) = 0;
    virtual bool sourceFile(const std::string& path) = 0;
    virtual void runOnIdle(const std::string& script, bool display) = 0;
};

/// The flags and arguments of a plug-in's command, as its description tells them.
struct PluginSyntax
{
    enum class Argument
    {
        boolean,
        integer,
        number,
        string,
        name,
        time,
        length,
        angle
    };
    struct Flag
    {
        std::string shortName;
        std::string longName;
        std::vector<Argument> arguments;
        bool isMultiUse = false;
    };
    static constexpr std::size_t kAnyNumber = static_cast<std::size_t>(-1);

    std::vector<Flag> flags;
    std::vector<Argument> arguments; ///< before the objects
    std::size_t leastObjects = 0;
    std::size_t mostObjects = 0;
    bool isQueried = false;
    bool isEdited = false;
};

/// A command that a plug-in registered, as the language calls it.
struct PluginCommand
{
    std::string name;
    std::string plugin;
    /// Runs it with words; flags as "-x". False: the error was shown.
    std::function<bool(const std::vector<ScriptRunner::Result>& arguments, ScriptRunner::Result& result)> run;
    /// How it takes its words apart; empty when it does not say.
    std::function<PluginSyntax()> syntax{};
};

/// One of the places where nodes can be named: the whole of a session's state. There is one Scene per process
/// (`Scene::current()`); tests may make their own. Main thread only.
class Scene
{
public:
    /// `batch` as in batch mode: no user interface.
    explicit Scene(bool batch = true);
    ~Scene();
    Scene(const Scene&) = delete;
    Scene& operator=(const Scene&) = delete;

    /// The session's scene; made on first use, or the one last made current.
    static Scene& current();
    static void makeCurrent(Scene* scene);

    bool isBatch() const { return m_batch; }
    void setBatch(bool batch) { m_batch = batch; }
    TypeTable& types() { return *m_types; }
    /// The types of data that plug-ins registered.
    PluginDataTypes& dataTypes() { return *m_dataTypes; }
    ScriptEditor& scriptEditor() { return m_scriptEditor; }
    OptionVars& optionVars() { return m_optionVars; }
    Units& units() { return m_units; }
    /// Who is told what happens here.
    Observers& observers() { return *m_observers; }
    /// What was edited, for undo. All that this class, nodes and plugs change is told to it here.
    Journal& journal() { return m_journal; }

    // Nodes

    /// Makes a node. DAG types: `parent` null for a shape makes a transform above it (named by Maya's rule),
    /// for a transform puts it under the world. A wish for a name is made unique; empty: the type's name with
    /// a number. Returns the node of the type asked for. The name is fixed before postConstructor runs when
    /// `name` was given and survives it; else a name that postConstructor sets stays.
    Expected<Node*> createNode(const std::string& type, const std::string& name = {},
                               DagNode* parent = nullptr);
    Expected<Node*> createNode(NodeType& type, const std::string& name = {}, DagNode* parent = nullptr);
    /// Makes a placeholder for a type nobody knows (`unknown`, `unknownDag` or `unknownTransform` by what is
    /// said of it), which keeps its lines.
    Expected<Node*> createUnknown(const std::string& type, const std::string& name, DagNode* parent,
                                  bool isDag);
    /// Deletes a node, with its connections and (DAG) everything below it that has no other parent.
    Outcome deleteNode(Node& node);
    /// Turns the live nodes of a type into unknown nodes that keep their data.
    void makeUnknown(NodeType& type);

    /// Renames; a taken name gets a number, illegal characters become "_" (with a warning), '#' at the end a
    /// number. Returns the new name. A new namespace is made when `createNamespace`.
    Expected<std::string> rename(Node& node, const std::string& name, bool createNamespace = true);
    /// A name derived from `wish` that no node has: the trailing number raised, or 1 appended.
    std::string uniqueName(const std::string& wish, const Node* except = nullptr,
                           const DagNode* parent = nullptr) const;

    /// All live nodes in order of creation; default nodes included, the world too.
    const std::list<Node*>& nodes() const { return m_nodes; }
    std::size_t nodeCount() const { return m_nodes.size(); }

    // Names

    /// By name, partial or full path ("|a|b", "a|b", "ns:a", ":time1"). doesNotExist or ambiguous otherwise.
    Expected<Node*> findNode(const std::string& name) const;
    /// The same as a selection item, with plugs ("a.tx", "b.vtx[0:3]") and the path that was named.
    Expected<SelectionItem> findItem(const std::string& name) const;
    /// All matches of a name with wildcards (* and ?), in order of creation.
    std::vector<SelectionItem> findItems(const std::string& pattern) const;
    Expected<Plug> findPlug(const std::string& name) const;
    /// The shortest name that is unique: path without more ancestors than needed.
    std::string shortestName(const Node& node) const;
    /// How many DAG paths end in these nodes' names, one below the other; counts no further than 2.
    std::size_t countPathsEndingIn(const std::vector<DagNode*>& ending) const;

    // Namespaces: whole names, with or without the root's colon; the root is "" or ":"

    const std::string& currentNamespace() const { return m_namespace; }
    Outcome setCurrentNamespace(const std::string& name);
    /// Makes one, and those that it is in; in the current one unless the name begins with a colon.
    Outcome addNamespace(const std::string& name);
    /// Takes an empty one away; the root is the current one then if that was it.
    Outcome removeNamespace(const std::string& name);
    /// Takes one away with all nodes and namespaces in it. Nothing goes when some node in it may not.
    Outcome deleteNamespace(const std::string& name);
    /// Moves nodes and namespaces from one into another. Where a name is taken there, `force` gives the node
    /// another one; else nothing is moved. What is locked or of a reference cannot be moved.
    Outcome moveNamespace(const std::string& from, const std::string& to, bool force = false);
    Outcome renameNamespace(const std::string& from, const std::string& to);
    bool hasNamespace(const std::string& name) const;
    /// In alphabetical order, without the root.
    std::vector<std::string> namespaces() const;
    /// The nodes in a namespace and in those within it, in order of creation.
    std::vector<Node*> nodesIn(const std::string& space) const;
    /// Whether names are looked up in the current namespace before the root, as while a file is read.
    bool hasRelativeNames() const { return m_hasRelativeNames; }
    void setRelativeNames(bool on);
    class RelativeNames;

    // Connections

    /// Connects; conversion between numeric kinds is done when values flow. Angle, distance or time meeting a
    /// plain number is converted to UI units by a unitConversion node that is made in between.
    Outcome connect(const Plug& source, const Plug& destination, bool force = false);
    Outcome disconnect(const Plug& source, const Plug& destination);
    /// The element that `-nextAvailable` picks: the first index from 0 upwards without a connection.
    Plug nextAvailable(const Plug& arrayPlug) const;

    // DAG

    DagNode& world() { return *m_world; }
    /// Adds `child` under `parent` as a further instance.
    Outcome addParent(DagNode& child, DagNode& parent);
    /// Takes one instance away; the last one cannot be taken (use deleteNode or reparent).
    Outcome removeParent(DagNode& child, DagNode& parent);
    /// Moves from one parent to another (null: the world), keeping the place among nothing else.
    Outcome reparent(DagNode& child, DagNode* from, DagNode* to);
    /// Moves a child to another place among the children of a parent, counted from 0; at most to the end.
    Outcome reorder(DagNode& child, DagNode& parent, std::size_t place);

    // Selection, time

    const SelectionList& selection() const { return m_selection; }
    void setSelection(SelectionList selection);
    /// Objects under component selection (hilited), by node.
    const SelectionList& hilite() const { return m_hilite; }
    void setHilite(SelectionList hilite);
    /// Seconds; a change dirties what hangs on time.
    double time() const { return m_time; }
    void setTime(double seconds);
    Playback& playback() { return m_playback; }

    /// Removes a connection however the two plugs were made (the caller knows that it exists).
    void breakConnection(const Plug& source, const Plug& destination);

    // Files

    /// Empties the scene: default nodes, cameras, units; preferences, types and plug-ins stay.
    void newScene();
    std::string fileName; ///< full path; empty for an untitled scene
    bool isModified = false;
    std::vector<std::pair<std::string, std::string>> fileInfo;
    /// `requires` lines that the scene read or that loaded plug-ins ask for: name → version.
    struct Requirement
    {
        std::string plugin;
        std::string version;
        std::vector<std::string> nodeTypes;
        std::vector<std::string> dataTypes;
        std::string words; ///< further words, as they stood
    };
    std::vector<Requirement> requirements;
    /// Other files whose nodes are here, in the order of the statements that name them.
    std::vector<std::unique_ptr<Reference>> references;
    /// Statements of the file that belong to no node and are kept (connections to unknown attributes,
    /// relationships …), as they stood, by section of the file.
    std::vector<std::string> keptConnections;

    // Bridges upwards

    ScriptRunner* scriptRunner = nullptr;
    std::unordered_map<std::string, PluginCommand> pluginCommands;

private:
    Expected<Node*> makeNode(NodeType& type, const std::string& name, DagNode* parent);
    Outcome complete(Node& node, const std::string& fixedName);
    DagNode& makeWorld();
    void adopt(Node& node, const std::string& name);
    void erase(Node& node);
    void deselect(SelectionList& list, const Node& node);
    void retireNode(Node& node);
    class Departure;
    Ref<Node> leave(Node& node);
    Ref<Node> takeOut(Node& node);
    void wait(Node& node);
    void comeBack(Node& node, const Ref<Node>& next);
    void dispose(Node& node);
    void disposeWaiting();
    void becomeTransform(DagNode& placeholder);
    void setName(Node& node, const std::string& name);
    void putName(Node& node, const std::string& name);
    bool isNameFree(const std::string& name, const Node* except, const DagNode* parent) const;
    std::string absoluteName(const std::string& name) const;
    /// Replaces what no name may hold, with a warning when `warn`.
    std::string legalName(const std::string& name, bool warn);
    static bool hasFixedName(const Node& node);
    /// Whose other children a node's name must differ from; null where it is unlike all names.
    static const DagNode* scopeOf(const Node& node);
    void putNamespace(const std::string& space);
    void addNamespaceOf(const std::string& name);
    void dropNamespace(const std::string& space);
    Outcome checkNamespace(const std::string& space) const;
    void moveContent(const std::string& from, const std::string& to);
    void emptyScene();

    using Found = PointerList<Node, 1>;
    Found candidates(const std::string& name) const;
    std::vector<DagNode*> candidatesOfPath(const std::string& path) const;

    /// Where a child stands among those of its parent, and the parent among those of the child.
    struct LinkPlace
    {
        std::size_t inParent = static_cast<std::size_t>(-1);
        std::size_t inChild = static_cast<std::size_t>(-1);
    };
    void link(DagNode& parent, DagNode& child);
    void unlink(DagNode& parent, DagNode& child);
    void linkAt(DagNode& parent, DagNode& child, const LinkPlace& place);
    void relink(DagNode& parent, DagNode& child, const LinkPlace& place);
    LinkPlace cutLink(DagNode& parent, DagNode& child);
    Outcome checkParenting(const DagNode& child, const DagNode& parent) const;

    Outcome connectChecked(const Plug& source, const Plug& destination, bool force);
    Outcome connectThroughConversion(const Plug& source, const Plug& destination, bool force);
    void disconnectAll(Node& node);

    bool m_batch;
    std::unique_ptr<Observers> m_observers;
    std::unique_ptr<PluginDataTypes> m_dataTypes;
    std::unique_ptr<TypeTable> m_types;
    ScriptEditor m_scriptEditor;
    OptionVars m_optionVars;
    Units m_units;
    std::list<Node*> m_nodes;
    std::uint64_t m_nextSerial = 1;
    std::unique_ptr<NameTable> m_names;
    std::set<std::string> m_namespaces; ///< without the root
    DagNode* m_world = nullptr;
    std::string m_namespace = ":";
    bool m_hasRelativeNames = false;
    SelectionList m_selection;
    SelectionList m_hilite;
    double m_time = 0.0;
    Playback m_playback;
    std::unordered_set<Node*> m_waiting; ///< nodes that undo or redo may bring back
    Journal m_journal;
};

/// While it lives, names are looked up in the current namespace first.
class Scene::RelativeNames
{
public:
    explicit RelativeNames(Scene& scene) : m_scene(scene), m_before(scene.m_hasRelativeNames)
    {
        scene.m_hasRelativeNames = true;
    }
    ~RelativeNames() { m_scene.m_hasRelativeNames = m_before; }
    RelativeNames(const RelativeNames&) = delete;
    RelativeNames& operator=(const RelativeNames&) = delete;

private:
    Scene& m_scene;
    bool m_before;
};

} // namespace tvxhost::engine
