// Data of plug-ins' own types in scene files; see pluginDataText.h.
#include "pluginDataText.h"

#include "words.h"

#include <limits>

namespace tvxhost::scene {

using engine::Expected;
using engine::Ref;
using Result = engine::ScriptRunner::Result;

namespace {

bool isInt(double number)
{
    using Limits = std::numeric_limits<int>;
    return number >= Limits::min() && number <= Limits::max();
}

/// A value as the plug-in's code is given it.
Result valueOf(const mel::Argument& argument)
{
    Result value;
    const bool isWhole = argument.kind == mel::ArgumentKind::integer;
    const bool isNumber = isWhole || argument.kind == mel::ArgumentKind::number;
    const double number = isNumber ? numberOf(argument).value_or(0.0) : 0.0;
    if (isWhole && isInt(number)) {
        value.kind = Result::Kind::integer;
        value.integers = {static_cast<int>(number)};
    } else if (isNumber) {
        value.kind = Result::Kind::real;
        value.reals = {number};
    } else {
        value.kind = Result::Kind::string;
        value.strings = {std::string(argument.text)};
    }
    return value;
}

} // namespace

Expected<Ref<engine::Data>> parsePluginData(const std::shared_ptr<engine::PluginDataType>& type,
                                            const mel::Argument* begin, const mel::Argument* end)
{
    const auto made = engine::makePluginData(type);
    if (!made)
        return made.outcome;
    std::vector<Result> values;
    for (const mel::Argument* argument = begin; argument != end; ++argument)
        values.push_back(valueOf(*argument));
    if (engine::Outcome read = made.value->read(values); !read)
        return read;
    return Ref<engine::Data>(made.value);
}

std::string pluginDataWords(const engine::PluginData& data, engine::ScriptEditor& editor)
{
    const Expected<std::string> words = data.words();
    if (!words) {
        editor.error(words.outcome.text + ".");
        return {};
    }
    return " -type " + mel::quoted(data.dataType().name) + " " + words.value;
}

} // namespace tvxhost::scene
