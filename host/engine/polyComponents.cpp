// Creases and faces that are not seen: see polyComponents.h.
#include "polyComponents.h"

#include "computeSupport.h"
#include "data.h"

#include <charconv>
#include <sstream>

namespace tvxhost::engine {

namespace {

constexpr const char* kTypeName = "dataPolyComponent";

/// As short as it can be without another value.
std::string textOf(double number)
{
    char text[32];
    return {text, std::to_chars(text, text + sizeof text, number).ptr};
}

/// Reads "Index_Data Edge 2  0 5  1 2.5".
PolyComponents parse(const std::string& text, const PolyComponentKind& kind)
{
    std::istringstream words(text);
    words.imbue(std::locale::classic());
    std::string header, component;
    std::size_t count = 0;
    words >> header >> component >> count;
    if (!words || header != "Index_Data" || component != kind.component)
        return {};
    PolyComponents components;
    for (std::size_t i = 0; i < count; ++i) {
        std::int32_t number = 0;
        double value = 0;
        words >> number;
        if (kind.hasValues)
            words >> value;
        if (!words)
            return {};
        components[number] = value;
    }
    return components;
}

} // namespace

PolyComponents polyComponentsOf(Node& shape, const PolyComponentKind& kind)
{
    const Ref<Data> data = readData(plugOf(shape, kind.attribute)).value;
    if (!data || data->type() != DataType::plugin)
        return {};
    return parse(static_cast<const KeptData&>(*data).text, kind);
}

Outcome writePolyComponents(Node& shape, const PolyComponentKind& kind, const PolyComponents& components)
{
    // A line for each, and blanks before their ends, as files have it.
    std::string text =
        std::string(" Index_Data ") + kind.component + ' ' + std::to_string(components.size()) + ' ';
    for (const auto& [number, value] : components) {
        text += "\n\t\t" + std::to_string(number) + ' ';
        if (kind.hasValues)
            text += textOf(value) + ' ';
    }
    return writeData(plugOf(shape, kind.attribute), KeptData(kTypeName, text));
}

} // namespace tvxhost::engine
