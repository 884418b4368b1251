// SceneReader: connections, and the statements that are kept as they stand.
#include "sceneReader.h"

#include "connectionEnd.h"
#include "flagScanner.h"
#include "lightLinks.h"
#include "messages.h"

#include "engine/observers.h"

namespace tvxhost::scene {

using engine::Expected;
using engine::Outcome;
using engine::Plug;
using engine::Reason;

namespace {

struct ConnectRequest
{
    std::vector<std::string> plugs;
    bool nextAvailable = false;
    bool force = false;
    bool locks = false;
};

ConnectRequest parseConnect(const mel::ArgumentList& arguments)
{
    ConnectRequest request;
    for (FlagScanner flags(arguments); flags.next();) {
        if (flags.is("na", "nextAvailable"))
            request.nextAvailable = true;
        else if (flags.is("f", "force"))
            request.force = true;
        else if (flags.is("l", "lock"))
            request.locks = flags.truth();
        else if (flags.is("rd", "referenceDest"))
            flags.text();
        else if (flags.isPositional())
            request.plugs.emplace_back(flags.text());
    }
    return request;
}

/// Tells that a connection could not be made: its ends, as far as there are such plugs, and their names.
void tellOfFailure(engine::Scene& scene, const ConnectRequest& request, const Expected<Plug>& source,
                   const Expected<Plug>& destination)
{
    engine::Event event{engine::Happening::connectionFailed};
    event.otherPlug = source ? &source.value : nullptr;
    event.plug = destination ? &destination.value : nullptr;
    event.text = request.plugs[0];
    event.name = request.plugs[1];
    scene.observers().tell(event);
}

} // namespace

void SceneReader::connectAttr(const SceneStatement& statement)
{
    const ConnectRequest request = parseConnect(statement.arguments);
    if (request.plugs.size() != 2) {
        error("connectAttr needs a source and a destination", statement.line);
        return;
    }
    const Expected<Plug> source = connectionEnd(m_scene, request.plugs[0]);
    Expected<Plug> destination = connectionEnd(m_scene, request.plugs[1]);
    if (!source || !destination) {
        tellOfFailure(m_scene, request, source, destination);
        keep(m_scene.keptConnections, statement);
        return;
    }
    if (request.nextAvailable && destination.value.isArray())
        destination.value = m_scene.nextAvailable(destination.value);
    const Outcome connected = m_scene.connect(source.value, destination.value, request.force);
    if (connected) {
        ++m_summary.connections;
        if (request.locks) {
            engine::PlugState state = engine::stateOf(destination.value);
            state.locked = true;
            engine::setState(destination.value, state);
        }
        return;
    }
    if (connected.reason == Reason::sameConnection)
        return;
    tellOfFailure(m_scene, request, source, destination);
    error(connectMessage(connected, source.value, destination.value), statement.line);
    keep(m_scene.keptConnections, statement);
}

void SceneReader::disconnectAttr(const SceneStatement& statement)
{
    const ConnectRequest request = parseConnect(statement.arguments);
    if (request.plugs.size() != 2) {
        error("disconnectAttr needs a source and a destination", statement.line);
        return;
    }
    const Expected<Plug> source = connectionEnd(m_scene, request.plugs[0]);
    const Expected<Plug> destination = connectionEnd(m_scene, request.plugs[1]);
    if (!source || !destination)
        error((source ? destination : source).outcome.text, statement.line);
    else if (const Outcome cut = m_scene.disconnect(source.value, destination.value); !cut)
        error(disconnectMessage(cut, source.value, destination.value), statement.line);
}

void SceneReader::relationship(const SceneStatement& statement)
{
    std::vector<std::string> words;
    for (FlagScanner flags(statement.arguments); flags.next();)
        words.emplace_back(flags.isPositional() ? flags.text() : sourceText(flags.argument()));
    constexpr std::size_t kWordsOfLink = 4;
    const bool isLink = words.size() == kWordsOfLink;
    const Outcome made = isLink ? makeLightLink(m_scene, {words[0], words[1], words[2], words[3]})
                                : Outcome(Reason::wrongKind);
    if (!made && made.reason != Reason::sameConnection)
        keep(m_scene.keptConnections, statement);
}

void SceneReader::keepStatement(const SceneStatement& statement)
{
    keep(m_scene.keptConnections, statement);
}

} // namespace tvxhost::scene
