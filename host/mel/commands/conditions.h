// Conditions: named truths about the session, which scripts ask for and wait for.
#pragma once

#include "engine/observers.h"

#include <map>
#include <string>
#include <vector>

namespace tvxhost::engine {
class Scene;
}

namespace tvxhost::mel {

class Interpreter;

/// A condition that a script made. Its own script tells its state anew whenever one of those that it depends
/// on has changed.
struct ScriptCondition
{
    std::string script; ///< empty: the state is only set
    std::vector<std::string> dependencies;
    bool state = false;
};

/// All conditions of a session: those of the host and those of scripts. Main thread only.
class Conditions
{
public:
    explicit Conditions(engine::Scene& scene);
    ~Conditions();
    Conditions(const Conditions&) = delete;
    Conditions& operator=(const Conditions&) = delete;

    /// In alphabetical order.
    std::vector<std::string> names() const;
    bool exists(const std::string& name) const;
    /// False for a name that there is not.
    bool isTrue(const std::string& name, Interpreter& interpreter);

    /// Makes or replaces a script's own; false for a name of the host's. Its script does not run before one
    /// of the others has changed.
    bool add(const std::string& name, ScriptCondition condition, Interpreter& interpreter);
    /// Sets the state of a script's own. False when there is none of that name.
    bool set(const std::string& name, bool state);
    /// Runs the script of a script's own now.
    void initialize(const std::string& name, Interpreter& interpreter);
    /// False when no script made one of that name.
    bool remove(const std::string& name);

private:
    struct Own
    {
        ScriptCondition condition;
        std::vector<bool> seen; ///< the states of those that it depends on
        bool isAsked = false;   ///< its script runs now
    };

    std::vector<bool> statesOf(const std::vector<std::string>& names, Interpreter& interpreter);
    void refresh(const std::string& name, Interpreter& interpreter);

    engine::Scene& m_scene;
    std::map<std::string, Own> m_own;
    engine::Observers::Id m_observer = 0;
    bool m_isReading = false;
    bool m_isFlushing = false;
};

} // namespace tvxhost::mel
