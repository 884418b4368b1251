// ScriptNodes: runs the scripts that travel with scenes, when their scene opens and closes.
#pragma once

#include "engine/observers.h"
#include "engine/scene.h"
#include "mel/interpreter.h"

#include <cstdint>
#include <string>

namespace tvxhost::app {

/// While it lives, the `before` scripts of script nodes run when a file has brought them, their `after`
/// scripts when the scene is closed or they are deleted. Which nodes take part says their type: 1 always, 2
/// only with a user interface, the others never, but for the script that runs when they are deleted.
class ScriptNodes
{
public:
    /// Both outlive it.
    ScriptNodes(engine::Scene& scene, mel::Interpreter& interpreter);
    ~ScriptNodes();
    ScriptNodes(const ScriptNodes&) = delete;
    ScriptNodes& operator=(const ScriptNodes&) = delete;

private:
    void told(const engine::Event& event);
    void readingBegins();
    void runAll(const char* attribute, std::uint64_t since);
    void run(engine::Node& node, const char* attribute);
    bool takesPart(engine::Node& node) const;

    engine::Scene& m_scene;
    mel::Interpreter& m_interpreter;
    engine::Observers::Id m_id;
    std::uint64_t m_lastBefore = 0; ///< the serial of the last node before a file was read
};

} // namespace tvxhost::app
