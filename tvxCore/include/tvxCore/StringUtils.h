// Text helpers.
#pragma once

#include <tvxCore/Export.h>

#include <string>

namespace tarvox::core {

/// `text` with the letters A to Z made small; every other byte, those of UTF-8 letters included, is kept.
/// Does not depend on the locale.
TVX_CORE_API std::string toLower(std::string text);

} // namespace tarvox::core
