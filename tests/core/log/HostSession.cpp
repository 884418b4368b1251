// A session of the host for one test.
#include "HostSession.h"

namespace tarvox::crowd::test {

namespace {

using tvxhost::engine::Message;
using tvxhost::engine::MessageKind;
using tvxhost::engine::Scene;

const char* nameOf(MessageKind kind)
{
    switch (kind) {
    case MessageKind::print:
        return "print";
    case MessageKind::info:
        return "info";
    case MessageKind::result:
        return "result";
    case MessageKind::warning:
        return "warning";
    case MessageKind::error:
        return "error";
    }
    return "unknown";
}

} // namespace

HostSession::HostSession()
{
    Scene::makeCurrent(&scene);
}

HostSession::~HostSession()
{
    Scene::makeCurrent(nullptr);
}

std::vector<std::string> HostSession::takeMessages()
{
    std::vector<std::string> messages;
    for (const Message& message : scene.scriptEditor().history())
        messages.push_back(nameOf(message.kind) + ("|" + message.text));
    scene.scriptEditor().clearHistory();
    return messages;
}

} // namespace tarvox::crowd::test
