// Arrays of the API: made of values, and as vectors.
#pragma once

#include <maya/MDoubleArray.h>
#include <maya/MFloatArray.h>
#include <maya/MIntArray.h>
#include <maya/MPoint.h>
#include <maya/MPointArray.h>

#include <type_traits>
#include <vector>

namespace tvxhost::api::test {

template <class Array, class T>
Array arrayOf(const std::vector<T>& values)
{
    Array array;
    for (const T& value : values)
        array.append(value);
    return array;
}

inline MIntArray ints(const std::vector<int>& values)
{
    return arrayOf<MIntArray>(values);
}

inline MFloatArray floats(const std::vector<float>& values)
{
    return arrayOf<MFloatArray>(values);
}

inline MDoubleArray doubles(const std::vector<double>& values)
{
    return arrayOf<MDoubleArray>(values);
}

inline MPointArray points(const std::vector<MPoint>& places)
{
    return arrayOf<MPointArray>(places);
}

template <class Array>
auto elementsOf(const Array& array)
{
    std::vector<std::decay_t<decltype(array[0])>> all;
    for (unsigned int i = 0; i < array.length(); ++i)
        all.push_back(array[i]);
    return all;
}

} // namespace tvxhost::api::test
