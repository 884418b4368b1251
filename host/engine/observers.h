// Observers: who wants to be told what happens in a scene, and telling them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace tvxhost::engine {

class Node;
class Plug;

/// What can happen. In brackets: what an Event then holds beside its kind and, for nodes, `node`.
enum class Happening
{
    // Nodes
    nodeAdded,            ///< made, or back by undo
    nodeAboutToBeDeleted, ///< by somebody, not with its scene; still as it was
    nodeLeaving,          ///< about to be out of the scene, for whatever reason; still as it was
    nodeRemoved,          ///< out of the scene, its connections are gone; may come back by undo
    nodeDestroyed,        ///< cannot come back
    nodeRenamed,          ///< [text: the former name]
    uuidChanged,          ///< [text: the former one]

    // Attributes and values [plug]
    valueSet,
    plugEvaluated,
    plugOutdated, ///< it is not up to date any more, or was set
    plugLocked,
    plugUnlocked,
    plugMadeKeyable,
    plugMadeUnkeyable,
    keyableChecked,   ///< before it is made keyable [isAllowed]
    unkeyableChecked, ///< before it is made not keyable [isAllowed]
    attributeAdded,
    attributeRemoved,
    attributeRenamed,
    elementAdded,
    elementRemoved,

    // Connections [node: the destination's, other: the source's, plug: destination, otherPlug: source]
    connectionBegun, ///< about to be made
    connectionMade,
    connectionEnding, ///< about to be broken
    connectionBroken,
    connectionFailed, ///< one of a file [text, name: the names of source and destination]

    // DAG [node: the child, other: the parent]
    parentAdded,
    parentRemoved,

    // Session
    started,
    timeChanged,
    selectionChanged,
    setModified, ///< a member came or went [node: the set]
    linearUnitChanged,
    angularUnitChanged,
    timeUnitChanged,
    playbackRangeChanged,
    projectChanged,
    namespaceRenamed, ///< [text: the former name, name: the new one]
    undone,
    redone,
    idle,
    quitting,

    // Files [text: the path]; a check may forbid what is about to be done [isAllowed]
    newChecked,
    newBegun,
    newDone,
    openChecked,
    openBegun,
    openDone,
    readBegun,
    readDone,
    saveChecked,
    saveBegun,
    saveDone,
    importChecked,
    importBegun,
    importDone,
    exportChecked,
    exportBegun,
    exportDone,
    referenceChecked,
    referenceBegun,
    referenceDone,
    referenceLoadChecked,
    referenceLoadBegun,
    referenceLoadDone,
    referenceUnloadBegun,
    referenceUnloadDone,
    referenceRemovalBegun,
    referenceRemovalDone,
    referenceImportBegun,
    referenceImportDone,

    // Plug-ins [text: path, name; no name before loading]
    pluginLoadBegun,
    pluginLoadDone,
    pluginUnloadBegun,
    pluginUnloadDone,

    count ///< how many kinds there are
};

/// One thing that happened. Valid during the call only.
struct Event
{
    Happening what;
    Node* node = nullptr;
    Node* other = nullptr;
    const Plug* plug = nullptr;
    const Plug* otherPlug = nullptr;
    std::string text{};
    std::string name{};
    bool* isAllowed = nullptr;
};

/// The functions to call. They may add and remove functions, themselves included, and edit the scene. Main
/// thread only.
class Observers
{
public:
    /// Unique in the process; 0 is none.
    using Id = std::uint64_t;
    using Function = std::function<void(const Event&)>;

    Observers();
    ~Observers();
    Observers(const Observers&) = delete;
    Observers& operator=(const Observers&) = delete;

    /// A function for some kinds of event; with a node only for those whose `node` or `other` it is. Later
    /// ones are called later.
    Id add(std::initializer_list<Happening> kinds, Function function, const Node* node = nullptr);
    /// False for an id that nobody has. A function that was removed is not called any more, also not for the
    /// event that is just being told.
    bool remove(Id id);
    bool has(Id id) const { return m_entries.count(id) != 0; }

    /// Whether anybody wants to be told: ask first where it costs something to describe an event.
    bool want(Happening what) const { return m_counts[static_cast<std::size_t>(what)] != 0; }
    void tell(const Event& event);
    /// Asks whether something may be done: true unless somebody forbids it.
    bool allow(Happening check, const std::string& text = {});

    /// Forgets all functions for one node.
    void forget(const Node& node);
    /// Of the functions for one node, in the order of adding.
    std::vector<Id> idsOf(const Node& node) const;
    /// Of the function that is being called, the innermost when they nest; 0 when none is.
    Id currentId() const { return m_running.empty() ? 0 : m_running.back(); }

private:
    struct Entry;
    using Entries = std::vector<std::shared_ptr<Entry>>;

    void tellEach(const Entries& entries, const Event& event);
    Entries& listFor(Happening what, const Node* node);

    std::array<std::size_t, static_cast<std::size_t>(Happening::count)> m_counts{};
    std::array<Entries, static_cast<std::size_t>(Happening::count)> m_general;
    std::unordered_map<const Node*, Entries> m_ofNodes;
    std::unordered_map<Id, std::shared_ptr<Entry>> m_entries;
    std::vector<Id> m_running;
};

/// The kind of event that scripts know by a name ("SelectionChanged", "timeChanged" …); none for another
/// name.
std::optional<Happening> happeningNamed(const std::string& name);
/// All those names, in alphabetical order. Some name what never happens here.
std::vector<std::string> happeningNames();
/// Whether scripts know an event by this name, also one that never happens here.
bool isHappeningName(const std::string& name);

} // namespace tvxhost::engine
