// A note of a member of the utility class, as LogRecorder has it.
#pragma once

#include <string>

namespace tarvox::crowd::test {

/// @param file  in core/utils
inline std::string memberWarning(const std::string& file, const std::string& member, const std::string& text)
{
    return "2|core/utils/" + file + "|tarvox::crowd::MayaUtils::" + member + "|" + text;
}

} // namespace tarvox::crowd::test
