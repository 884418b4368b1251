// Pictures as PNG files.
#pragma once

#include "engine/outcome.h"
#include "picture.h"

#include <string>
#include <string_view>

namespace tvxhost::viewport {

/// The bytes of a PNG file. Fails for a picture without pixels.
engine::Expected<std::string> encodePng(const Picture& picture);

/// The picture of any PNG file as eight-bit RGB; transparency is dropped.
engine::Expected<Picture> decodePng(std::string_view bytes);

} // namespace tvxhost::viewport
