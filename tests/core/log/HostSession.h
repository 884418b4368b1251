// A session of the host for one test: an empty scene, no preferences, nothing in the script editor.
#pragma once

#include "engine/scene.h"

#include <string>
#include <vector>

namespace tarvox::crowd::test {

/// The current session while it lives.
class HostSession
{
public:
    HostSession();
    ~HostSession();
    HostSession(const HostSession&) = delete;
    HostSession& operator=(const HostSession&) = delete;

    /// What the script editor was given since the last call, oldest first: "error|text", "warning|text",
    /// "info|text".
    std::vector<std::string> takeMessages();

    tvxhost::engine::Scene scene;
};

} // namespace tarvox::crowd::test
