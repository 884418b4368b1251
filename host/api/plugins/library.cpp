// Library: a plug-in's shared library while it is mapped, and the entry points in it.
#include "library.h"

#include <dlfcn.h>

namespace tvxhost::api {

namespace {

std::string systemMessage()
{
    const char* message = dlerror();
    return message ? message : "unknown error";
}

Library::EntryPoint findEntryPoint(void* handle, const char* mangledName, const char* plainName)
{
    void* found = dlsym(handle, mangledName);
    return reinterpret_cast<Library::EntryPoint>(found ? found : dlsym(handle, plainName));
}

} // namespace

engine::Expected<std::unique_ptr<Library>> Library::open(const std::filesystem::path& file)
{
    void* handle = dlopen(file.c_str(), RTLD_LOCAL | RTLD_NOW);
    if (!handle)
        return {engine::Reason::failed, systemMessage()};
    std::unique_ptr<Library> library(new Library(handle));
    library->m_initialize = findEntryPoint(handle, "_Z16initializePlugin7MObject", "initializePlugin");
    if (!library->m_initialize)
        return {engine::Reason::failed, systemMessage()};
    library->m_uninitialize = findEntryPoint(handle, "_Z18uninitializePlugin7MObject", "uninitializePlugin");
    if (!library->m_uninitialize)
        return {engine::Reason::failed, systemMessage()};
    if (const void* version = dlsym(handle, "MApiVersion"))
        library->m_apiVersion = static_cast<const char*>(version);
    return library;
}

Library::~Library()
{
    if (m_handle)
        dlclose(m_handle);
}

} // namespace tvxhost::api
