// Lists of members: see memberLists.h.
#include "memberLists.h"

#include "listLimit.h"

#include "engine/scene.h"

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <utility>

namespace tvxhost::mel {

using engine::Components;
using engine::SelectionItem;

namespace {

/// None for whole objects, and for a star where the shape does not tell how many there are.
std::optional<Components> numbersOf(const SelectionItem& item)
{
    if (item.components.empty() || !item.isDag())
        return std::nullopt;
    std::optional<Components> numbers = engine::parseComponents(*item.path.node(), item.components);
    return numbers && !numbers->empty() ? numbers : std::nullopt;
}

SelectionItem wholeOf(SelectionItem item)
{
    item.components.clear();
    return item;
}

void addRuns(SelectionItem item, const Components& components, Members& items)
{
    for (std::string& text : components.texts()) {
        item.components = std::move(text);
        items.push_back(item);
    }
}

bool isOfSameObject(const SelectionItem& a, const SelectionItem& b)
{
    return a.node == b.node && a.path == b.path;
}

bool isAmong(const Members& items, const SelectionItem& wanted)
{
    return std::find(items.begin(), items.end(), wanted) != items.end();
}

/// The components of the same object and kind among items.
Components sameAmong(const Members& items, const SelectionItem& wanted, const Components& numbers)
{
    Components all(numbers.kind());
    for (const SelectionItem& item : items)
        if (isOfSameObject(item, wanted))
            if (const auto some = numbersOf(item); some && some->kind() == numbers.kind())
                all = all.joined(*some);
    return all;
}

/// The instance of an object, and the kind of its components.
using Key = std::tuple<const engine::Node*, int, std::string>;

Key keyOf(const SelectionItem& item, const Components& numbers)
{
    return {item.node.get(), item.path.instanceNumber(), numbers.kind()};
}

using PartOf = Components (Components::*)(const Components& other) const;

/// Keeps whole objects as they are or are not among others, and some components of the rest.
Members kept(const Members& items, const Members& others, bool isKeptWhenAmong, PartOf part)
{
    Members result;
    for (const SelectionItem& item : items) {
        const std::optional<Components> numbers = numbersOf(item);
        if (isAmong(others, item) || isAmong(others, wholeOf(item))) {
            if (isKeptWhenAmong)
                result.push_back(item);
        } else if (numbers) {
            addRuns(item, ((*numbers).*part)(sameAmong(others, item, *numbers)), result);
        } else if (!isKeptWhenAmong) {
            result.push_back(item);
        }
    }
    return result;
}

} // namespace

std::vector<ObjectComponents> componentsByObject(const Members& items)
{
    std::vector<ObjectComponents> all;
    std::map<Key, std::size_t> places;
    for (const SelectionItem& item : items)
        if (const auto numbers = numbersOf(item)) {
            const auto [place, isNew] = places.try_emplace(keyOf(item, *numbers), all.size());
            if (isNew)
                all.push_back({item, *numbers});
            else
                all[place->second].numbers = all[place->second].numbers.joined(*numbers);
        }
    return all;
}

Members merged(const Members& items)
{
    std::map<Key, Components> together;
    for (ObjectComponents& part : componentsByObject(items))
        together.emplace(keyOf(part.item, part.numbers), std::move(part.numbers));
    Members result;
    engine::SelectionList others;
    for (const SelectionItem& item : items) {
        if (const auto numbers = numbersOf(item)) {
            if (const auto all = together.extract(keyOf(item, *numbers)))
                addRuns(item, all.mapped(), result);
        } else if (!others.contains(item)) {
            others.add(item);
            result.push_back(item);
        }
    }
    return result;
}

Members common(const Members& items, const Members& others)
{
    return kept(items, others, true, &Components::common);
}

Members without(const Members& items, const Members& others)
{
    return kept(items, others, false, &Components::without);
}

Members flattened(const CommandContext& context, const Members& items)
{
    Members result;
    for (const SelectionItem& item : items) {
        const std::optional<Components> numbers = numbersOf(item);
        if (!numbers) {
            result.push_back(item);
            continue;
        }
        requireListable(context, numbers->count(), item.name());
        SelectionItem one = item;
        for (const Components::Run& run : numbers->runs())
            for (long long i = run.first; i <= run.last; ++i) {
                one.components = numbers->kind() + '[' + std::to_string(i) + ']';
                result.push_back(one);
            }
    }
    return result;
}

std::size_t countFlattened(const Members& items)
{
    std::size_t count = 0;
    for (const SelectionItem& item : items) {
        const std::optional<Components> numbers = numbersOf(item);
        count += numbers ? numbers->count() : 1;
    }
    return count;
}

} // namespace tvxhost::mel
