// Arrays: size, order, search, insertion, removal.
#include "language.h"

#include <algorithm>
#include <type_traits>
#include <unordered_set>

namespace tvxhost::mel {

namespace {

using Arguments = std::vector<Value>;

Value size(CommandContext&, Arguments& arguments)
{
    const Value& value = arguments[0];
    return static_cast<int>(value.type() == Type::string ? value.string().size() : value.size());
}

/// Calls `function` with the vector of the array's elements.
template <class Function>
auto onElements(const Value& array, Function function)
{
    switch (array.type()) {
    case Type::integerArray:
        return function(array.integers());
    case Type::numberArray:
        return function(array.numbers());
    case Type::stringArray:
        return function(array.strings());
    default:
        return function(array.vectors());
    }
}

Value clear(CommandContext&, Arguments& arguments)
{
    onElements(arguments[0], [](auto& elements) { elements.clear(); });
    return {};
}

/// Vectors are ordered by their length.
bool isLess(const Vector& left, const Vector& right)
{
    return left.length2() < right.length2();
}
template <class T>
bool isLess(const T& left, const T& right)
{
    return left < right;
}

Value sort(CommandContext&, Arguments& arguments)
{
    const Value result = arguments[0].detached();
    onElements(result, [](auto& elements) {
        using Element = typename std::decay_t<decltype(elements)>::value_type;
        std::stable_sort(elements.begin(), elements.end(),
                         [](const Element& left, const Element& right) { return isLess(left, right); });
    });
    return result;
}

/// The operations that exist for every type of element, under names that begin with the type's.
template <class Elements>
struct Family
{
    using Element = typename Elements::value_type;

    static Elements& array(const Value& value)
    {
        if constexpr (std::is_same_v<Elements, Value::Integers>) {
            return value.integers();
        } else if constexpr (std::is_same_v<Elements, Value::Numbers>) {
            return value.numbers();
        } else {
            return value.strings();
        }
    }

    static Element element(const Value& value)
    {
        if constexpr (std::is_same_v<Element, int>) {
            return value.toInteger();
        } else if constexpr (std::is_same_v<Element, double>) {
            return value.toNumber();
        } else {
            return value.toString();
        }
    }

    static Value count(CommandContext&, Arguments& arguments)
    {
        const Elements& elements = array(arguments[1]);
        return static_cast<int>(std::count(elements.begin(), elements.end(), element(arguments[0])));
    }

    static Value contains(CommandContext& context, Arguments& arguments)
    {
        return count(context, arguments).integer() > 0;
    }

    /// `Find ITEM START ARRAY`: the place of the next such element, -1 when there is none.
    static Value find(CommandContext&, Arguments& arguments)
    {
        const Elements& elements = array(arguments[2]);
        const auto start = static_cast<std::size_t>(std::max(arguments[1].integer(), 0));
        const auto from = elements.begin() + static_cast<std::ptrdiff_t>(std::min(start, elements.size()));
        const auto found = std::find(from, elements.end(), element(arguments[0]));
        return found == elements.end() ? -1 : static_cast<int>(found - elements.begin());
    }

    /// `Append ARRAY ITEM`: changes the array and gives the number of its elements.
    static Value append(CommandContext&, Arguments& arguments)
    {
        array(arguments[0]).push_back(element(arguments[1]));
        return static_cast<int>(arguments[0].size());
    }

    /// `InsertAtIndex INDEX ARRAY ITEM`: changes the array; false when there is no such place.
    static Value insertAtIndex(CommandContext&, Arguments& arguments)
    {
        Elements& elements = array(arguments[1]);
        const int index = arguments[0].integer();
        if (index < 0 || static_cast<std::size_t>(index) > elements.size()) {
            return false;
        }
        elements.insert(elements.begin() + index, element(arguments[2]));
        return true;
    }

    /// `RemoveAtIndex INDEX ARRAY`: changes the array; false when there is no such element.
    static Value removeAtIndex(CommandContext&, Arguments& arguments)
    {
        Elements& elements = array(arguments[1]);
        const int index = arguments[0].integer();
        if (index < 0 || static_cast<std::size_t>(index) >= elements.size()) {
            return false;
        }
        elements.erase(elements.begin() + index);
        return true;
    }

    /// `Remove UNWANTED ARRAY`: a copy without the unwanted elements.
    static Value remove(CommandContext&, Arguments& arguments)
    {
        const Elements& unwanted = array(arguments[0]);
        Elements kept;
        std::copy_if(array(arguments[1]).begin(), array(arguments[1]).end(), std::back_inserter(kept),
                     [&unwanted](const Element& candidate) {
                         return std::find(unwanted.begin(), unwanted.end(), candidate) == unwanted.end();
                     });
        return kept;
    }

