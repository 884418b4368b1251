// MFnMatrixData: a matrix as an object.
#include <maya/MFnMatrixData.h>
#include <maya/MMatrix.h>
#include <maya/MTransformationMatrix.h>

#include "support/dataSet.h"
#include "support/matrix4.h"

using namespace tvxhost;

namespace {

MStatus put(const MFnBase& set, const MMatrix& matrix)
{
    auto* data = api::dataAs<engine::MatrixData>(set);
    if (!data)
        return api::notAttached();
    data->value = api::imathOf(matrix);
    return MS::kSuccess;
}

MObject make(MFnBase& set, const MMatrix& matrix, MStatus* status)
{
    const engine::Ref<engine::MatrixData> data(new engine::MatrixData(api::imathOf(matrix)));
    return api::createData(set, data, status);
}

} // namespace

TVX_FUNCTION_SET(MFnMatrixData, MFn::kMatrixData)

// The host's matrices are never kept in parts.
bool MFnMatrixData::isTransformation(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMatrixData::isTransformation", ReturnStatus, false);
    api::requireAttached(api::dataAs<engine::MatrixData>(*this), ReturnStatus);
    return false;
}

MTransformationMatrix MFnMatrixData::transformation(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMatrixData::transformation", ReturnStatus, MTransformationMatrix());
    const auto* data = api::dataAs<engine::MatrixData>(*this);
    if (!api::requireAttached(data, ReturnStatus))
        return MTransformationMatrix();
    return MTransformationMatrix(api::fromImath<MMatrix>(data->value));
}

const MMatrix& MFnMatrixData::matrix(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMatrixData::matrix", ReturnStatus, MMatrix::identity);
    const auto* data = api::dataAs<engine::MatrixData>(*this);
    if (!api::requireAttached(data, ReturnStatus))
        return MMatrix::identity;
    static_assert(sizeof(MMatrix) == sizeof(data->value));
    return reinterpret_cast<const MMatrix&>(data->value);
}

MStatus MFnMatrixData::set(const MTransformationMatrix& transformation)
{
    TVX_API_CALL("MFnMatrixData::set");
    return put(*this, transformation.asMatrix());
}

MStatus MFnMatrixData::set(const MMatrix& matrix)
{
    TVX_API_CALL("MFnMatrixData::set");
    return put(*this, matrix);
}

MObject MFnMatrixData::create(MStatus* ReturnStatus)
{
    return create(MMatrix::identity, ReturnStatus);
}

MObject MFnMatrixData::create(const MMatrix& matrix, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnMatrixData::create", ReturnStatus, MObject());
    return make(*this, matrix, ReturnStatus);
}

MObject MFnMatrixData::create(const MTransformationMatrix& transformation, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnMatrixData::create", ReturnStatus, MObject());
    return make(*this, transformation.asMatrix(), ReturnStatus);
}
