// MFnMatrixAttribute: attributes that hold a matrix.
#include <maya/MFloatMatrix.h>
#include <maya/MFnMatrixAttribute.h>
#include <maya/MMatrix.h>

#include "support/attributeSets.h"

using namespace tvxhost::api;
using tvxhost::engine::Attribute;
using tvxhost::engine::AttributeKind;
using tvxhost::engine::Matrix;
using tvxhost::engine::MatrixData;
using tvxhost::engine::Ref;

namespace {

template <class ApiMatrix>
MStatus getDefaultOf(const MFnBase& set, ApiMatrix& matrix)
{
    TVX_API_CALL("MFnMatrixAttribute::getDefault");
    const Attribute* attribute = attributeOf(set);
    if (!attribute)
        return notAttached();
    const auto* data = static_cast<const MatrixData*>(attribute->defaultData.get());
    const Matrix value = data ? data->value : Matrix();
    for (int row = 0; row < 4; ++row)
        for (int column = 0; column < 4; ++column)
            matrix.matrix[row][column] =
                static_cast<std::decay_t<decltype(matrix.matrix[0][0])>>(value[row][column]);
    return MS::kSuccess;
}

template <class ApiMatrix>
MStatus setDefaultOf(MFnBase& set, const ApiMatrix& matrix)
{
    TVX_API_CALL("MFnMatrixAttribute::setDefault");
    Attribute* attribute = attributeOf(set);
    if (!attribute)
        return notAttached();
    Matrix value;
    for (int row = 0; row < 4; ++row)
        for (int column = 0; column < 4; ++column)
            value[row][column] = matrix.matrix[row][column];
    attribute->defaultData = Ref<tvxhost::engine::Data>(new MatrixData(value));
    return MS::kSuccess;
}

} // namespace

TVX_FUNCTION_SET(MFnMatrixAttribute, MFn::kMatrixAttribute)

MObject MFnMatrixAttribute::create(const MString& fullName, const MString& briefName, Type matrixType,
                                   MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnMatrixAttribute::create", ReturnStatus, MObject());
    const Ref<Attribute> made(
        new Attribute(AttributeKind::matrix, tvxAccess::text(fullName), tvxAccess::text(briefName)));
    made->dataType = tvxhost::engine::DataType::matrix;
    made->singleMatrix = matrixType == kFloat;
    return adoptAttribute(*this, made, ReturnStatus);
}

MStatus MFnMatrixAttribute::getDefault(MMatrix& def)
{
    return getDefaultOf(*this, def);
}

MStatus MFnMatrixAttribute::getDefault(MFloatMatrix& def)
{
    return getDefaultOf(*this, def);
}

MStatus MFnMatrixAttribute::setDefault(const MMatrix& def)
{
    return setDefaultOf(*this, def);
}

MStatus MFnMatrixAttribute::setDefault(const MFloatMatrix& def)
{
    return setDefaultOf(*this, def);
}
