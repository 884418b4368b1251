// Kinds of numbers and data: the engine's names for them and the API's.
#pragma once

#include "engine/attribute.h"
#include "engine/data.h"

#include <maya/MFnData.h>
#include <maya/MFnNumericData.h>

namespace tvxhost::api {

/// So many numbers of a kind: what one MFnNumericData::Type says.
struct NumberShape
{
    engine::NumberKind kind = engine::NumberKind::none;
    int count = 0; ///< 0 when the host has no such numbers
};

FND_EXPORT NumberShape numberShapeOf(MFnNumericData::Type type);
/// kInvalid when the API has no name for it.
FND_EXPORT MFnNumericData::Type numericTypeOf(engine::NumberKind kind, std::size_t count);
/// The type of a numeric attribute or enumeration; kInvalid for others.
FND_EXPORT MFnNumericData::Type numericTypeOf(const engine::Attribute& attribute);

/// DataType::none for kinds of data that the host has not.
FND_EXPORT engine::DataType dataTypeOf(MFnData::Type type);
FND_EXPORT MFnData::Type dataTypeOf(engine::DataType type);

} // namespace tvxhost::api
