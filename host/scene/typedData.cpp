// Typed values in scene files; see typedData.h.
#include "typedData.h"

#include "numberText.h"
#include "valueLines.h"
#include "xformMatrix.h"

#include <algorithm>
#include <array>

namespace tvxhost::scene {

using engine::Data;
using engine::DataType;
using engine::Expected;
using engine::Reason;
using engine::Ref;

namespace {

constexpr std::array<std::string_view, 15> kNumericTypes = {
    "float2", "float3", "double2", "double3", "double4", "long2",       "long3",         "short2",
    "short3", "bool",   "float",   "double",  "long",    "reflectance", "reflectanceRGB"};

// One element of each array type, read and written.
void read(Words& words, std::int32_t& value)
{
    value = words.integer();
}
void read(Words& words, float& value)
{
    value = static_cast<float>(words.number());
}
void read(Words& words, double& value)
{
    value = words.number();
}
void read(Words& words, engine::Text& value)
{
    value = engine::Text(words.text());
}
void read(Words& words, engine::Vec3d& value)
{
    for (int i = 0; i < 3; ++i)
        value[i] = words.number();
}
void read(Words& words, engine::Vec4d& value)
{
    for (double* part : {&value.x, &value.y, &value.z, &value.w})
        *part = words.number();
}
void read(Words& words, engine::Matrix& value)
{
    for (double* number = value.getValue(); number != value.getValue() + 16; ++number)
        *number = words.number();
}

// The words of one element, as one text for each place where a line may end.
std::string words(std::int32_t value)
{
    return std::to_string(value);
}
std::string words(double value)
{
    return doubleText(value);
}
std::string words(float value)
{
    return words(static_cast<double>(value));
}
std::string words(const engine::Vec3d& value)
{
    return words(value.x) + ' ' + words(value.y) + ' ' + words(value.z);
}
std::string words(const engine::Vec4d& value)
{
    return words(value.x) + ' ' + words(value.y) + ' ' + words(value.z) + ' ' + words(value.w);
}

/// A line may end behind each row.
void write(ValueLines& out, const engine::Matrix& value)
{
    for (const auto& row : value.x)
        out.add(wholeDoubleText(row[0]) + ' ' + wholeDoubleText(row[1]) + ' ' + wholeDoubleText(row[2]) +
                ' ' + wholeDoubleText(row[3]));
}
template <class T>
void write(ValueLines& out, const T& value)
{
    out.add(words(value));
}

/// What each number of a list of whole numbers counts.
constexpr std::size_t kIntWidth = 7;

/// What there is to know of one type of data that the host understands.
struct TypeRow
{
    std::string_view name;
    DataType type;
    Ref<Data> (*parse)(Words& words);
    /// `out` holds the words of the type; the line ends depend on the attribute's path.
    void (*write)(std::string& out, const Data& data, std::string_view path);
};

template <class ArrayType, std::size_t kWordsEach>
Ref<Data> parseArray(Words& words)
{
    const std::size_t count = words.atEnd() ? 0 : words.count(kWordsEach);
    auto* array = new ArrayType;
    Ref<Data> data(array);
    array->values.resize(count);
    for (auto& value : array->values)
        read(words, value);
    return data;
}

template <class ArrayType>
void writeArray(std::string& out, const Data& data, std::string_view path)
{
    const auto& values = static_cast<const ArrayType&>(data).values;
    ValueLines::Style style;
    style.leads = true;
    const std::string count = ' ' + std::to_string(values.size());
    std::size_t before = widthBefore(path, out) + count.size();
    if (data.type() == DataType::intArray) {
        style.flatWidth = kIntWidth;
        before = countBefore(path, true);
    }
    ValueLines lines(style, before);
    for (const auto& value : values)
        write(lines, value);
    out += count + lines.text() + ' ';
}

/// Lists of names end in two blanks, and stay on one line.
template <class ArrayType>
void writeNames(std::string& out, const Data& data, std::string_view)
{
    const auto& names = static_cast<const ArrayType&>(data).values;
    out += ' ' + std::to_string(names.size());
    for (const engine::Text& name : names)
        out += ' ' + mel::quoted(name.str());
    if (data.type() == DataType::stringArray)
        out += "  ";
}

Ref<Data> parseString(Words& words)
{
    return Ref<Data>(new engine::StringData(words.takeText()));
}

void writeString(std::string& out, const Data& data, std::string_view)
{
    out += ' ' + mel::quoted(static_cast<const engine::StringData&>(data).value.str());
}

Ref<Data> parseMatrix(Words& words)
{
    engine::Matrix matrix;
    if (words.peek() == kXformWord) {
        words.skip();
        matrix = parseXformMatrix(words);
    } else {
        read(words, matrix);
    }
    return Ref<Data>(new engine::MatrixData(matrix));
}

void writeMatrix(std::string& out, const Data& data, std::string_view path)
{
    ValueLines::Style style;
    style.leads = true;
    ValueLines lines(style, countBefore(path, false, out));
    write(lines, static_cast<const engine::MatrixData&>(data).value);
    out += lines.text();
}

template <class ArrayType, std::size_t kWordsEach>
constexpr TypeRow arrayRow(std::string_view name, DataType type)
{
    return {name, type, parseArray<ArrayType, kWordsEach>, writeArray<ArrayType>};
}

template <class ArrayType>
constexpr TypeRow namesRow(std::string_view name, DataType type)
{
    return {name, type, parseArray<ArrayType, 1>, writeNames<ArrayType>};
}

constexpr TypeRow kTypes[] = {
    {"string", DataType::string, parseString, writeString},
    {"matrix", DataType::matrix, parseMatrix, writeMatrix},
    namesRow<engine::StringArrayData>("stringArray", DataType::stringArray),
    namesRow<engine::ComponentListData>("componentList", DataType::componentList),
    arrayRow<engine::IntArrayData, 1>("Int32Array", DataType::intArray),
    arrayRow<engine::FloatArrayData, 1>("floatArray", DataType::floatArray),
    arrayRow<engine::DoubleArrayData, 1>("doubleArray", DataType::doubleArray),
    arrayRow<engine::VectorArrayData, 3>("vectorArray", DataType::vectorArray),
    arrayRow<engine::PointArrayData, 4>("pointArray", DataType::pointArray),
    arrayRow<engine::MatrixArrayData, 16>("matrixArray", DataType::matrixArray),
};

const TypeRow* typeNamed(std::string_view name)
{
    const auto* row = std::find_if(std::begin(kTypes), std::end(kTypes),
                                   [&](const TypeRow& candidate) { return candidate.name == name; });
    return row == std::end(kTypes) ? nullptr : row;
}

std::string typeAsWritten(std::string_view name)
{
    return " -type \"" + std::string(name) + '"';
}

} // namespace

bool isNumericTypeName(std::string_view typeName)
{
    return std::find(kNumericTypes.begin(), kNumericTypes.end(), typeName) != kNumericTypes.end();
}

bool isKnownDataType(std::string_view typeName)
{
    return typeNamed(typeName) != nullptr;
}

Expected<Ref<Data>> parseData(std::string_view typeName, Words& words)
{
    const TypeRow* row = typeNamed(typeName);
    if (!row)
        return Ref<Data>(new engine::KeptData(std::string(typeName), " " + words.rest()));
    Ref<Data> data = row->parse(words);
    if (words.failed() || !words.atEnd())
        return {Reason::typeMismatch, "Error reading the values of type '" + std::string(typeName) + "'"};
    return data;
}

std::string dataWords(const Data& data, std::string_view path)
{
    if (data.type() == DataType::plugin) {
        const auto& kept = static_cast<const engine::KeptData&>(data);
        return typeAsWritten(kept.typeName) + kept.text;
    }
    const auto* row = std::find_if(std::begin(kTypes), std::end(kTypes),
                                   [&](const TypeRow& candidate) { return candidate.type == data.type(); });
    if (row == std::end(kTypes))
        return {};
    std::string text = typeAsWritten(row->name);
    row->write(text, data, path);
    return text;
}

} // namespace tvxhost::scene
