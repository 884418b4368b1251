// MDistance: a length with its unit.
#include <maya/MDistance.h>

#include "support/notImplemented.h"
#include "support/units.h"

TVX_UNIT_VALUE_MEMBERS(MDistance)

double MDistance::asInches() const
{
    return as(kInches);
}

double MDistance::asFeet() const
{
    return as(kFeet);
}

double MDistance::asYards() const
{
    return as(kYards);
}

double MDistance::asMiles() const
{
    return as(kMiles);
}

double MDistance::asMillimeters() const
{
    return as(kMillimeters);
}

double MDistance::asCentimeters() const
{
    return as(kCentimeters);
}

double MDistance::asKilometers() const
{
    return as(kKilometers);
}

double MDistance::asMeters() const
{
    return as(kMeters);
}
