// MAngle: an angle with its unit.
#include <maya/MAngle.h>

#include "support/notImplemented.h"
#include "support/units.h"

TVX_UNIT_VALUE_MEMBERS(MAngle)

double MAngle::asRadians() const
{
    return as(kRadians);
}

double MAngle::asDegrees() const
{
    return as(kDegrees);
}

double MAngle::asAngMinutes() const
{
    return as(kAngMinutes);
}

double MAngle::asAngSeconds() const
{
    return as(kAngSeconds);
}
