// Time and units.
#include "commandSupport.h"
#include "sceneCommands.h"

namespace tvxhost::mel {

namespace {

Value currentTime(CommandContext& context, const ParsedCommand& call)
{
    engine::Scene& scene = sceneOf(context);
    if (!call.queries()) {
        if (call.positional.empty())
            context.fail("'currentTime' needs a time");
        scene.setTime(toInternal(context, call.positional.front(), ArgumentType::time));
    }
    return Value(scene.time() / engine::secondsPer(scene.units().time));
}

Value unitName(const engine::Units& units, const ParsedCommand& call)
{
    const bool isFull = call.has("fullName");
    if (call.has("angle"))
        return Value(engine::nameOf(units.angle, isFull));
    if (call.has("time"))
        return Value(engine::timeUnitName(units.time));
    return Value(engine::nameOf(units.linear, isFull));
}

template <class Unit, class Named>
void change(CommandContext& context, const ParsedCommand& call, const char* flag, Unit& unit,
            const Named& named)
{
    if (!call.has(flag))
        return;
    const auto found = named(call.string(flag));
    if (!found)
        context.fail("Invalid unit '" + call.string(flag) + "'");
    unit = *found;
}

Value currentUnit(CommandContext& context, const ParsedCommand& call)
{
    engine::Units& units = sceneOf(context).units();
    if (call.queries())
        return unitName(units, call);
    change(context, call, "linear", units.linear, engine::linearUnitNamed);
    change(context, call, "angle", units.angle, engine::angularUnitNamed);
    change(context, call, "time", units.time, engine::timeUnitNamed);
    return {};
}

} // namespace

void registerTimeCommands(CommandTable& table)
{
    using A = ArgumentType;
    table.add({
        makeCommand("currentTime", "Sets or tells the current time",
                    {valueFlag("u", "update", A::boolean, "whether views show it", kCreateEdit)},
                    {A::time, 0, 1}, currentTime, kAllModes),
        makeCommand("currentUnit", "Sets or tells the units that the user sees",
                    {valueFlag("l", "linear", A::string, "mm cm m km in ft yd mi", kAllModes),
                     valueFlag("a", "angle", A::string, "deg rad", kAllModes),
                     valueFlag("t", "time", A::string,
                               "film pal ntsc game show palf ntscf hour min sec millisec", kAllModes),
                     switchFlag("f", "fullName", "long names", kQuery),
                     valueFlag("ua", "updateAnimation", A::boolean, "whether keys keep their time", kCreate)},
                    noArguments(), currentUnit, kAllModes),
    });
}

} // namespace tvxhost::mel
