// windowPref: the places of windows.
#include "commandSupport.h"
#include "sceneCommands.h"

#include "../interpreter.h"

namespace tvxhost::mel {

namespace {

struct NumberRow
{
    const char* shortName;
    const char* longName;
    const char* help;
    int WindowPlace::*part;
};

constexpr NumberRow kNumbers[] = {
    {"te", "topEdge", "pixels from the top", &WindowPlace::top},
    {"le", "leftEdge", "pixels from the left", &WindowPlace::left},
    {"w", "width", "in pixels", &WindowPlace::width},
    {"h", "height", "in pixels", &WindowPlace::height},
};

struct PairRow
{
    const char* shortName;
    const char* longName;
    const char* help;
    int WindowPlace::*first;
    int WindowPlace::*second;
};

constexpr PairRow kPairs[] = {
    {"tlc", "topLeftCorner", "top and left", &WindowPlace::top, &WindowPlace::left},
    {"wh", "widthHeight", "width and height", &WindowPlace::width, &WindowPlace::height},
};

const WindowPlace& placeOf(CommandContext& context, const std::string& window)
{
    const WindowPlace* place = sessionOf(context).windows.find(window);
    if (!place)
        context.fail("windowPref: Object '" + window + "' not found.");
    return *place;
}

Value queryPlace(CommandContext& context, const ParsedCommand& call, const WindowPlace& place)
{
    for (const PairRow& row : kPairs)
        if (call.has(row.longName))
            return Value(Value::Integers{place.*row.first, place.*row.second});
    for (const NumberRow& row : kNumbers)
        if (call.has(row.longName))
            return Value(place.*row.part);
    if (call.has("maximized"))
        return Value(place.isMaximized);
    context.fail("windowPref: nothing was asked");
}

WindowPlace changed(WindowPlace place, const ParsedCommand& call)
{
    for (const NumberRow& row : kNumbers)
        place.*row.part = call.integer(row.longName, place.*row.part);
    for (const PairRow& row : kPairs)
        if (const FlagUse* use = call.use(row.longName)) {
            place.*row.first = use->arguments[0].toInteger();
            place.*row.second = use->arguments[1].toInteger();
        }
    place.isMaximized = call.boolean("maximized", place.isMaximized);
    return place;
}

/// The flags that are about all windows; empty when the call has none of them.
std::optional<Value> forAllWindows(CommandContext& context, const ParsedCommand& call)
{
    SceneSession& session = sessionOf(context);
    if (call.has("saveAll")) {
        if (!session.preferencesFolder.empty())
            require(context, session.windows.save(session.preferencesFolder));
        return Value();
    }
    if (call.has("loadAll")) {
        require(context, session.loadWindows(context.interpreter()));
        return Value();
    }
    if (call.has("removeAll")) {
        session.windows.clear();
        return Value();
    }
    if (call.has("enableAll") && call.queries())
        return Value(session.windows.isEnabled);
    if (call.has("enableAll")) {
        session.windows.isEnabled = call.boolean("enableAll");
        return Value();
    }
    return std::nullopt;
}

Value windowPref(CommandContext& context, const ParsedCommand& call)
{
    if (const std::optional<Value> done = forAllWindows(context, call))
        return *done;
    if (call.positional.empty())
        context.fail("windowPref needs the name of a window");
    WindowPreferences& windows = sessionOf(context).windows;
    const std::string window = call.names().front();
    if (call.has("exists"))
        return Value(windows.find(window) != nullptr);
    if (call.queries())
        return queryPlace(context, call, placeOf(context, window));
    if (call.has("remove")) {
        placeOf(context, window);
        windows.remove(window);
        return {};
    }
    const WindowPlace* known = windows.find(window);
    windows.set(window, changed(call.edits() ? placeOf(context, window)
                                : known      ? *known
                                             : WindowPlace(),
                                call));
    return Value(window);
}

} // namespace

void registerWindowPreferenceCommands(CommandTable& table)
{
    using A = ArgumentType;
    std::vector<FlagSpec> flags = {
        switchFlag("ex", "exists", "whether there is one of this window", kCreateQuery),
        valueFlag("max", "maximized", A::boolean, "fills the screen", kAllModes),
        switchFlag("r", "remove", "forgets this window"),
        switchFlag("ra", "removeAll", "forgets all windows"),
        valueFlag("ea", "enableAll", A::boolean, "whether windows come back to their places", kAllModes),
        switchFlag("sa", "saveAll", "writes all places to the user's preferences"),
        switchFlag("la", "loadAll", "reads them again"),
    };
    for (const NumberRow& row : kNumbers)
        flags.push_back(valueFlag(row.shortName, row.longName, A::integer, row.help, kAllModes));
    for (const PairRow& row : kPairs)
        flags.push_back({row.shortName, row.longName, {A::integer, A::integer}, kAllModes, row.help});
    table.add({makeCommand("windowPref", "Keeps the places of windows", std::move(flags), names(0, 1),
                           windowPref, kAllModes)});
}

} // namespace tvxhost::mel