    /// `ToString ARRAY SEPARATOR`
    static Value toString(CommandContext&, Arguments& arguments)
    {
        std::string text;
        for (std::size_t i = 0; i < arguments[0].size(); ++i) {
            text += (i == 0 ? "" : arguments[1].string()) + arguments[0].element(i).toString();
        }
        return text;
    }

    static void add(CommandTable& table, const std::string& type, Parameter item, Parameter items)
    {
        const std::string prefix = type + "Array";
        table.add({
            function(prefix + "Count", "How often the item is in the array", {item, items}, count),
            function(prefix + "Contains", "Whether the item is in the array", {item, items}, contains),
            function(prefix + "Find", "Where the item is in the array, from a place on; -1: nowhere",
                     {item, kInt, items}, find),
            function(prefix + "Append", "Adds an item at the end; the new number of elements", {items, item},
                     append),
            function(prefix + "InsertAtIndex", "Puts an item in a place; whether there is such a place",
                     {kInt, items, item}, insertAtIndex),
            function(prefix + "RemoveAtIndex", "Takes out the item at a place; whether there is one",
                     {kInt, items}, removeAtIndex),
            function(prefix + "Remove", "The second array without the items of the first", {items, items},
                     remove),
            function(prefix + "ToString", "The elements joined by a separator", {items, kString}, toString),
        });
    }
};

/// The elements without those that stood before, first ones kept.
Value removeDuplicates(CommandContext&, Arguments& arguments)
{
    std::unordered_set<std::string> seen;
    Value::Strings kept;
    std::copy_if(arguments[0].strings().begin(), arguments[0].strings().end(), std::back_inserter(kept),
                 [&seen](const std::string& element) { return seen.insert(element).second; });
    return kept;
}

Value catenate(CommandContext&, Arguments& arguments)
{
    Value::Strings all = arguments[0].strings();
    all.insert(all.end(), arguments[1].strings().begin(), arguments[1].strings().end());
    return all;
}

/// `appendStringArray TO FROM COUNT`: the first COUNT elements go to the end of the first array.
Value appendStringArray(CommandContext&, Arguments& arguments)
{
    // A copy: both may be the same array.
    const Value::Strings from = arguments[1].strings();
    const auto count = std::min(static_cast<std::size_t>(std::max(arguments[2].integer(), 0)), from.size());
    Value::Strings& to = arguments[0].strings();
    to.insert(to.end(), from.begin(), from.begin() + static_cast<std::ptrdiff_t>(count));
    return {};
}

/// `stringArrayRemoveExact UNWANTED ARRAY`: each unwanted element takes one of the array away.
Value removeExact(CommandContext&, Arguments& arguments)
{
    Value::Strings kept = arguments[1].strings();
    for (const std::string& unwanted : arguments[0].strings()) {
        if (const auto found = std::find(kept.begin(), kept.end(), unwanted); found != kept.end()) {
            kept.erase(found);
        }
    }
    return kept;
}

Value addPrefix(CommandContext&, Arguments& arguments)
{
    Value::Strings changed = arguments[0].strings();
    for (std::string& element : changed) {
        element.insert(0, arguments[1].string());
    }
    return changed;
}

Value removePrefix(CommandContext&, Arguments& arguments)
{
    const std::string& prefix = arguments[1].string();
    Value::Strings changed = arguments[0].strings();
    for (std::string& element : changed) {
        if (element.compare(0, prefix.size(), prefix) == 0) {
            element.erase(0, prefix.size());
        }
    }
    return changed;
}

} // namespace

void addArrayCommands(CommandTable& table)
{
    table.add({
        function("size", "The number of elements of an array, or of characters of a text", {kAny}, size),
        function("clear", "Empties an array", {kAnyArray}, clear),
        function("sort", "A sorted copy of an array", {kAnyArray}, sort),
        function("stringArrayRemoveDuplicates", "The elements, each once", {kStringArray}, removeDuplicates),
        function("stringArrayCatenate", "The elements of both arrays", {kStringArray, kStringArray},
                 catenate),
        function("stringArrayRemoveExact", "The second array with one element less for each of the first",
                 {kStringArray, kStringArray}, removeExact),
        function("stringArrayAddPrefix", "The elements with a text before each", {kStringArray, kString},
                 addPrefix),
        function("stringArrayRemovePrefix", "The elements without a text that some begin with",
                 {kStringArray, kString}, removePrefix),
        function("appendStringArray", "Adds the first elements of the second array to the first one",
                 {kStringArray, kStringArray, kInt}, appendStringArray),
    });
    Family<Value::Strings>::add(table, "string", kString, kStringArray);
    Family<Value::Integers>::add(table, "int", kInt, kIntArray);
    Family<Value::Numbers>::add(table, "float", kFloat, kFloatArray);
}

} // namespace tvxhost::mel
