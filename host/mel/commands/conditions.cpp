// Conditions; see conditions.h.
#include "conditions.h"

#include "../interpreter.h"

#include "engine/scene.h"

#include <algorithm>
#include <iterator>

namespace tvxhost::mel {

using engine::Event;
using engine::Happening;
using engine::Scene;

namespace {

bool always(Scene&)
{
    return true;
}

bool never(Scene&)
{
    return false;
}

struct HostCondition
{
    const char* name;
    bool (*isTrue)(Scene& scene);
};

constexpr const char* kReading = "readingFile";
constexpr const char* kFlushing = "flushingScene";

/// In alphabetical order. What the host has no part for is never true.
constexpr HostCondition kHost[] = {
    {"AnimationExists", always},
    {"AnimationUIExists", never},
    {"BaseMayaExists", always},
    {"BaseUIExists", [](Scene& scene) { return !scene.isBatch(); }},
    {"DeformersExists", never},
    {"DeformersUIExists", never},
    {"DevicesExists", never},
    {"DimensionsExists", never},
    {"DynamicsExists", never},
    {"DynamicsUIExists", never},
    {"GoButtonEnabled", never},
    {"KinematicsExists", never},
    {"KinematicsUIExists", never},
    {"ManipsExists", never},
    {"ModelExists", always},
    {"ModelUIExists", never},
    {"NurbsExists", never},
    {"NurbsUIExists", never},
    {"PolyCoreExists", always},
    {"PolyTextureExists", never},
    {"PolygonsExists", always},
    {"PolygonsUIExists", never},
    {"RedoAvailable", [](Scene& scene) { return !scene.journal().redoable().empty(); }},
    {"RenderingExists", never},
    {"RenderingUIExists", never},
    {"SomethingSelected", [](Scene& scene) { return !scene.selection().items().empty(); }},
    {"UndoAvailable", [](Scene& scene) { return !scene.journal().undoable().empty(); }},
    {"autoKeyframeState", never},
    {"busy", never},
    {"deleteAllCondition", never},
    {kFlushing, never},
    {"hotkeyListChange", never},
    {"playbackIconsCondition", never},
    {"playingBack", never},
    {kReading, never},
};

const HostCondition* hostCondition(const std::string& name)
{
    const auto found = std::find_if(std::begin(kHost), std::end(kHost),
                                    [&](const HostCondition& row) { return name == row.name; });
    return found == std::end(kHost) ? nullptr : found;
}

} // namespace

Conditions::Conditions(Scene& scene) : m_scene(scene)
{
    const auto take = [this](const Event& event) {
        m_isReading = event.what == Happening::readBegun;
        m_isFlushing = event.what == Happening::newBegun || event.what == Happening::openBegun;
    };
    m_observer = scene.observers().add({Happening::newBegun, Happening::openBegun, Happening::readBegun,
                                        Happening::readDone, Happening::newDone, Happening::openDone},
                                       take);
}

Conditions::~Conditions()
{
    m_scene.observers().remove(m_observer);
}

std::vector<std::string> Conditions::names() const
{
    std::vector<std::string> names;
    for (const HostCondition& row : kHost)
        names.emplace_back(row.name);
    for (const auto& entry : m_own)
        names.push_back(entry.first);
    std::sort(names.begin(), names.end());
    return names;
}

bool Conditions::exists(const std::string& name) const
{
    return hostCondition(name) || m_own.count(name) != 0;
}

bool Conditions::isTrue(const std::string& name, Interpreter& interpreter)
{
    if (name == kReading)
        return m_isReading;
    if (name == kFlushing)
        return m_isFlushing;
    if (const HostCondition* host = hostCondition(name))
        return host->isTrue(m_scene);
    refresh(name, interpreter);
    const auto own = m_own.find(name);
    return own != m_own.end() && own->second.condition.state;
}

bool Conditions::add(const std::string& name, ScriptCondition condition, Interpreter& interpreter)
{
    if (hostCondition(name))
        return false;
    Own own{std::move(condition), {}, false};
    own.seen = statesOf(own.condition.dependencies, interpreter);
    m_own[name] = std::move(own);
    return true;
}

bool Conditions::set(const std::string& name, bool state)
{
    const auto own = m_own.find(name);
    if (own == m_own.end())
        return false;
    own->second.condition.state = state;
    return true;
}

void Conditions::initialize(const std::string& name, Interpreter& interpreter)
{
    const auto own = m_own.find(name);
    if (own == m_own.end() || own->second.condition.script.empty())
        return;
    own->second.isAsked = true;
    const auto told = interpreter.run(own->second.condition.script);
    // The script may have deleted its condition.
    if (const auto left = m_own.find(name); left != m_own.end()) {
        left->second.isAsked = false;
        if (told && !told->isNone())
            left->second.condition.state = told->toBoolean();
    }
}

bool Conditions::remove(const std::string& name)
{
    return m_own.erase(name) != 0;
}

std::vector<bool> Conditions::statesOf(const std::vector<std::string>& names, Interpreter& interpreter)
{
    std::vector<bool> states;
    for (const std::string& name : names)
        states.push_back(isTrue(name, interpreter));
    return states;
}

/// Runs the script of a condition when something that it depends on has changed. One that depends on itself
/// is not asked twice.
void Conditions::refresh(const std::string& name, Interpreter& interpreter)
{
    auto own = m_own.find(name);
    if (own == m_own.end() || own->second.isAsked)
        return;
    own->second.isAsked = true;
    const std::vector<std::string> dependencies = own->second.condition.dependencies;
    std::vector<bool> states = statesOf(dependencies, interpreter);
    own = m_own.find(name);
    if (own == m_own.end())
        return;
    own->second.isAsked = false;
    if (states == own->second.seen)
        return;
    own->second.seen = std::move(states);
    initialize(name, interpreter);
}

} // namespace tvxhost::mel
