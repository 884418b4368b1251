// Plugs: reading and writing values, with every refusal; elements. Their states are in plugStates.cpp.
#include "plug.h"

#include "cell.h"
#include "dirtySpread.h"
#include "node.h"
#include "number.h"
#include "observers.h"
#include "pluginData.h"
#include "scene.h"
#include "valueEdits.h"
#include "values.h"

#include <algorithm>

namespace tvxhost::engine {

namespace {

Outcome checkAlive(const Plug& plug)
{
    if (plug.isNull())
        return {Reason::nullArgument, "the plug is null"};
    if (!plug.isValid())
        return {Reason::doesNotExist, "the node is gone or has no such attribute"};
    return {};
}

Outcome wrongKind(const Plug& plug, const char* wanted)
{
    return {Reason::wrongKind, "'" + plug.name() + "' does not hold " + wanted};
}

bool holdsData(const Attribute& attribute)
{
    return attribute.kind == AttributeKind::typed || attribute.kind == AttributeKind::matrix ||
           attribute.kind == AttributeKind::generic;
}

bool isFedAtOrAbove(const Plug& plug)
{
    const CellStore& cells = plug.node()->cells();
    for (const Cell* cell = cells.findNearest(plug); cell; cell = cell->parent())
        if (cell->source())
            return true;
    return false;
}

/// What every setter refuses, the value itself aside.
Outcome checkSettable(const Plug& plug)
{
    if (Outcome outcome = checkAlive(plug); !outcome)
        return outcome;
    const AttributeFlags& flags = plug.attribute()->flags;
    if (!flags.writable && !flags.internal)
        return {Reason::notWritable, "The attribute '" + plug.name() + "' cannot be set"};
    if (lacksIndex(plug))
        return {Reason::badIndex, "'" + plug.name() + "' lacks an index"};
    if (isLocked(plug) || isFedAtOrAbove(plug))
        return {Reason::lockedOrConnected,
                "The attribute '" + plug.name() + "' is locked or connected and cannot be modified."};
    return {};
}

struct Range
{
    std::optional<double> minimum, maximum;
};

Range rangeOf(const Attribute& attribute)
{
    if (attribute.kind != AttributeKind::enumeration || attribute.fields.empty())
        return {attribute.minimum, attribute.maximum};
    const auto [least, most] =
        std::minmax_element(attribute.fields.begin(), attribute.fields.end(),
                            [](const EnumField& a, const EnumField& b) { return a.value < b.value; });
    return {least->value, most->value};
}

Outcome pastLimit(Reason reason, const Plug& plug, const char* which, double limit)
{
    char number[32];
    std::snprintf(number, sizeof number, "%.15g", limit);
    return {reason,
            "Cannot set the attribute '" + plug.name() + "' past its " + which + " value of " + number + "."};
}

/// The value to store for a leaf, or why it is refused.
Expected<Number> withinLimits(const Plug& leaf, const Number& value, Limits limits)
{
    const Range range = rangeOf(*leaf.attribute());
    if (limits == Limits::ignore || (!range.minimum && !range.maximum))
        return value;
    if (range.minimum && value.asReal() < *range.minimum) {
        if (limits == Limits::clamp)
            return Number(*range.minimum);
        return pastLimit(Reason::pastMinimum, leaf, "minimum", *range.minimum);
    }
    if (range.maximum && value.asReal() > *range.maximum) {
        if (limits == Limits::clamp)
            return Number(*range.maximum);
        return pastLimit(Reason::pastMaximum, leaf, "maximum", *range.maximum);
    }
    return value;
}

/// Ends every change of a value: it is up to date now, and what hangs on it is not any more.
void finishWrite(const Plug& plug)
{
    if (Cell* cell = plug.node()->cells().find(plug))
        markClean(*cell);
    spreadDirty(plug);
    plug.node()->scene().isModified = true;
    // What is computed is told when it is evaluated.
    if (!plug.node()->isOutput(*plug.attribute()))
        plug.node()->scene().observers().tell({Happening::valueSet, plug.node(), nullptr, &plug});
}

Outcome writeMatrixNumbers(const Plug& plug, const std::vector<double>& values)
{
    Matrix matrix;
    std::copy(values.begin(), values.end(), matrix.getValue());
    keepData(plug, Ref<Data>(new MatrixData(matrix)));
    finishWrite(plug);
    return {};
}

Outcome countMismatch(const Plug& plug, std::size_t wanted, std::size_t given)
{
    return {Reason::typeMismatch, "'" + plug.name() + "' takes " + std::to_string(wanted) + " numbers, not " +
                                      std::to_string(given)};
}

bool isDataOf(const Attribute& attribute, const Data& data)
{
    const DataType type = data.type();
    if (type == DataType::registered)
        return takesPluginData(attribute, static_cast<const PluginData&>(data).dataType().name);
    switch (attribute.kind) {
    case AttributeKind::matrix:
        return type == DataType::matrix || type == DataType::plugin;
    case AttributeKind::generic:
        return (attribute.acceptedData.empty() && attribute.acceptedPluginData.empty()) ||
               type == DataType::plugin ||
               std::find(attribute.acceptedData.begin(), attribute.acceptedData.end(), type) !=
                   attribute.acceptedData.end();
    case AttributeKind::typed:
        // What the host only keeps fits wherever a file put it.
        return type == attribute.dataType || type == DataType::plugin;
    default:
        return false;
    }
}

Ref<Data> numericDataOf(const Plug& plug)
{
    const Attribute& attribute = *plug.attribute();
    auto* data =
        new NumericData(static_cast<int>(attribute.number), static_cast<int>(attribute.children.size()));
    const std::size_t each = sizeOf(attribute.number);
    for (std::size_t i = 0; i < attribute.children.size(); ++i)
        storeNumber(attribute.number, data->bytes + i * each, storedNumber(plug.child(i)));
    return Ref<Data>(data);
}

} // namespace

// Reading

Expected<Number> readNumber(const Plug& plug)
{
    if (Outcome outcome = checkAlive(plug); !outcome)
        return outcome;
    if (!isNumberLeaf(*plug.attribute()) || plug.isArray())
        return wrongKind(plug, "a number");
    Expected<Number> result(evaluate(plug));
    result.value = storedNumber(plug);
    return result;
}

Expected<std::vector<double>> readNumbers(const Plug& plug)
{
    if (Outcome outcome = checkAlive(plug); !outcome)
        return outcome;
    if (plug.isArray())
        return wrongKind(plug, "numbers");
    Expected<std::vector<double>> result(evaluate(plug));
    if (plug.attribute()->kind == AttributeKind::matrix || plug.attribute()->kind == AttributeKind::typed) {
        const Ref<Data> data = storedData(plug);
        const bool isMatrix = data && data->type() == DataType::matrix;
        if (!isMatrix && plug.attribute()->kind == AttributeKind::typed)
            return wrongKind(plug, "numbers");
        const Matrix matrix = isMatrix ? static_cast<const MatrixData&>(*data).value : Matrix();
        result.value.assign(matrix.getValue(), matrix.getValue() + 16);
        return result;
    }
    for (const Plug& leaf : leavesOf(plug)) {
        if (!isNumberLeaf(*leaf.attribute()))
            return wrongKind(plug, "numbers only");
        result.value.push_back(storedNumber(leaf).asReal());
    }
    return result;
}

Expected<std::string> readString(const Plug& plug)
{
    if (Outcome outcome = checkAlive(plug); !outcome)
        return outcome;
    const Attribute& attribute = *plug.attribute();
    if (!holdsData(attribute) || plug.isArray() ||
        (attribute.kind == AttributeKind::typed && attribute.dataType != DataType::string))
        return wrongKind(plug, "a string");
    Expected<std::string> result(evaluate(plug));
    const Ref<Data> data = storedData(plug);
    if (data && data->type() == DataType::string)
        result.value = static_cast<const StringData&>(*data).value.str();
    else if (data)
        return wrongKind(plug, "a string");
    return result;
}

Expected<Ref<Data>> readData(const Plug& plug)
{
    if (Outcome outcome = checkAlive(plug); !outcome)
        return outcome;
    const Attribute& attribute = *plug.attribute();
    const bool isGroup = attribute.isNumberGroup();
    if (plug.isArray() || (!isGroup && !holdsData(attribute)))
        return wrongKind(plug, "data");
    Expected<Ref<Data>> result(evaluate(plug));
    result.value = isGroup ? numericDataOf(plug) : storedData(plug);
    if (!result.value && result)
        return {Reason::noData, "'" + plug.name() + "' holds no data"};
    return result;
}

// Writing

void storeInternal(const Plug& plug, const Number& value)
{
    keepNumber(plug, value);
    finishWrite(plug);
}

void storeInternal(const Plug& plug, Ref<Data> data)
{
    keepData(plug, std::move(data));
    finishWrite(plug);
}

Outcome writeNumber(const Plug& plug, const Number& value, Limits limits)
{
    if (Outcome outcome = checkSettable(plug); !outcome)
        return outcome;
    if (!isNumberLeaf(*plug.attribute()) || plug.isArray())
        return {Reason::typeMismatch, "'" + plug.name() + "' is not a number"};
    const Expected<Number> accepted = withinLimits(plug, value, limits);
    if (!accepted)
        return accepted.outcome;
    storeInternal(plug, accepted.value);
    return {};
}

Outcome writeNumbers(const Plug& plug, const std::vector<double>& values, Limits limits)
{
    if (Outcome outcome = checkSettable(plug); !outcome)
        return outcome;
    if (plug.isArray())
        return {Reason::typeMismatch, "'" + plug.name() + "' is an array"};
    const Attribute& attribute = *plug.attribute();
    const bool isMatrix = attribute.kind == AttributeKind::matrix ||
                          (attribute.kind == AttributeKind::typed && attribute.dataType == DataType::matrix);
    if (isMatrix)
        return values.size() == 16 ? writeMatrixNumbers(plug, values)
                                   : countMismatch(plug, 16, values.size());

    const std::vector<Plug> leaves = leavesOf(plug);
    if (leaves.size() != values.size())
        return countMismatch(plug, leaves.size(), values.size());
    std::vector<Number> accepted;
    for (std::size_t i = 0; i < leaves.size(); ++i) {
        if (!isNumberLeaf(*leaves[i].attribute()))
            return {Reason::typeMismatch, "'" + leaves[i].name() + "' is not a number"};
        if (Outcome outcome = checkSettable(leaves[i]); !outcome)
            return outcome;
        const Expected<Number> number = withinLimits(leaves[i], Number(values[i]), limits);
        if (!number)
            return number.outcome;
        accepted.push_back(number.value);
    }
    for (std::size_t i = 0; i < leaves.size(); ++i)
        keepNumber(leaves[i], accepted[i]);
    finishWrite(plug);
    return {};
}

Outcome writeElements(const Plug& arrayPlug, int first, const double* values, std::size_t count)
{
    if (Outcome outcome = checkSettable(arrayPlug); !outcome)
        return outcome;
    const Attribute& attribute = *arrayPlug.attribute();
    const std::size_t each = numberBytes(attribute) / std::max<std::size_t>(1, sizeOf(attribute.number));
    if (!arrayPlug.isArray() || each == 0)
        return {Reason::typeMismatch, "'" + arrayPlug.name() + "' is no array of numbers"};
    if (first < 0)
        return {Reason::badIndex, "an index below zero"};
    if (count % each != 0)
        return countMismatch(arrayPlug, (count / each + 1) * each, count);

    Cell& array = *arrayPlug.node()->cells().make(arrayPlug);
    const bool canPack = !arrayPlug.node()->isOutput(attribute) && array.linkedCells() == 0 &&
                         array.below().empty() && !attribute.minimum && !attribute.maximum;
    if (!canPack) {
        for (std::size_t i = 0; i < count / each; ++i)
            if (Outcome outcome = writeNumbers(arrayPlug.element(first + static_cast<int>(i)),
                                               {values + i * each, values + (i + 1) * each});
                !outcome)
                return outcome;
        return {};
    }
    rememberPacked(arrayPlug);
    PackedElements& packed = *array.packedFor(first);
    const std::size_t size = sizeOf(attribute.number);
    for (std::size_t i = 0; i < count / each; ++i) {
        bool isFresh = false;
        std::uint8_t* bytes = packed.makeBytes(first + static_cast<int>(i), isFresh);
        for (std::size_t k = 0; k < each; ++k)
            storeNumber(attribute.number, bytes + k * size, Number(values[i * each + k]));
    }
    ++arrayPlug.node()->cells().edits;
    finishWrite(arrayPlug);
    return {};
}

Outcome writeString(const Plug& plug, const std::string& value)
{
    return writeData(plug, StringData(value));
}

namespace {

Outcome checkTakesData(const Plug& plug, const Data& data)
{
    if (Outcome outcome = checkSettable(plug); !outcome)
        return outcome;
    if (plug.isArray())
        return {Reason::typeMismatch, "'" + plug.name() + "' is an array"};
    const bool isGroup = plug.attribute()->isNumberGroup() && data.type() == DataType::numeric;
    if (!isGroup && !isDataOf(*plug.attribute(), data))
        return {Reason::typeMismatch, "'" + plug.name() + "' does not take data of this type"};
    return {};
}

Outcome writeNumericData(const Plug& plug, const NumericData& numeric)
{
    const auto kind = static_cast<NumberKind>(numeric.kind);
    std::vector<double> values;
    for (int i = 0; i < numeric.size; ++i)
        values.push_back(
            loadNumber(kind, numeric.bytes + static_cast<std::size_t>(i) * sizeOf(kind)).asReal());
    return writeNumbers(plug, values);
}

} // namespace

Outcome writeData(const Plug& plug, const Data& data)
{
    if (Outcome outcome = checkTakesData(plug, data); !outcome)
        return outcome;
    if (plug.attribute()->isNumberGroup())
        return writeNumericData(plug, static_cast<const NumericData&>(data));
    storeInternal(plug, data.clone());
    return {};
}

Outcome giveData(const Plug& plug, Ref<Data> data)
{
    if (Outcome outcome = checkTakesData(plug, *data); !outcome)
        return outcome;
    if (plug.attribute()->isNumberGroup())
        return writeNumericData(plug, static_cast<const NumericData&>(*data));
    storeInternal(plug, std::move(data));
    return {};
}

// Elements

std::vector<int> existingElements(const Plug& arrayPlug)
{
    if (!arrayPlug.isValid() || !arrayPlug.isArray())
        return {};
    const Cell* cell = arrayPlug.node()->cells().find(arrayPlug);
    if (!cell)
        return {};
    std::vector<int> indices;
    for (const std::unique_ptr<Cell>& element : cell->below())
        if (element)
            indices.push_back(element->index());
    if (!cell->packed())
        return indices;
    std::vector<int> all;
    const std::vector<int>& packed = cell->packed()->indices();
    std::set_union(indices.begin(), indices.end(), packed.begin(), packed.end(), std::back_inserter(all));
    return all;
}

Outcome removeElement(const Plug& arrayPlug, int logicalIndex)
{
    if (Outcome outcome = checkAlive(arrayPlug); !outcome)
        return outcome;
    const Plug element = arrayPlug.element(logicalIndex);
    Node& node = *arrayPlug.node();
    Cell* array = node.cells().find(arrayPlug);
    if (element.isNull() || !array ||
        (!array->findElement(logicalIndex) && !(array->packed() && array->packed()->has(logicalIndex))))
        return {Reason::badIndex, "there is no such element"};
    if (isLocked(element))
        return {Reason::lockedOrConnected, "'" + element.name() + "' is locked"};

    if (const Cell* cell = array->findElement(logicalIndex); cell && cell->linkedCells() > 0)
        for (const Plug& plug : connectedPlugs(node)) {
            if (!plug.isAtOrBelow(element))
                continue;
            if (const Plug source = sourceOf(plug); !source.isNull())
                node.scene().breakConnection(source, plug);
            for (const Plug& destination : destinationsOf(plug))
                node.scene().breakConnection(plug, destination);
        }
    if (node.scene().journal().isRecording())
        array->makeElement(logicalIndex); // packed values cannot be kept one by one
    auto removal = std::make_unique<ElementRemoval>(element);
    removal->redo();
    node.scene().journal().record(std::move(removal));
    return {};
}

} // namespace tvxhost::engine
