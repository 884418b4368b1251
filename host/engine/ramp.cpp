// Ramps: see ramp.h.
#include "ramp.h"

#include "node.h"

#include <algorithm>

namespace tvxhost::engine {

namespace {

using Value = std::array<double, 3>;
using Interpolation = RampEntry::Interpolation;

// The children of an entry.
constexpr std::size_t kPosition = 0;
constexpr std::size_t kValue = 1;
constexpr std::size_t kInterpolation = 2;

bool isRamp(const Plug& plug, bool isColor)
{
    if (plug.isNull() || !plug.isArray())
        return false;
    const std::vector<Ref<Attribute>>& parts = plug.attribute()->children;
    return parts.size() == 3 && parts[kPosition]->kind == AttributeKind::numeric &&
           parts[kValue]->kind == AttributeKind::numeric &&
           parts[kValue]->children.size() == (isColor ? 3u : 0u) &&
           parts[kInterpolation]->kind == AttributeKind::enumeration;
}

/// What a ramp rises per unit at an entry: from neighbour to neighbour.
double slopeAt(const std::vector<RampEntry>& sorted, std::size_t entry, std::size_t component)
{
    const RampEntry& before = sorted[entry > 0 ? entry - 1 : 0];
    const RampEntry& after = sorted[std::min(entry + 1, sorted.size() - 1)];
    const double width = after.position - before.position;
    return width > 0.0 ? (after.value[component] - before.value[component]) / width : 0.0;
}

/// Between an entry and the next one, at a fraction of the way.
double between(const std::vector<RampEntry>& sorted, std::size_t left, double t, std::size_t component)
{
    const double from = sorted[left].value[component];
    const double to = sorted[left + 1].value[component];
    const double smooth = t * t * (3.0 - 2.0 * t);
    switch (sorted[left].interpolation) {
    case Interpolation::none:
        return from;
    case Interpolation::linear:
        return from + (to - from) * t;
    case Interpolation::smooth:
        return from + (to - from) * smooth;
    case Interpolation::spline:
        break;
    }
    const double width = sorted[left + 1].position - sorted[left].position;
    const double out = width * slopeAt(sorted, left, component);
    const double in = width * slopeAt(sorted, left + 1, component);
    return from + (to - from) * smooth + t * (1.0 - t) * ((1.0 - t) * out - t * in);
}

RampEntry entryAt(const Plug& ramp, int index)
{
    const Plug element = ramp.element(index);
    RampEntry entry;
    entry.index = index;
    entry.position = readNumber(element.child(kPosition)).value.asReal();
    const std::vector<double> value = readNumbers(element.child(kValue)).value;
    std::copy_n(value.begin(), std::min(value.size(), entry.value.size()), entry.value.begin());
    entry.interpolation =
        static_cast<Interpolation>(readNumber(element.child(kInterpolation)).value.asWhole());
    return entry;
}

} // namespace

Ref<Attribute> makeRamp(const std::string& longName, const std::string& shortName, bool isColor)
{
    Ref<Attribute> ramp(new Attribute(AttributeKind::compound, longName, shortName));
    ramp->flags.array = true;
    ramp->addChild(makeNumber(longName + "_Position", shortName + "p", NumberKind::single, 0.0));
    ramp->addChild(isColor ? makeColor(longName + "_Color", shortName + "c")
                           : makeNumber(longName + "_FloatValue", shortName + "fv", NumberKind::single, 0.0));
    Ref<Attribute> way(new Attribute(AttributeKind::enumeration, longName + "_Interp", shortName + "i"));
    way->number = NumberKind::shortInteger;
    short number = 0;
    for (const char* name : {"None", "Linear", "Smooth", "Spline"})
        way->fields.push_back({name, number++});
    ramp->addChild(way);
    return ramp;
}

bool isNumberRamp(const Plug& plug)
{
    return isRamp(plug, false);
}

bool isColorRamp(const Plug& plug)
{
    return isRamp(plug, true);
}

std::vector<RampEntry> rampEntries(const Plug& ramp)
{
    std::vector<RampEntry> entries;
    for (const int index : existingElements(ramp))
        entries.push_back(entryAt(ramp, index));
    return entries;
}

std::array<double, 3> rampValueAt(std::vector<RampEntry> entries, double position)
{
    if (entries.empty())
        return {};
    std::stable_sort(entries.begin(), entries.end(),
                     [](const RampEntry& a, const RampEntry& b) { return a.position < b.position; });
    const auto next = std::upper_bound(entries.begin(), entries.end(), position,
                                       [](double at, const RampEntry& entry) { return at < entry.position; });
    if (next == entries.begin())
        return entries.front().value;
    if (next == entries.end())
        return entries.back().value;
    const auto left = static_cast<std::size_t>(next - entries.begin()) - 1;
    const double t = (position - entries[left].position) / (next->position - entries[left].position);
    Value value;
    for (std::size_t i = 0; i < value.size(); ++i)
        value[i] = between(entries, left, t, i);
    return value;
}

Outcome writeRampEntry(const Plug& ramp, const RampEntry& entry)
{
    if (Outcome written = writeRampPosition(ramp, entry.index, entry.position); !written)
        return written;
    if (Outcome written = writeRampValue(ramp, entry.index, entry.value); !written)
        return written;
    return writeRampInterpolation(ramp, entry.index, entry.interpolation);
}

Outcome writeRampPosition(const Plug& ramp, int index, double position)
{
    return writeNumber(ramp.element(index).child(kPosition), Number(position));
}

Outcome writeRampValue(const Plug& ramp, int index, const std::array<double, 3>& value)
{
    const auto count = static_cast<std::ptrdiff_t>(isColorRamp(ramp) ? value.size() : 1);
    return writeNumbers(ramp.element(index).child(kValue), {value.begin(), value.begin() + count});
}

Outcome writeRampInterpolation(const Plug& ramp, int index, RampEntry::Interpolation interpolation)
{
    return writeNumber(ramp.element(index).child(kInterpolation), Number(static_cast<int>(interpolation)));
}

Outcome replaceRamp(const Plug& ramp, const std::vector<RampEntry>& entries)
{
    for (const int index : existingElements(ramp))
        if (Outcome removed = removeElement(ramp, index); !removed)
            return removed;
    for (const RampEntry& entry : entries)
        if (Outcome written = writeRampEntry(ramp, entry); !written)
            return written;
    return {};
}

} // namespace tvxhost::engine
