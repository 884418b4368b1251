// The values that follow the flags of a command.
#include "core/utils/tvxMayaUtils.h"

namespace tarvox::crowd {

namespace {

/// Moves the index from a flag to its value and has `read` read it there.
template <class Read>
bool readAfterFlag(const MArgList& arguments, unsigned int& index, Read read)
{
    if (index >= arguments.length())
        return false;
    ++index;
    MStatus status;
    read(index, status);
    return status;
}

void appendVectors(const MDoubleArray& numbers, MVectorArray& vectors)
{
    for (unsigned int i = 0; i + 3 <= numbers.length(); i += 3)
        vectors.append(MVector(numbers[i], numbers[i + 1], numbers[i + 2]));
}

} // namespace

bool MayaUtils::readArgument(const MArgList& arguments, unsigned int& index, MString& value)
{
    return readAfterFlag(arguments, index,
                         [&](unsigned int at, MStatus& status) { value = arguments.asString(at, &status); });
}

bool MayaUtils::readArgument(const MArgList& arguments, unsigned int& index, double& value)
{
    return readAfterFlag(arguments, index,
                         [&](unsigned int at, MStatus& status) { value = arguments.asDouble(at, &status); });
}

bool MayaUtils::readArgument(const MArgList& arguments, unsigned int& index, float& value)
{
    return readAfterFlag(arguments, index, [&](unsigned int at, MStatus& status) {
        value = static_cast<float>(arguments.asDouble(at, &status));
    });
}

bool MayaUtils::readArgument(const MArgList& arguments, unsigned int& index, int& value)
{
    return readAfterFlag(arguments, index,
                         [&](unsigned int at, MStatus& status) { value = arguments.asInt(at, &status); });
}

bool MayaUtils::readArgument(const MArgList& arguments, unsigned int& index, bool& value)
{
    return readAfterFlag(arguments, index,
                         [&](unsigned int at, MStatus& status) { value = arguments.asBool(at, &status); });
}

bool MayaUtils::readArgument(const MArgList& arguments, unsigned int& index, MPoint& value)
{
    return readAfterFlag(arguments, index, [&](unsigned int& at, MStatus& status) {
        value = arguments.asPoint(at, 3, &status);
    });
}

bool MayaUtils::readArgument(const MArgList& arguments, unsigned int& index, MIntArray& value)
{
    return readAfterFlag(arguments, index, [&](unsigned int& at, MStatus& status) {
        value = arguments.asIntArray(at, &status);
    });
}

bool MayaUtils::readArgument(const MArgList& arguments, unsigned int& index, MStringArray& value)
{
    return readAfterFlag(arguments, index, [&](unsigned int& at, MStatus& status) {
        value = arguments.asStringArray(at, &status);
    });
}

bool MayaUtils::readArgument(const MArgList& arguments, unsigned int& index, MVectorArray& value)
{
    return readAfterFlag(arguments, index, [&](unsigned int& at, MStatus& status) {
        appendVectors(arguments.asDoubleArray(at, &status), value);
    });
}

} // namespace tarvox::crowd
