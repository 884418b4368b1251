// Loading the module with the windows; see userInterface.h.
#include "userInterface.h"

#include <dlfcn.h>

#include <filesystem>
#include <system_error>

namespace tvxhost::app {

namespace {

// By its whole path: a checker that stands in for dlopen does not look where the program's own libraries are.
std::string modulePath()
{
    std::error_code unreadable;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", unreadable);
    return program.parent_path().parent_path() / "lib" / "libtvxHostQt.so";
}

engine::Outcome failure(const std::string& why)
{
    return {engine::Reason::failed, "there can be no windows: " + why};
}

} // namespace

engine::Expected<std::unique_ptr<UserInterface>> loadUserInterface()
{
    // Never closed again: Qt does not expect to be unloaded.
    void* module = dlopen(modulePath().c_str(), RTLD_NOW | RTLD_GLOBAL);
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
