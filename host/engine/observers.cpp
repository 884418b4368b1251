// Observers: see observers.h.
#include "observers.h"

#include <algorithm>
#include <atomic>
#include <string_view>

namespace tvxhost::engine {

struct Observers::Entry
{
    Id id;
    std::vector<Happening> kinds;
    Function function;
    const Node* node;
    bool isRemoved = false;

    bool wants(Happening what) const { return std::find(kinds.begin(), kinds.end(), what) != kinds.end(); }
};

namespace {

Observers::Id nextId()
{
    static std::atomic<Observers::Id> last{0};
    return ++last;
}

std::size_t indexOf(Happening what)
{
    return static_cast<std::size_t>(what);
}

template <class Entries, class Entry>
void eraseFrom(Entries& entries, const Entry& entry)
{
    entries.erase(std::remove(entries.begin(), entries.end(), entry), entries.end());
}

} // namespace

Observers::Observers() = default;

Observers::~Observers() = default;

Observers::Id Observers::add(std::initializer_list<Happening> kinds, Function function, const Node* node)
{
    const auto entry = std::make_shared<Entry>(Entry{nextId(), kinds, std::move(function), node});
    m_entries.emplace(entry->id, entry);
    for (const Happening kind : kinds) {
        ++m_counts[indexOf(kind)];
        if (!node)
            m_general[indexOf(kind)].push_back(entry);
    }
    if (node)
        m_ofNodes[node].push_back(entry);
    return entry->id;
}

bool Observers::remove(Id id)
{
    const auto found = m_entries.find(id);
    if (found == m_entries.end())
        return false;
    const std::shared_ptr<Entry> entry = found->second;
    entry->isRemoved = true;
    m_entries.erase(found);
    for (const Happening kind : entry->kinds) {
        --m_counts[indexOf(kind)];
        eraseFrom(m_general[indexOf(kind)], entry);
    }
    const auto ofNode = m_ofNodes.find(entry->node);
    if (ofNode != m_ofNodes.end()) {
        eraseFrom(ofNode->second, entry);
        if (ofNode->second.empty())
            m_ofNodes.erase(ofNode);
    }
    return true;
}

void Observers::tell(const Event& event)
{
    if (!want(event.what))
        return;
    // Copies: those who are called may change the lists.
    const Entries general = m_general[indexOf(event.what)];
    Entries particular;
    for (const Node* node : {event.node, event.other == event.node ? nullptr : event.other}) {
        const auto found = node ? m_ofNodes.find(node) : m_ofNodes.end();
        if (found != m_ofNodes.end())
            particular.insert(particular.end(), found->second.begin(), found->second.end());
    }
    tellEach(particular, event);
    tellEach(general, event);
}

void Observers::tellEach(const Entries& entries, const Event& event)
{
    for (const std::shared_ptr<Entry>& entry : entries) {
        if (entry->isRemoved || !entry->wants(event.what))
            continue;
        m_running.push_back(entry->id);
        entry->function(event);
        m_running.pop_back();
    }
}

bool Observers::allow(Happening check, const std::string& text)
{
    bool isAllowed = true;
    Event event{check};
    event.text = text;
    event.isAllowed = &isAllowed;
    tell(event);
    return isAllowed;
}

void Observers::forget(const Node& node)
{
    for (const Id id : idsOf(node))
        remove(id);
}

std::vector<Observers::Id> Observers::idsOf(const Node& node) const
{
    std::vector<Id> ids;
    const auto found = m_ofNodes.find(&node);
    if (found != m_ofNodes.end())
        for (const std::shared_ptr<Entry>& entry : found->second)
            ids.push_back(entry->id);
    return ids;
}

namespace {

struct NamedHappening
{
    std::string_view name;
    std::optional<Happening> what; ///< none: it never happens here
};

/// In alphabetical order, capitals first.
constexpr NamedHappening kNames[] = {
    {"ActiveViewChanged", {}},
    {"ColorIndexChanged", {}},
    {"DagObjectCreated", Happening::nodeAdded},
    {"NameChanged", Happening::nodeRenamed},
    {"NewSceneOpened", Happening::newDone},
    {"PostSceneRead", Happening::readDone},
    {"PreFileNewOrOpened", Happening::newBegun},
    {"RecentCommandChanged", {}},
    {"Redo", Happening::redone},
    {"SceneImported", Happening::importDone},
    {"SceneOpened", Happening::openDone},
    {"SceneSaved", Happening::saveDone},
    {"SelectModeChanged", {}},
    {"SelectPreferenceChanged", {}},
    {"SelectPriorityChanged", {}},
    {"SelectTypeChanged", {}},
    {"SelectionChanged", Happening::selectionChanged},
    {"SetModified", Happening::setModified},
    {"ToolChanged", {}},
    {"ToolSettingsChanged", {}},
    {"Undo", Happening::undone},
    {"WorkspaceChanged", Happening::projectChanged},
    {"angularToleranceChanged", {}},
    {"angularUnitChanged", Happening::angularUnitChanged},
    {"constructionHistoryChanged", {}},
    {"deleteAll", Happening::newBegun},
    {"idle", Happening::idle},
    {"linearToleranceChanged", {}},
    {"linearUnitChanged", Happening::linearUnitChanged},
    {"playbackRangeChanged", Happening::playbackRangeChanged},
    {"quitApplication", Happening::quitting},
    {"timeChanged", Happening::timeChanged},
    {"timeUnitChanged", Happening::timeUnitChanged},
    {"undoSupressed", {}},
};

const NamedHappening* rowOf(const std::string& name)
{
    const auto* found = std::find_if(std::begin(kNames), std::end(kNames),
                                     [&name](const auto& row) { return row.name == name; });
    return found == std::end(kNames) ? nullptr : found;
}

} // namespace

std::optional<Happening> happeningNamed(const std::string& name)
{
    const NamedHappening* row = rowOf(name);
    return row ? row->what : std::nullopt;
}

std::vector<std::string> happeningNames()
{
    std::vector<std::string> names;
    for (const NamedHappening& row : kNames)
        names.emplace_back(row.name);
    return names;
}

bool isHappeningName(const std::string& name)
{
    return rowOf(name) != nullptr;
}

} // namespace tvxhost::engine
