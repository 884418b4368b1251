// Text helpers.
#include <tvxCore/StringUtils.h>

namespace tarvox::core {

std::string toLower(std::string text)
{
    for (char& character : text)
        if (character >= 'A' && character <= 'Z')
            character = static_cast<char>(character - 'A' + 'a');
    return text;
}

} // namespace tarvox::core
