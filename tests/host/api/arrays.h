// Arrays of the API: made of values, and as vectors.
#pragma once

#include <maya/MDoubleArray.h>
#include <maya/MFloatArray.h>
#include <maya/MIntArray.h>
#include <maya/MPoint.h>
#include <maya/MPointArray.h>

#include <initializer_list>
#include <type_traits>
#include <vector>

namespace tvxhost::api::test {

template <class Array, class T>
Array arrayOf(std::initializer_list<T> values)
{
    Array array;
    for (const T& value : values)
        array.append(value);
    return array;
}

inline MIntArray ints(std::initializer_list<int> values)
{
    return arrayOf<MIntArray>(values);
}

inline MFloatArray floats(std::initializer_list<float> values)
{
    return arrayOf<MFloatArray>(values);
}

inline MDoubleArray doubles(std::initializer_list<double> values)
{
    return arrayOf<MDoubleArray>(values);
}

inline MPointArray points(std::initializer_list<MPoint> places)
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
