// Data: names of the data types and copies.
#include "data.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>

namespace tvxhost::engine {

namespace {

struct TypeName
{
    DataType type;
    std::string_view name;
};

constexpr std::array kTypeNames = {
    TypeName{DataType::none, ""},
    TypeName{DataType::numeric, "numeric"},
    TypeName{DataType::string, "string"},
    TypeName{DataType::matrix, "matrix"},
    TypeName{DataType::stringArray, "stringArray"},
    TypeName{DataType::doubleArray, "doubleArray"},
    TypeName{DataType::floatArray, "floatArray"},
    TypeName{DataType::intArray, "Int32Array"},
    TypeName{DataType::pointArray, "pointArray"},
    TypeName{DataType::vectorArray, "vectorArray"},
    TypeName{DataType::matrixArray, "matrixArray"},
    TypeName{DataType::componentList, "componentList"},
    TypeName{DataType::mesh, "mesh"},
    TypeName{DataType::lattice, "lattice"},
    TypeName{DataType::nurbsCurve, "nurbsCurve"},
    TypeName{DataType::nurbsSurface, "nurbsSurface"},
    TypeName{DataType::sphere, "sphere"},
    TypeName{DataType::polyFaces, "polyFaces"},
    TypeName{DataType::attributeAlias, "attributeAlias"},
    TypeName{DataType::plugin, "plugin"},
    TypeName{DataType::registered, "plugin"},
};

} // namespace

const char* dataTypeName(DataType type)
{
    const auto found = std::find_if(kTypeNames.begin(), kTypeNames.end(),
                                    [&](const TypeName& entry) { return entry.type == type; });
    return found->name.data();
}

DataType dataTypeNamed(const std::string& name)
{
    const auto found = std::find_if(kTypeNames.begin(), kTypeNames.end(),
                                    [&](const TypeName& entry) { return entry.name == name; });
    return found == kTypeNames.end() ? DataType::plugin : found->type;
}

Ref<Data> StringData::clone() const
{
    return Ref<Data>(new StringData(value.str()));
}

Ref<Data> MatrixData::clone() const
{
    return Ref<Data>(new MatrixData(value));
}

Ref<Data> NumericData::clone() const
{
    auto* copy = new NumericData(kind, size);
    std::memcpy(copy->bytes, bytes, sizeof bytes);
    return Ref<Data>(copy);
}

Ref<Data> KeptData::clone() const
{
    return Ref<Data>(new KeptData(typeName, text));
}

} // namespace tvxhost::engine
