// Names of plugs and objects as text: their parts, and whether they may be names.
#include "language.h"

#include <algorithm>
#include <cctype>

namespace tvxhost::mel {

namespace {

using Arguments = std::vector<Value>;

Value plugNode(CommandContext&, Arguments& arguments)
{
    const std::string& plug = arguments[0].string();
    return plug.substr(0, plug.find('.'));
}

/// What follows the first dot, attributes of attributes included.
Value plugAttr(CommandContext&, Arguments& arguments)
{
    const std::string& plug = arguments[0].string();
    const std::size_t dot = plug.find('.');
    return dot == std::string::npos ? std::string() : plug.substr(dot + 1);
}

bool isAscii(char c, int (*is)(int))
{
    const auto byte = static_cast<unsigned char>(c);
    return byte < 0x80 && is(byte) != 0;
}

/// A letter, then letters, digits, underscores and these.
bool isName(const std::string& text, const std::string& others)
{
    return !text.empty() && isAscii(text.front(), std::isalpha) &&
           std::all_of(text.begin(), text.end(), [&](char c) {
               return isAscii(c, std::isalnum) || c == '_' || others.find(c) != std::string::npos;
           });
}

Value isValidObjectName(CommandContext&, Arguments& arguments)
{
    return isName(arguments[0].string(), "");
}

Value isValidUiName(CommandContext&, Arguments& arguments)
{
    return isName(arguments[0].string(), " ");
}

} // namespace

void addNameCommands(CommandTable& table)
{
    table.add({
        function("plugNode", "The node of a plug's name", {kString}, plugNode),
        function("plugAttr", "The attribute of a plug's name", {kString}, plugAttr),
        function("isValidObjectName", "Whether a text can be an object's name: letters, digits and _",
                 {kString}, isValidObjectName),
        function("isValidUiName", "Whether a text can be a name in the user interface: blanks as well",
                 {kString}, isValidUiName),
    });
}

} // namespace tvxhost::mel
