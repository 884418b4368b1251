// Ramps: curves of a few entries, which nodes hold as arrays of compounds: a position, a value or a colour,
// and the way to the next entry.
#pragma once

#include "plug.h"

#include <array>
#include <string>
#include <vector>

namespace tvxhost::engine {

/// One entry of a ramp.
struct RampEntry
{
    /// How a ramp goes from an entry to the next one; the numbers are those of scene files.
    enum class Interpolation
    {
        none = 0, ///< the entry's value holds up to the next one
        linear = 1,
        smooth = 2, ///< leaves and arrives flat
        spline = 3  ///< passes the entries in the direction of their neighbours
    };

    int index = 0; ///< in the array
    double position = 0.0;
    std::array<double, 3> value{}; ///< a colour, or a number and zeros
    Interpolation interpolation = Interpolation::linear;
};

/// An attribute for a ramp: "NAME_Position" ("SHORTp"), "NAME_FloatValue" ("SHORTfv") or "NAME_Color"
/// ("SHORTc") and "NAME_Interp" ("SHORTi").
Ref<Attribute> makeRamp(const std::string& longName, const std::string& shortName, bool isColor);

/// True for an array of such entries.
bool isNumberRamp(const Plug& plug);
bool isColorRamp(const Plug& plug);

/// The entries in the order of their indices.
std::vector<RampEntry> rampEntries(const Plug& ramp);

/// The value at a position; outside its entries a ramp goes on as it begins and ends. Zeros without entries.
std::array<double, 3> rampValueAt(std::vector<RampEntry> entries, double position);

// Each writes to the element of an index and makes it when it is missing.
Outcome writeRampEntry(const Plug& ramp, const RampEntry& entry);
Outcome writeRampPosition(const Plug& ramp, int index, double position);
Outcome writeRampValue(const Plug& ramp, int index, const std::array<double, 3>& value);
Outcome writeRampInterpolation(const Plug& ramp, int index, RampEntry::Interpolation interpolation);

/// Leaves just these entries in a ramp, at their indices.
Outcome replaceRamp(const Plug& ramp, const std::vector<RampEntry>& entries);

} // namespace tvxhost::engine
