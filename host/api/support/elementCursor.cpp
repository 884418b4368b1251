// Walking over the elements of an array plug one by one, without listing them all.
#include "elementCursor.h"

#include "engine/cell.h"
#include "engine/node.h"

#include <algorithm>

namespace tvxhost::api {

namespace {

using engine::Cell;

const Cell* arrayCell(const engine::Plug& array)
{
    return array.isValid() && array.isArray() ? array.node()->cells().find(array) : nullptr;
}

std::optional<int> smaller(std::optional<int> a, std::optional<int> b)
{
    if (!a || !b)
        return a ? a : b;
    return std::min(*a, *b);
}

/// Some places are empty: elements that have gone.
std::optional<int> cellAfter(const Cell& array, int index)
{
    const auto& cells = array.below();
    const auto isThere = [](const std::unique_ptr<Cell>& element) { return element != nullptr; };
    auto first = cells.begin();
    auto last = cells.end();
    while (first != last) {
        const auto middle = first + (last - first) / 2;
        const auto next = std::find_if(middle, last, isThere);
        if (next == last || (*next)->index() > index)
            last = middle;
        else
            first = next + 1;
    }
    const auto next = std::find_if(first, cells.end(), isThere);
    return next == cells.end() ? std::nullopt : std::optional<int>((*next)->index());
}

std::optional<int> packedAfter(const Cell& array, int index)
{
    if (!array.packed())
        return std::nullopt;
    const auto& indices = array.packed()->indices();
    const auto next = std::upper_bound(indices.begin(), indices.end(), index);
    return next == indices.end() ? std::nullopt : std::optional<int>(*next);
}

} // namespace

std::optional<int> elementAfter(const engine::Plug& array, int index)
{
    const Cell* cell = arrayCell(array);
    return cell ? smaller(cellAfter(*cell, index), packedAfter(*cell, index)) : std::nullopt;
}

bool hasElement(const engine::Plug& array, int index)
{
    return elementAfter(array, index - 1) == index;
}

std::size_t elementCount(const engine::Plug& array)
{
    const Cell* cell = arrayCell(array);
    return cell ? cell->elementCount() : 0;
}

} // namespace tvxhost::api
