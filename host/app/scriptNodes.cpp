// ScriptNodes: see scriptNodes.h.
#include "scriptNodes.h"

#include "engine/plug.h"

#include <vector>

namespace tvxhost::app {

using engine::Happening;
using engine::Node;

namespace {

constexpr const char* kBefore = "before";
constexpr const char* kAfter = "after";

enum ScriptType
{
    kOpenClose = 1,
    kInterfaceOpenClose = 2
};

int numberOf(Node& node, const char* attribute)
{
    const auto plug = node.findPlug(attribute);
    const auto number = plug ? engine::readNumber(plug.value) : engine::Expected<engine::Number>();
    return number ? static_cast<int>(number.value.asWhole()) : 0;
}

} // namespace

ScriptNodes::ScriptNodes(engine::Scene& scene, mel::Interpreter& interpreter)
    : m_scene(scene), m_interpreter(interpreter),
      m_id(scene.observers().add({Happening::readBegun, Happening::readDone, Happening::referenceLoadBegun,
                                  Happening::referenceLoadDone, Happening::newBegun, Happening::openBegun,
                                  Happening::quitting, Happening::nodeAboutToBeDeleted},
                                 [this](const engine::Event& event) { told(event); }))
{
}

ScriptNodes::~ScriptNodes()
{
    m_scene.observers().remove(m_id);
}

void ScriptNodes::told(const engine::Event& event)
{
    switch (event.what) {
    case Happening::readBegun:
    case Happening::referenceLoadBegun:
        return readingBegins();
    case Happening::readDone:
    case Happening::referenceLoadDone:
        return runAll(kBefore, m_lastBefore);
    case Happening::nodeAboutToBeDeleted:
        if (event.node->type().isA("script"))
            run(*event.node, kAfter);
        return;
    default:
        return runAll(kAfter, 0);
    }
}

void ScriptNodes::readingBegins()
{
    m_lastBefore = m_scene.nodes().back()->serial();
}

bool ScriptNodes::takesPart(Node& node) const
{
    const int type = numberOf(node, "scriptType");
    return type == kOpenClose || (type == kInterfaceOpenClose && !m_scene.isBatch());
}

/// The scripts may change which nodes there are.
void ScriptNodes::runAll(const char* attribute, std::uint64_t since)
{
    std::vector<engine::Ref<Node>> nodes;
    for (Node* node : m_scene.nodes())
        if (node->serial() > since && node->type().isA("script") && takesPart(*node))
            nodes.emplace_back(node);
    for (const engine::Ref<Node>& node : nodes)
        if (node->isAlive())
            run(*node, attribute);
}

void ScriptNodes::run(Node& node, const char* attribute)
{
    const auto plug = node.findPlug(attribute);
    const auto script = plug ? engine::readString(plug.value) : engine::Expected<std::string>();
    if (!script || script.value.empty())
        return;
    const std::string name = node.name() + "." + attribute;
    if (numberOf(node, "sourceType") != 0)
        m_scene.scriptEditor().warning("The script '" + name + "' is no MEL and is not run", {});
    else
        (void)m_interpreter.run(script.value, name);
}

} // namespace tvxhost::app
