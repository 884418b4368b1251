// Plugs: their states, and whether they hold a value of their own.
#include "plug.h"

#include "cell.h"
#include "node.h"
#include "number.h"
#include "observers.h"
#include "scene.h"
#include "valueEdits.h"
#include "values.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace tvxhost::engine {

PlugState stateOf(const Plug& plug)
{
    if (!plug.isValid())
        return {};
    const Cell* cell = plug.node()->cells().find(plug);
    return cell ? cell->state : PlugState();
}

namespace {

bool isKeyable(const Plug& plug, const PlugState& state)
{
    return state.keyable.value_or(plug.attribute()->flags.keyable);
}

/// The state as wished, unless somebody forbids that it becomes keyable or not.
PlugState allowedState(const Plug& plug, const PlugState& present, PlugState wish)
{
    const bool keyable = isKeyable(plug, wish);
    const Happening check = keyable ? Happening::keyableChecked : Happening::unkeyableChecked;
    Observers& observers = plug.node()->scene().observers();
    if (keyable == isKeyable(plug, present) || !observers.want(check))
        return wish;
    bool isAllowed = true;
    Event event{check, plug.node(), nullptr, &plug};
    event.isAllowed = &isAllowed;
    observers.tell(event);
    if (!isAllowed)
        wish.keyable = present.keyable;
    return wish;
}

void tellState(const Plug& plug, const PlugState& former, const PlugState& state)
{
    Observers& observers = plug.node()->scene().observers();
    const auto tell = [&](Happening what) { observers.tell({what, plug.node(), nullptr, &plug}); };
    if (former.locked != state.locked)
        tell(state.locked ? Happening::plugLocked : Happening::plugUnlocked);
    if (isKeyable(plug, former) != isKeyable(plug, state))
        tell(isKeyable(plug, state) ? Happening::plugMadeKeyable : Happening::plugMadeUnkeyable);
}

} // namespace

void setState(const Plug& plug, const PlugState& state)
{
    if (!plug.isValid())
        return;
    rememberState(plug);
    Cell* cell = plug.node()->cells().make(plug);
    if (!cell)
        return;
    const PlugState former = std::exchange(cell->state, allowedState(plug, cell->state, state));
    tellState(plug, former, cell->state);
}

bool isLocked(const Plug& plug)
{
    if (!plug.isValid())
        return false;
    for (const Cell* cell = plug.node()->cells().findNearest(plug); cell; cell = cell->parent())
        if (cell->state.locked)
            return true;
    return false;
}

namespace {

bool wasSetAtOrBelow(const Cell& cell)
{
    if (cell.wasSet || (cell.packed() && !cell.packed()->indices().empty()))
        return true;
    return std::any_of(cell.below().begin(), cell.below().end(),
                       [](const std::unique_ptr<Cell>& below) { return below && wasSetAtOrBelow(*below); });
}

bool isLeafDefault(const Plug& leaf)
{
    const Attribute& attribute = *leaf.attribute();
    if (isNumberLeaf(attribute)) {
        alignas(8) std::uint8_t bytes[8] = {};
        storeDefault(attribute, bytes);
        const Number fallback = loadNumber(attribute.number, bytes);
        const Number now = storedNumber(leaf);
        return now.isWhole ? now.whole == fallback.whole : now.real == fallback.real;
    }
    const Ref<Data> data = storedData(leaf);
    if (data == attribute.defaultData)
        return true;
    if (!data)
        return false;
    if (data->type() == DataType::matrix) {
        const Ref<Data>& fallback = attribute.defaultData;
        const Matrix other = fallback ? static_cast<const MatrixData&>(*fallback).value : Matrix();
        return static_cast<const MatrixData&>(*data).value == other;
    }
    return false;
}

} // namespace

bool hasOwnValue(const Plug& plug)
{
    if (!plug.isValid())
        return false;
    const CellStore& cells = plug.node()->cells();
    if (const Cell* cell = cells.find(plug); cell && wasSetAtOrBelow(*cell))
        return true;
    if (plug.isElement()) {
        const Cell* array = cells.find(plug.array());
        if (array && array->packed() && array->packed()->has(plug.logicalIndex()))
            return true;
    }
    return !isDefault(plug);
}

bool isDefault(const Plug& plug)
{
    if (!plug.isValid())
        return true;
    if (plug.isArray()) {
        const std::vector<int> indices = existingElements(plug);
        return std::all_of(indices.begin(), indices.end(),
                           [&](int index) { return isDefault(plug.element(index)); });
    }
    if (!plug.isCompound())
        return isLeafDefault(plug);
    for (std::size_t i = 0; i < plug.childCount(); ++i)
        if (!isDefault(plug.child(i)))
            return false;
    return true;
}

} // namespace tvxhost::engine
