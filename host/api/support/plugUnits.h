// Numbers as callers of the API mean them: angles and distances in internal units, times in UI units.
#pragma once

#include "unitValues.h"

#include "engine/plug.h"

namespace tvxhost::api {

inline bool isTime(const engine::Plug& plug)
{
    return plug.attribute() && plug.attribute()->unit == engine::UnitKind::time;
}

/// A stored number as callers see it.
inline engine::Number toCaller(const engine::Plug& plug, const engine::Number& stored)
{
    return isTime(plug) ? engine::Number(uiTimeOf(stored.asReal())) : stored;
}

/// A caller's number as it is stored.
inline engine::Number toStored(const engine::Plug& plug, const engine::Number& given)
{
    return isTime(plug) ? engine::Number(secondsOf(given.asReal())) : given;
}

/// A time as it is stored: in seconds, or (a plug of another kind) as a number of UI units.
inline engine::Number toStored(const engine::Plug& plug, const MTime& time)
{
    const double seconds = internalValue(time);
    return engine::Number(isTime(plug) ? seconds : uiTimeOf(seconds));
}

} // namespace tvxhost::api
