// Values: see values.h.
#include "values.h"

#include "node.h"
#include "number.h"
#include "observers.h"
#include "scene.h"
#include "valueEdits.h"

#include <algorithm>
#include <cstring>

namespace tvxhost::engine {

namespace {

/// The attribute whose elements are packed when `plug` is one of them or a number in one; null when it is
/// neither.
const Attribute* packedHolder(const Plug& plug)
{
    const Attribute& attribute = *plug.attribute();
    if (attribute.isArray())
        return plug.isElement() ? &attribute : nullptr;
    return attribute.parent && attribute.parent->isNumberGroup() && attribute.parent->isArray()
               ? attribute.parent
               : nullptr;
}

/// Room for a value among the packed elements of its array; null when it has to have a cell. Outputs have
/// cells, since those remember whether they are up to date.
PackedElements* packedRoom(const Plug& plug)
{
    const Attribute* holder = packedHolder(plug);
    if (!holder || plug.node()->isOutput(*holder))
        return nullptr;
    const Plug element = holder == plug.attribute() ? plug : plug.parent();
    Cell* array = plug.logicalIndex() < 0 ? nullptr : plug.node()->cells().make(element.array());
    return array ? array->packedFor(plug.logicalIndex()) : nullptr;
}

std::uint8_t* packedBytes(PackedElements& packed, const Plug& leaf)
{
    const Attribute& attribute = *leaf.attribute();
    bool isFresh = false;
    std::uint8_t* bytes = packed.makeBytes(leaf.logicalIndex(), isFresh);
    const bool isInGroup = !attribute.isArray();
    if (isFresh)
        storeDefault(isInGroup ? *attribute.parent : attribute, bytes);
    return isInGroup ? bytes + static_cast<std::size_t>(attribute.siblingIndex) * sizeOf(attribute.number)
                     : bytes;
}

Number numberIn(const Data* data)
{
    const auto* numeric =
        data && data->type() == DataType::numeric ? static_cast<const NumericData*>(data) : nullptr;
    return numeric ? loadNumber(static_cast<NumberKind>(numeric->kind), numeric->bytes) : Number();
}

Ref<Data> asNumericData(const Plug& plug)
{
    const Attribute& attribute = *plug.attribute();
    const std::size_t count = std::max<std::size_t>(1, attribute.children.size());
    auto* data = new NumericData(static_cast<int>(attribute.number),
                                 static_cast<int>(std::min<std::size_t>(count, 4)));
    Ref<Data> result(data);
    std::uint8_t* place = data->bytes;
    for (const Plug& leaf : leavesOf(plug)) {
        if (place + sizeOf(attribute.number) > data->bytes + sizeof data->bytes)
            break;
        storeNumber(attribute.number, place, storedNumber(leaf));
        place += sizeOf(attribute.number);
    }
    return result;
}

bool holdsNumbers(const Attribute& attribute)
{
    return isNumberLeaf(attribute) || attribute.isNumberGroup();
}

void copyArray(const Plug& source, const Plug& destination)
{
    for (const int index : existingElements(source))
        copyValue(source.element(index), destination.element(index));
}

void copyNumberFromData(const Data* data, const Plug& destination)
{
    const auto* numeric =
        data && data->type() == DataType::numeric ? static_cast<const NumericData*>(data) : nullptr;
    if (!numeric)
        return;
    const auto kind = static_cast<NumberKind>(numeric->kind);
    const std::vector<Plug> leaves = leavesOf(destination);
    const std::size_t count = std::min(leaves.size(), static_cast<std::size_t>(numeric->size));
    for (std::size_t i = 0; i < count; ++i)
        keepNumber(leaves[i], loadNumber(kind, numeric->bytes + i * sizeOf(kind)));
}

} // namespace

Number storedNumber(const Plug& leaf)
{
    const Attribute& attribute = *leaf.attribute();
    const ValuePlace place = leaf.node()->cells().valueOf(leaf);
    if (place.bytes)
        return loadNumber(attribute.number, place.bytes);
    if (place.data)
        return numberIn(place.data->get());
    alignas(8) std::uint8_t bytes[8];
    storeNumber(attribute.number, bytes, Number(attribute.defaultNumber));
    return loadNumber(attribute.number, bytes);
}

Ref<Data> storedData(const Plug& plug)
{
    const ValuePlace place = plug.node()->cells().valueOf(plug);
    return place.data && *place.data ? *place.data : plug.attribute()->defaultData;
}

void noteEdit(const Plug& plug)
{
    // What is computed is derived itself: nothing else hangs on when it was stored.
    if (!plug.node()->isOutput(*plug.attribute()))
        ++plug.node()->cells().edits;
}

namespace {

bool storeNumberAt(const Plug& leaf, const Number& value, bool wasSet)
{
    const NumberKind kind = leaf.attribute()->number;
    CellStore& cells = leaf.node()->cells();
    noteEdit(leaf);
    if (PackedElements* packed = packedRoom(leaf)) {
        storeNumber(kind, packedBytes(*packed, leaf), value);
        return true;
    }
    Cell* cell = cells.make(leaf);
    if (!cell)
        return false;
    storeNumber(kind, cell->bytes(), value);
    cell->wasSet = wasSet;
    return true;
}

bool storeDataAt(const Plug& plug, Ref<Data> data, bool wasSet)
{
    CellStore& cells = plug.node()->cells();
    noteEdit(plug);
    if (PackedElements* packed = packedRoom(plug)) {
        *packed->makeData(plug.logicalIndex()) = std::move(data);
        return true;
    }
    Cell* cell = cells.make(plug);
    if (!cell)
        return false;
    *cell->data() = std::move(data);
    cell->wasSet = wasSet;
    return true;
}

} // namespace

void tellIfAdded(const Plug& element)
{
    if (!element.isNull())
        element.node()->scene().observers().tell(
            {Happening::elementAdded, element.node(), nullptr, &element});
}

Plug missingElement(const Plug& plug)
{
    Node& node = *plug.node();
    return node.scene().observers().want(Happening::elementAdded) ? node.cells().firstMissingElement(plug)
                                                                  : Plug();
}

bool keepNumber(const Plug& leaf, const Number& value)
{
    rememberValue(leaf);
    const Plug added = missingElement(leaf);
    const bool isKept = storeNumberAt(leaf, value, true);
    tellIfAdded(added);
    return isKept;
}

bool keepData(const Plug& plug, Ref<Data> data)
{
    rememberValue(plug);
    const Plug added = missingElement(plug);
    const bool isKept = storeDataAt(plug, std::move(data), true);
    tellIfAdded(added);
    return isKept;
}

HeldLeaf holdLeaf(const Plug& leaf)
{
    HeldLeaf held;
    const ValuePlace place = leaf.node()->cells().valueOf(leaf);
    if (isNumberLeaf(*leaf.attribute()))
        held.number = storedNumber(leaf);
    else if (place.data)
        held.data = *place.data;
    const Cell* cell = leaf.node()->cells().find(leaf);
    held.wasSet = cell && cell->wasSet;
    held.isDefault = place.isDefault();
    return held;
}

void putLeaf(const Plug& leaf, const HeldLeaf& held)
{
    if (held.isDefault && leaf.node()->cells().valueOf(leaf).isDefault())
        return;
    if (isNumberLeaf(*leaf.attribute()))
        storeNumberAt(leaf, held.number, held.wasSet);
    else if (leaf.attribute()->kind != AttributeKind::message)
        storeDataAt(leaf, held.data, held.wasSet);
}

void resetToDefault(const Plug& plug)
{
    for (const Plug& leaf : leavesOf(plug))
        if (isNumberLeaf(*leaf.attribute()))
            keepNumber(leaf, Number(leaf.attribute()->defaultNumber));
        else if (leaf.attribute()->kind != AttributeKind::message)
            keepData(leaf, Ref<Data>());
}

void copyValue(const Plug& source, const Plug& destination)
{
    const Attribute& from = *source.attribute();
    const Attribute& to = *destination.attribute();
    if (source.isArray() || destination.isArray()) {
        if (source.isArray() && destination.isArray())
            copyArray(source, destination);
        return;
    }
    if (isNumberLeaf(from) && isNumberLeaf(to))
        keepNumber(destination, storedNumber(source));
    else if (to.kind == AttributeKind::generic && holdsNumbers(from))
        keepData(destination, asNumericData(source));
    else if (from.kind == AttributeKind::generic && holdsNumbers(to))
        copyNumberFromData(storedData(source).get(), destination);
    else if (from.isCompound() && to.isCompound())
        for (std::size_t i = 0; i < std::min(source.childCount(), destination.childCount()); ++i)
            copyValue(source.child(i), destination.child(i));
    else if (to.kind != AttributeKind::message && !to.isCompound() && !isNumberLeaf(to))
        keepData(destination, storedData(source));
}

bool lacksIndex(const Plug& plug)
{
    const auto first = plug.indices().begin();
    return std::any_of(first, first + plug.indexCount(), [](int index) { return index < 0; });
}

std::vector<Plug> leavesOf(const Plug& plug)
{
    if (!plug.isCompound())
        return {plug};
    std::vector<Plug> leaves;
    for (std::size_t i = 0; i < plug.childCount(); ++i) {
        const Plug child = plug.child(i);
        if (child.isArray())
            continue;
        for (Plug& leaf : leavesOf(child))
            leaves.push_back(std::move(leaf));
    }
    return leaves;
}

} // namespace tvxhost::engine
