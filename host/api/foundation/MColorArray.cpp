// MColorArray: an array of colours.
#include <maya/MColorArray.h>

#include "support/arrayMembers.h"

namespace array = tvxhost::api::array;

TVX_LENDABLE_ARRAY_MEMBERS(MColorArray, MColor, const MColor&, const MColor&)
TVX_ARRAY_COPY(MColorArray)
TVX_ARRAY_STREAM(MColorArray)

namespace {

/// Overwrites the first elements by rows of numbers; there must be as many elements.
template <class Number>
MStatus overwrite(std::vector<MColor>* elements, const Number (*rows)[4], unsigned int count)
{
    if (count > array::size(elements))
        return tvxhost::api::failure(tvxhost::api::StatusText::noElementAtIndex);
    for (unsigned int i = 0; i < count; ++i)
        for (unsigned int component = 0; component < 4; ++component)
            (*elements)[i][component] = static_cast<float>(rows[i][component]);
    return MS::kSuccess;
}

} // namespace

MColorArray::MColorArray(const MColor src[], unsigned int count)
    : elements(array::copyOf<MColor>(src, count)), lender(nullptr), reserved(nullptr)
{
}

MColorArray::MColorArray(const float src[][4], unsigned int count)
    : elements(array::fromRows<MColor>(src, count)), lender(nullptr), reserved(nullptr)
{
}

MColorArray::MColorArray(const double src[][4], unsigned int count)
    : elements(array::fromRows<MColor>(src, count)), lender(nullptr), reserved(nullptr)
{
}

MColorArray::MColorArray(unsigned int initialSize, const MColor& initialValue)
    : elements(new std::vector<MColor>(initialSize, initialValue)), lender(nullptr), reserved(nullptr)
{
}

MStatus MColorArray::set(unsigned int index, float r, float g, float b, float a)
{
    return set(MColor(r, g, b, a), index);
}

MStatus MColorArray::set(float val[4], unsigned int index)
{
    return set(index, val[0], val[1], val[2], val[3]);
}

MStatus MColorArray::set(float rows[][4], unsigned int size)
{
    return overwrite(elements, rows, size);
}

MStatus MColorArray::set(double rows[][4], unsigned int size)
{
    return overwrite(elements, rows, size);
}

MStatus MColorArray::append(float r, float g, float b, float a)
{
    return append(MColor(r, g, b, a));
}

MStatus MColorArray::get(float dest[][4]) const
{
    return array::toRows(elements, dest);
}
