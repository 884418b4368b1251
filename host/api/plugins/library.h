// Library: a plug-in's shared library while it is mapped, and the entry points in it.
#pragma once

#include "engine/outcome.h"

#include <maya/MObject.h>
#include <maya/MStatus.h>

#include <filesystem>
#include <memory>
#include <string>

namespace tvxhost::api {

/// Mapped for as long as it lives.
class Library
{
public:
    using EntryPoint = MStatus (*)(MObject);

    /// Maps a library and finds its entry points, by their C++ names or plainly. What the system says is
    /// wrong is the text of the outcome.
    static engine::Expected<std::unique_ptr<Library>> open(const std::filesystem::path& file);

    ~Library();
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    EntryPoint initialize() const { return m_initialize; }
    EntryPoint uninitialize() const { return m_uninitialize; }
    /// The text of MApiVersion; empty when the library has none.
    const std::string& apiVersion() const { return m_apiVersion; }
    /// Leaves the library mapped when this object goes.
    void keepMapped() { m_handle = nullptr; }

private:
    explicit Library(void* handle) : m_handle(handle) {}

    void* m_handle;
    EntryPoint m_initialize = nullptr;
    EntryPoint m_uninitialize = nullptr;
    std::string m_apiVersion;
};

} // namespace tvxhost::api
