// Data: the objects that typed attributes hold: strings, matrices, arrays, meshes, and values kept as text.
#pragma once

#include "object.h"
#include "text.h"

#include <Imath/ImathMatrix.h>
#include <Imath/ImathVec.h>

#include <cstdint>
#include <string>
#include <vector>

namespace tvxhost::engine {

using Vec3d = Imath::V3d;
using Vec3f = Imath::V3f;
using Matrix = Imath::M44d;

struct Vec4d
{
    double x = 0, y = 0, z = 0, w = 1;
};

/// The type of a typed attribute, under the name that `-dataType` uses.
enum class DataType : std::uint8_t
{
    none,
    numeric, ///< a group of numbers carried as an object
    string,
    matrix,
    stringArray,
    doubleArray,
    floatArray,
    intArray, ///< "Int32Array"
    pointArray,
    vectorArray,
    matrixArray,
    componentList,
    mesh,
    lattice,
    nurbsCurve,
    nurbsSurface,
    sphere,
    polyFaces,
    attributeAlias,
    plugin,     ///< a plug-in's own, or any type that the host only keeps
    registered, ///< data that a plug-in made itself (PluginData); its attributes are of `plugin`
};

/// The name of a data type in MEL ("string", "Int32Array" …); for `plugin` the attribute knows better.
const char* dataTypeName(DataType type);
/// The type of that MEL name; `plugin` for names that are only kept.
DataType dataTypeNamed(const std::string& name);

/// A piece of data. Counted: a plug and every handle share the same object; nothing is copied unless asked.
class Data : public Object
{
public:
    DataType type() const { return m_type; }
    virtual Ref<Data> clone() const = 0;

protected:
    explicit Data(DataType type) : Object(ObjectClass::data), m_type(type) {}

private:
    DataType m_type;
};

class StringData final : public Data
{
public:
    explicit StringData(std::string text = {}) : Data(DataType::string), value(std::move(text)) {}
    Ref<Data> clone() const override;
    Text value;
};

class MatrixData final : public Data
{
public:
    explicit MatrixData(const Matrix& m = Matrix()) : Data(DataType::matrix), value(m) {}
    Ref<Data> clone() const override;
    Matrix value; ///< row vectors: p' = p * M, translation in row 3
};

/// An array of equal elements.
template <class T, DataType kType>
class ArrayData final : public Data
{
public:
    ArrayData() : Data(kType) {}
    explicit ArrayData(std::vector<T> elements) : Data(kType), values(std::move(elements)) {}
    Ref<Data> clone() const override { return Ref<Data>(new ArrayData(values)); }
    std::vector<T> values;
};

using IntArrayData = ArrayData<std::int32_t, DataType::intArray>;
using FloatArrayData = ArrayData<float, DataType::floatArray>;
using DoubleArrayData = ArrayData<double, DataType::doubleArray>;
using VectorArrayData = ArrayData<Vec3d, DataType::vectorArray>;
using PointArrayData = ArrayData<Vec4d, DataType::pointArray>;
using MatrixArrayData = ArrayData<Matrix, DataType::matrixArray>;
using StringArrayData = ArrayData<Text, DataType::stringArray>;
using ComponentListData = ArrayData<Text, DataType::componentList>;

/// Two to four numbers carried as one object (the value of a number group read as an object).
class NumericData final : public Data
{
public:
    NumericData(int numberKind, int count) : Data(DataType::numeric), kind(numberKind), size(count) {}
    Ref<Data> clone() const override;
    int kind;                               ///< a NumberKind
    int size;                               ///< 1 to 4
    alignas(8) std::uint8_t bytes[32] = {}; ///< the numbers side by side, each of its kind's size
};

/// A value that the host does not understand, kept as the words it was written with, so that it can be saved
/// again.
class KeptData final : public Data
{
public:
    KeptData(std::string name, std::string words)
        : Data(DataType::plugin), typeName(std::move(name)), text(std::move(words))
    {
    }
    Ref<Data> clone() const override;
    std::string typeName; ///< as in `setAttr -type`
    std::string text;     ///< the rest of the statement, as it stood
};

} // namespace tvxhost::engine
