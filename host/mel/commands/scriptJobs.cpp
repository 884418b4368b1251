// ScriptJobs: see scriptJobs.h.
#include "scriptJobs.h"

#include "conditions.h"
#include "interfaceTree.h"

#include "../arguments.h"
#include "../interpreter.h"

#include "engine/scene.h"

#include <algorithm>

namespace tvxhost::mel {

using engine::Event;
using engine::Happening;
using engine::Observers;

namespace {

bool isAsked(const ScriptJob& job, const Event& event)
{
    if (!job.attribute.empty())
        return event.plug && event.plug->attribute()->longName == job.attribute;
    if (job.plug.isNull())
        return true;
    const auto matches = [&job](const engine::Plug* plug) {
        return plug && (job.plug.isAtOrBelow(*plug) || (job.withChildren && plug->isAtOrBelow(job.plug)) ||
                        (job.withElements && plug->isAtOrBelow(job.plug.array())));
    };
    return matches(event.plug) || matches(event.otherPlug);
}

} // namespace

ScriptJobs::ScriptJobs(engine::Scene& scene) : m_scene(scene)
{
    m_sceneObserver = scene.observers().add({Happening::newBegun, Happening::openBegun},
                                            [this](const Event&) { endScene(); });
}

ScriptJobs::~ScriptJobs()
{
    m_scene.observers().remove(m_sceneObserver);
    while (!m_entries.empty())
        erase(m_entries.back().number);
}

int ScriptJobs::add(ScriptJob job)
{
    Entry entry;
    entry.number = ++m_next;
    entry.job = std::move(job);
    const int number = entry.number;
    for (const Happening what : entry.job.triggers)
        entry.observers.push_back(m_scene.observers().add(
            {what}, [this, number](const Event& event) { trigger(number, event); }, entry.job.node.get()));
    // What waits for something about a node goes with it.
    if (entry.job.node && !entry.job.outlivesNode)
        entry.observers.push_back(m_scene.observers().add(
            {Happening::nodeRemoved}, [this, number](const Event&) { erase(number); }, entry.job.node.get()));
    m_entries.push_back(std::move(entry));
    return number;
}

bool ScriptJobs::exists(int number) const
{
    return std::any_of(m_entries.begin(), m_entries.end(),
                       [number](const Entry& entry) { return entry.number == number; });
}

bool ScriptJobs::kill(int number, bool byForce)
{
    const Entry* entry = find(number);
    if (!entry || entry->job.isPermanent || (entry->job.isProtected && !byForce))
        return false;
    erase(number);
    return true;
}

void ScriptJobs::killAll(bool byForce)
{
    const std::vector<Entry> before = m_entries;
    for (const Entry& entry : before)
        kill(entry.number, byForce);
}

void ScriptJobs::killLike(const std::string& script)
{
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [&script](const Entry& entry) { return entry.job.script == script; });
    if (found != m_entries.end())
        kill(found->number, true);
}

std::vector<std::string> ScriptJobs::list() const
{
    std::vector<std::string> lines;
    for (const Entry& entry : m_entries)
        lines.push_back(std::to_string(entry.number) + ": " + entry.job.words + ' ' +
                        mel::quoted(entry.job.script));
    return lines;
}

/// Triggers what waits for something that nobody tells, and ends jobs whose part of the interface is gone.
void ScriptJobs::lookAround(Interpreter& interpreter, Conditions& conditions, const InterfaceTree& interface)
{
    std::vector<int> ended;
    for (Entry& entry : m_entries) {
        ScriptJob& job = entry.job;
        if (!job.parent.empty() && !interface.find(job.parent))
            ended.push_back(entry.number);
        if (!job.awaitedEnd.empty() && !interface.find(job.awaitedEnd))
            entry.isTriggered = true;
    }
    for (const int number : ended)
        erase(number);
    std::vector<std::pair<int, std::string>> awaited;
    for (const Entry& entry : m_entries)
        if (!entry.job.condition.name.empty())
            awaited.emplace_back(entry.number, entry.job.condition.name);
    for (const auto& [number, name] : awaited) {
        const bool is = conditions.isTrue(name, interpreter);
        // The script of a condition may have killed the job.
        Entry* entry = find(number);
        if (!entry || entry->job.condition.was == is)
            continue;
        entry->job.condition.was = is;
        if (entry->job.condition.state.value_or(is) == is)
            entry->isTriggered = true;
    }
}

int ScriptJobs::runIdle(Interpreter& interpreter, Conditions& conditions, const InterfaceTree& interface)
{
    lookAround(interpreter, conditions, interface);
    std::vector<int> due;
    for (Entry& entry : m_entries)
        if (entry.isTriggered || entry.job.atEveryIdle) {
            entry.isTriggered = false;
            due.push_back(entry.number);
        }
    int failed = 0;
    for (const int number : due) {
        // One job may have killed another.
        const Entry* entry = find(number);
        if (!entry)
            continue;
        const std::string script = entry->job.script;
        if (entry->job.isOnce || !entry->job.awaitedEnd.empty())
            erase(number);
        failed += interpreter.run(script) ? 0 : 1;
    }
    return failed;
}

void ScriptJobs::trigger(int number, const Event& event)
{
    if (Entry* entry = find(number); entry && isAsked(entry->job, event))
        entry->isTriggered = true;
}

ScriptJobs::Entry* ScriptJobs::find(int number)
{
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [number](const Entry& entry) { return entry.number == number; });
    return found == m_entries.end() ? nullptr : &*found;
}

void ScriptJobs::erase(int number)
{
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [number](const Entry& entry) { return entry.number == number; });
    for (const Observers::Id id : found->observers)
        m_scene.observers().remove(id);
    m_entries.erase(found);
}

/// A job that belongs to a scene goes with it.
void ScriptJobs::endScene()
{
    const std::vector<Entry> before = m_entries;
    for (const Entry& entry : before)
        if (entry.job.endsWithScene)
            erase(entry.number);
}

} // namespace tvxhost::mel
