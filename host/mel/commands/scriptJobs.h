// ScriptJobs: scripts that run at the next idle moment after something has happened in the scene.
#pragma once

#include "engine/observers.h"
#include "engine/plug.h"

#include <optional>
#include <string>
#include <vector>

namespace tvxhost::engine {
class Scene;
}

namespace tvxhost::mel {

class Conditions;
class InterfaceTree;
class Interpreter;

/// A condition that a job waits for: to become true, or false, or either.
struct AwaitedCondition
{
    std::string name; ///< empty: none
    std::optional<bool> state;
    bool was = false; ///< at the last idle moment
};

/// One job. It is triggered as often as it likes between two idle moments, and runs once.
struct ScriptJob
{
    std::string script;
    std::vector<engine::Happening> triggers;
    AwaitedCondition condition;
    std::string awaitedEnd;         ///< path of an element of the user interface; runs when that is gone
    std::string parent;             ///< path of the element that the job goes with; empty: none
    bool atEveryIdle = false;       ///< needs no trigger
    engine::Ref<engine::Node> node; ///< of which it must happen; null: of any
    engine::Plug plug;              ///< of which it must happen; null: of any
    std::string attribute;          ///< the long name of an attribute that comes or goes; empty: any
    bool withChildren = false;      ///< what is below the plug counts too
    bool withElements = false;      ///< all elements of the plug's array count
    bool outlivesNode = false;      ///< it waits for the node's end
    bool isProtected = false;       ///< is killed by force only
    bool isPermanent = false;       ///< is never killed
    bool isOnce = false;            ///< is gone when it has run
    bool endsWithScene = false;
    std::string words; ///< how it was made, without the script, for the list
};

/// All jobs of a session. Main thread only.
class ScriptJobs
{
public:
    explicit ScriptJobs(engine::Scene& scene);
    ~ScriptJobs();
    ScriptJobs(const ScriptJobs&) = delete;
    ScriptJobs& operator=(const ScriptJobs&) = delete;

    /// Its number.
    int add(ScriptJob job);
    bool exists(int number) const;
    /// False when it may not be killed, or is not there.
    bool kill(int number, bool byForce);
    void killAll(bool byForce);
    /// Kills a job of the same script, to be replaced.
    void killLike(const std::string& script);
    /// One line for each, its number first.
    std::vector<std::string> list() const;

    /// The idle moment: runs what was triggered. How many failed.
    int runIdle(Interpreter& interpreter, Conditions& conditions, const InterfaceTree& interface);

private:
    struct Entry
    {
        int number = 0;
        ScriptJob job;
        std::vector<engine::Observers::Id> observers;
        bool isTriggered = false;
    };

    void trigger(int number, const engine::Event& event);
    Entry* find(int number);
    void lookAround(Interpreter& interpreter, Conditions& conditions, const InterfaceTree& interface);
    void erase(int number);
    void endScene();

    engine::Scene& m_scene;
    std::vector<Entry> m_entries;
    engine::Observers::Id m_sceneObserver = 0;
    int m_next = 0;
};

} // namespace tvxhost::mel
