// Values of attributes as the words of a `setAttr`.
#pragma once

#include "engine/attribute.h"
#include "engine/units.h"

#include <string>
#include <string_view>

namespace tvxhost::scene {

/// A stored number in UI units, so that reading the text and converting back gives the very same number (the
/// nearest that can be had when no text does).
std::string uiNumberText(double internal, double internalPerUi);

/// One leaf number as a file holds it: `yes`/`no` for a boolean that stands alone, whole numbers as such, the
/// rest in UI units. `inGroup`: one of several side by side.
std::string leafText(const engine::Attribute& leaf, double internal, const engine::Units& units,
                     bool inGroup);

/// A quoted string; long ones are joined from several lines, in parentheses.
std::string stringText(std::string_view text);

} // namespace tvxhost::scene
