// Kinds of numbers and data: the engine's names for them and the API's.
#include "valueTypes.h"

namespace tvxhost::api {

namespace {

using engine::DataType;
using engine::NumberKind;

struct NumericRow
{
    MFnNumericData::Type type;
    NumberKind kind;
    int count;
};

constexpr NumericRow kNumericRows[] = {
    {MFnNumericData::kBoolean, NumberKind::boolean, 1},
    {MFnNumericData::kByte, NumberKind::byte, 1},
    {MFnNumericData::kChar, NumberKind::character, 1},
    {MFnNumericData::kShort, NumberKind::shortInteger, 1},
    {MFnNumericData::k2Short, NumberKind::shortInteger, 2},
    {MFnNumericData::k3Short, NumberKind::shortInteger, 3},
    {MFnNumericData::kInt, NumberKind::integer, 1},
    {MFnNumericData::k2Int, NumberKind::integer, 2},
    {MFnNumericData::k3Int, NumberKind::integer, 3},
    {MFnNumericData::kInt64, NumberKind::int64, 1},
    {MFnNumericData::kFloat, NumberKind::single, 1},
    {MFnNumericData::k2Float, NumberKind::single, 2},
    {MFnNumericData::k3Float, NumberKind::single, 3},
    {MFnNumericData::kDouble, NumberKind::real, 1},
    {MFnNumericData::k2Double, NumberKind::real, 2},
    {MFnNumericData::k3Double, NumberKind::real, 3},
    {MFnNumericData::k4Double, NumberKind::real, 4},
};

struct DataRow
{
    MFnData::Type type;
    DataType data;
};

constexpr DataRow kDataRows[] = {
    {MFnData::kNumeric, DataType::numeric},
    {MFnData::kPlugin, DataType::plugin},
    {MFnData::kPlugin, DataType::registered},
    {MFnData::kString, DataType::string},
    {MFnData::kMatrix, DataType::matrix},
    {MFnData::kStringArray, DataType::stringArray},
    {MFnData::kDoubleArray, DataType::doubleArray},
    {MFnData::kFloatArray, DataType::floatArray},
    {MFnData::kIntArray, DataType::intArray},
    {MFnData::kPointArray, DataType::pointArray},
    {MFnData::kVectorArray, DataType::vectorArray},
    {MFnData::kMatrixArray, DataType::matrixArray},
    {MFnData::kComponentList, DataType::componentList},
    {MFnData::kMesh, DataType::mesh},
    {MFnData::kLattice, DataType::lattice},
    {MFnData::kNurbsCurve, DataType::nurbsCurve},
    {MFnData::kNurbsSurface, DataType::nurbsSurface},
    {MFnData::kSphere, DataType::sphere},
};

} // namespace

NumberShape numberShapeOf(MFnNumericData::Type type)
{
    for (const NumericRow& row : kNumericRows)
        if (row.type == type)
            return {row.kind, row.count};
    return {};
}

MFnNumericData::Type numericTypeOf(NumberKind kind, std::size_t count)
{
    for (const NumericRow& row : kNumericRows)
        if (row.kind == kind && row.count == static_cast<int>(count))
            return row.type;
    return MFnNumericData::kInvalid;
}

MFnNumericData::Type numericTypeOf(const engine::Attribute& attribute)
{
    const bool isNumeric = attribute.kind == engine::AttributeKind::numeric ||
                           attribute.kind == engine::AttributeKind::enumeration;
    if (!isNumeric)
        return MFnNumericData::kInvalid;
    return numericTypeOf(attribute.number, attribute.children.empty() ? 1 : attribute.children.size());
}

DataType dataTypeOf(MFnData::Type type)
{
    for (const DataRow& row : kDataRows)
        if (row.type == type)
            return row.data;
    return DataType::none;
}

MFnData::Type dataTypeOf(DataType type)
{
    for (const DataRow& row : kDataRows)
        if (row.data == type)
            return row.type;
    return MFnData::kInvalid;
}

} // namespace tvxhost::api
