// Messages about connections; see messages.h.
#include "messages.h"

#include "engine/node.h"

namespace tvxhost::scene {

using engine::Outcome;
using engine::Plug;
using engine::Reason;

namespace {

const char* refusal(Reason reason)
{
    switch (reason) {
    case Reason::notWritable:
        return "Destination attribute must be writable.";
    case Reason::notReadable:
        return "Source attribute must be readable.";
    case Reason::notConnectable:
        return "The attributes take no connections.";
    case Reason::typeMismatch:
        return "Data types of source and destination are not compatible.";
    case Reason::lockedOrConnected:
    case Reason::readOnly:
        return "Destination is locked.";
    default:
        return nullptr;
    }
}

} // namespace

std::string connectMessage(const Outcome& outcome, const Plug& source, const Plug& destination)
{
    const std::string from = source.name();
    const std::string to = destination.name();
    if (outcome.reason == Reason::alreadyConnected)
        return "'" + to + "' already has an incoming connection from '" +
               engine::sourceOf(destination).name() + "'.";
    if (outcome.reason == Reason::sameConnection)
        return "'" + from + "' is already connected to '" + to + "'.";
    const char* reason = refusal(outcome.reason);
    // What the scene says of all else names the ends already.
    return reason ? "Connection not made: '" + from + "' -> '" + to + "'.  " + reason : outcome.text;
}

std::string disconnectMessage(const Outcome& outcome, const Plug& source, const Plug& destination)
{
    if (outcome.reason == Reason::notConnected)
        return "There is no connection from '" + source.name() + "' to '" + destination.name() +
               "' to disconnect";
    return outcome.text;
}

} // namespace tvxhost::scene
