// Loading the module with the windows; see userInterface.h.
#include "userInterface.h"

#include <dlfcn.h>

namespace tvxhost::app {

namespace {

constexpr const char* kModule = "libtvxHostQt.so";

engine::Outcome failure(const std::string& why)
{
    return {engine::Reason::failed, "there can be no windows: " + why};
}

} // namespace

engine::Expected<std::unique_ptr<UserInterface>> loadUserInterface()
{
    // Never closed again: Qt does not expect to be unloaded.
    void* module = dlopen(kModule, RTLD_NOW | RTLD_GLOBAL);
    if (!module)
        return failure(dlerror());
    const auto make = reinterpret_cast<MakeUserInterface>(dlsym(module, kUserInterfaceEntry));
    if (!make)
        return failure(dlerror());
    std::unique_ptr<UserInterface> made(make());
    if (!made)
        return failure("another application of the toolkit is running in the process");
    return made;
}

} // namespace tvxhost::app
