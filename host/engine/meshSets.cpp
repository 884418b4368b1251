// Sets of texture coordinates and colours in attributes: see meshSets.h.
#include "meshSets.h"

#include "cell.h"
#include "values.h"

namespace tvxhost::engine {

namespace {

Plug plugOf(DagNode& shape, const char* name)
{
    return Plug(shape, *shape.type().find(name));
}

float realAt(const Plug& leaf)
{
    return static_cast<float>(storedNumber(leaf).asReal());
}

// Both kinds of sets are compounds that begin with the name and end with the values.

constexpr const char* kUvSets = "uvSet";
constexpr const char* kColorSets = "colorSet";
constexpr std::size_t kName = 0;
constexpr std::size_t kUvValues = 1;
enum ColorChild : std::size_t
{
    kClamped = 1,
    kRepresentation,
    kColorValues
};

Vec2f readValue(const Plug& element, const UvSet& /*set*/)
{
    return {realAt(element.child(0)), realAt(element.child(1))};
}

Color4f readValue(const Plug& element, const ColorSet& /*set*/)
{
    return {realAt(element.child(0)), realAt(element.child(1)), realAt(element.child(2)),
            realAt(element.child(3))};
}

/// More elements than this are not made up between those that are there.
constexpr std::size_t kWidestGap = 1u << 20;

template <class Set>
void readValues(const Plug& values, Set& set)
{
    for (const int i : existingElements(values)) {
        const auto place = static_cast<std::size_t>(i);
        if (place > set.values.size() + kWidestGap)
            return;
        if (place >= set.values.size())
            set.values.resize(place + 1);
        set.values[place] = readValue(values.element(i), set);
    }
}

UvSet readUvSet(const Plug& plug, std::int32_t slot)
{
    UvSet set;
    set.slot = slot;
    set.name = readString(plug.child(kName)).value;
    readValues(plug.child(kUvValues), set);
    return set;
}

ColorParts partsOf(std::int64_t number)
{
    for (const ColorParts parts : {ColorParts::alpha, ColorParts::rgb})
        if (number == static_cast<std::int64_t>(parts))
            return parts;
    return ColorParts::rgba;
}

ColorSet readColorSet(const Plug& plug, std::int32_t slot)
{
    ColorSet set;
    set.slot = slot;
    set.name = readString(plug.child(kName)).value;
    set.isClamped = storedNumber(plug.child(kClamped)).asWhole() != 0;
    set.parts = partsOf(storedNumber(plug.child(kRepresentation)).asWhole());
    readValues(plug.child(kColorValues), set);
    return set;
}

// Writing

std::vector<double> numbersOf(const Vec2f& uv)
{
    return {uv.x, uv.y};
}

std::vector<double> numbersOf(const Color4f& color)
{
    return {color.r, color.g, color.b, color.a};
}

/// The attributes of a set beside its name and values.
Outcome writeTraits(const Plug& /*plug*/, const UvSet* /*before*/, const UvSet& /*after*/)
{
    return {};
}

Outcome writeTraits(const Plug& plug, const ColorSet* before, const ColorSet& after)
{
    const ColorSet usual;
    const ColorSet& old = before ? *before : usual;
    Outcome written;
    if (old.isClamped != after.isClamped)
        written = writeNumber(plug.child(kClamped), after.isClamped ? 1 : 0);
    if (written && old.parts != after.parts)
        written = writeNumber(plug.child(kRepresentation), static_cast<int>(after.parts));
    return written;
}

Outcome removeAll(const Plug& array)
{
    for (const int i : existingElements(array))
        if (const Outcome removed = removeElement(array, i); !removed)
            return removed;
    return {};
}

/// All at once, as arrays of number groups can be written.
Outcome writeAll(const Plug& array, const std::vector<Vec2f>& values)
{
    std::vector<double> numbers;
    for (const Vec2f& value : values)
        numbers.insert(numbers.end(), {value.x, value.y});
    const Outcome removed = removeAll(array);
    return removed && !values.empty() ? writeElements(array, 0, numbers.data(), numbers.size()) : removed;
}

Outcome writeAll(const Plug& array, const std::vector<Color4f>& values)
{
    Outcome written = removeAll(array);
    for (std::size_t i = 0; written && i < values.size(); ++i)
        written = writeNumbers(array.element(static_cast<int>(i)), numbersOf(values[i]));
    return written;
}

/// The values that differ alone, where there are as many as before.
template <class Value>
Outcome writeValues(const Plug& plug, const std::vector<Value>& before, const std::vector<Value>& after)
{
    if (before.size() != after.size())
        return writeAll(plug, after);
    for (std::size_t i = 0; i < after.size(); ++i)
        if (before[i] != after[i])
            if (const Outcome written = writeNumbers(plug.element(static_cast<int>(i)), numbersOf(after[i]));
                !written)
                return written;
    return {};
}

template <class Set>
Outcome writeSet(const Plug& plug, std::size_t valuesChild, const Set* before, const Set& after)
{
    Outcome written;
    if (readString(plug.child(kName)).value != after.name)
        written = writeString(plug.child(kName), after.name);
    if (written)
        written = writeTraits(plug, before, after);
    if (written)
        written = writeValues(plug.child(valuesChild), before ? before->values : decltype(after.values)(),
                              after.values);
    return written;
}

template <class Set>
const Set* setAt(const std::vector<Set>& sets, std::int32_t slot)
{
    for (const Set& set : sets)
        if (set.slot == slot)
            return &set;
    return nullptr;
}

template <class Set>
Outcome writeKind(const Plug& array, std::size_t valuesChild, const std::vector<Set>& before,
                  const std::vector<Set>& after)
{
    for (const Set& set : before)
        if (!setAt(after, set.slot))
            if (const Outcome removed = removeElement(array, set.slot); !removed)
                return removed;
    for (const Set& set : after)
        if (const Outcome written =
                writeSet(array.element(set.slot), valuesChild, setAt(before, set.slot), set);
            !written)
            return written;
    return {};
}

} // namespace

void readSets(DagNode& shape, MeshData& mesh)
{
    const Plug uvSets = plugOf(shape, kUvSets);
    std::vector<UvSet> sets;
    for (const int i : existingElements(uvSets))
        sets.push_back(readUvSet(uvSets.element(i), i));
    if (!sets.empty()) {
        if (sets.front().name.empty())
            sets.front().name = kFirstUvSetName;
        mesh.uvSets = std::move(sets);
    }
    const Plug colorSets = plugOf(shape, kColorSets);
    for (const int i : existingElements(colorSets))
        mesh.colorSets.push_back(readColorSet(colorSets.element(i), i));
}

Outcome writeSets(DagNode& shape, const MeshData& before, const MeshData& after)
{
    const Outcome written = writeKind(plugOf(shape, kUvSets), kUvValues, before.uvSets, after.uvSets);
    return written ? writeKind(plugOf(shape, kColorSets), kColorValues, before.colorSets, after.colorSets)
                   : written;
}

} // namespace tvxhost::engine
