// UserInterface: windows of a toolkit, in a module of their own that is only loaded where they are asked for.
#pragma once

#include "engine/outcome.h"

#include <memory>

namespace tvxhost::app {

/// While it lives the process has a Qt application with a main window, as plug-ins find it in Maya. Made
/// before plug-ins are loaded and gone after they were unloaded.
class UserInterface
{
public:
    virtual ~UserInterface() = default;
    /// Lets the windows react to what has happened since.
    virtual void processEvents() = 0;
};

/// What the module gives out, under the name kUserInterfaceEntry: a new interface with its main window, which
/// the caller owns; null where there can be none.
using MakeUserInterface = UserInterface* (*)();
inline constexpr const char* kUserInterfaceEntry = "tvxMakeUserInterface";

/// Loads the module and makes its interface. failed when it was not built or lacks something.
engine::Expected<std::unique_ptr<UserInterface>> loadUserInterface();

} // namespace tvxhost::app
