// PNG files of pictures.
#pragma once

#include "engine/outcome.h"
#include "picture.h"

#include <filesystem>

namespace tvxhost::viewport {

/// Writes the picture whole or not at all: a temporary file beside the target, then a rename. Fails for an
/// empty picture and for a place that cannot be written, with a sentence that names the file.
engine::Outcome writePng(const Picture& picture, const std::filesystem::path& file);

/// Reads any PNG file as eight-bit RGB; transparency is dropped.
engine::Expected<Picture> readPng(const std::filesystem::path& file);

} // namespace tvxhost::viewport
