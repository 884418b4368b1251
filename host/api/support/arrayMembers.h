// The members that all arrays of the API share, said once: TVX_ARRAY_MEMBERS defines them for one class.
#pragma once

#include "engine/object.h"
#include "status.h"

#include <algorithm>
#include <cstdint>
#include <ostream>
#include <vector>

namespace tvxhost::api::array {

/// The elements to write to; made when there are none yet.
template <class T>
std::vector<T>& edit(std::vector<T>*& elements)
{
    if (!elements)
        elements = new std::vector<T>;
    return *elements;
}

template <class T>
std::size_t size(const std::vector<T>* elements)
{
    return elements ? elements->size() : 0;
}

template <class T>
std::vector<T>* copyOf(const std::vector<T>* elements)
{
    return size(elements) == 0 ? nullptr : new std::vector<T>(*elements);
}

template <class T, class Source>
std::vector<T>* copyOf(const Source* source, unsigned int count)
{
    return new std::vector<T>(source, source + count);
}

template <class T>
void assign(std::vector<T>*& to, const std::vector<T>* from)
{
    if (from)
        edit(to) = *from;
    else if (to)
        to->clear();
}

template <class T>
MStatus insert(std::vector<T>*& elements, const T& element, unsigned int index)
{
    if (index > size(elements))
        return failure(StatusText::noElementAtIndex);
    std::vector<T>& v = edit(elements);
    v.insert(v.begin() + index, T(element));
    return MS::kSuccess;
}

template <class T>
MStatus remove(std::vector<T>* elements, unsigned int index)
{
    if (index >= size(elements))
        return failure(StatusText::noElementAtIndex);
    elements->erase(elements->begin() + index);
    return MS::kSuccess;
}

template <class T, class Value>
MStatus set(std::vector<T>* elements, const Value& value, unsigned int index)
{
    if (index >= size(elements))
        return failure(StatusText::noElementAtIndex);
    (*elements)[index] = value;
    return MS::kSuccess;
}

template <class T, class Target>
MStatus get(const std::vector<T>* elements, Target* target)
{
    if (elements)
        std::transform(elements->begin(), elements->end(), target,
                       [](const T& element) { return static_cast<Target>(element); });
    return MS::kSuccess;
}

/// Elements from rows of plain numbers, one row each.
template <class T, class Number, std::size_t kColumns>
std::vector<T>* fromRows(const Number (*rows)[kColumns], unsigned int count)
{
    auto* elements = new std::vector<T>(count);
    for (unsigned int i = 0; i < count; ++i)
        for (unsigned int column = 0; column < kColumns; ++column)
            (*elements)[i][column] = static_cast<std::decay_t<decltype(T()[column])>>(rows[i][column]);
    return elements;
}

/// The elements as rows of plain numbers.
template <class T, class Number, std::size_t kColumns>
MStatus toRows(const std::vector<T>* elements, Number (*rows)[kColumns])
{
    for (std::size_t i = 0; i < size(elements); ++i)
        for (unsigned int column = 0; column < kColumns; ++column)
            rows[i][column] = static_cast<Number>(static_cast<const T&>((*elements)[i])[column]);
    return MS::kSuccess;
}

/// Writes "[a, b, c]".
template <class Array>
std::ostream& write(std::ostream& out, const Array& array)
{
    out << '[';
    for (unsigned int i = 0; i < array.length(); ++i)
        out << (i == 0 ? "" : ", ") << array[i];
    return out << ']';
}

/// An array owns its elements, unless it was lent those of a data object, which it then keeps alive.
template <class T>
void release(std::vector<T>* elements, const engine::Object* lender)
{
    if (lender)
        lender->release();
    else
        delete elements;
}

// The size increment is kept in the spare word; none was set while that is null.
inline void setIncrement(void*& word, unsigned int value)
{
    word = reinterpret_cast<void*>(static_cast<std::uintptr_t>(value));
}

inline unsigned int incrementOf(const void* word)
{
    return word ? static_cast<unsigned int>(reinterpret_cast<std::uintptr_t>(word)) : 1;
}

} // namespace tvxhost::api::array

/// The members of an array whose only state is the pointer `elements`. `Parameter` is how an element is
/// passed, `Result` what the const operator[] gives.
#define TVX_ARRAY_ELEMENT_MEMBERS(Class, Element, Parameter, Result)                                         \
    Class& Class::operator=(const Class& other)                                                              \
    {                                                                                                        \
        tvxhost::api::array::assign(elements, other.elements);                                               \
        return *this;                                                                                        \
    }                                                                                                        \
    Result Class::operator[](unsigned int index) const                                                       \
    {                                                                                                        \
        return (*elements)[index];                                                                           \
    }                                                                                                        \
    Element& Class::operator[](unsigned int index)                                                           \
    {                                                                                                        \
        return (*elements)[index];                                                                           \
    }                                                                                                        \
    MStatus Class::set(Parameter element, unsigned int index)                                                \
    {                                                                                                        \
        return tvxhost::api::array::set(elements, element, index);                                           \
    }                                                                                                        \
    MStatus Class::setLength(unsigned int newLength)                                                         \
    {                                                                                                        \
        tvxhost::api::array::edit(elements).resize(newLength);                                               \
        return MS::kSuccess;                                                                                 \
    }                                                                                                        \
    unsigned int Class::length() const                                                                       \
    {                                                                                                        \
        return static_cast<unsigned int>(tvxhost::api::array::size(elements));                               \
    }                                                                                                        \
    MStatus Class::remove(unsigned int index)                                                                \
    {                                                                                                        \
        return tvxhost::api::array::remove(elements, index);                                                 \
    }                                                                                                        \
    MStatus Class::insert(Parameter element, unsigned int index)                                             \
    {                                                                                                        \
        return tvxhost::api::array::insert(elements, element, index);                                        \
    }                                                                                                        \
    MStatus Class::append(Parameter element)                                                                 \
    {                                                                                                        \
        tvxhost::api::array::edit(elements).push_back(element);                                              \
        return MS::kSuccess;                                                                                 \
    }                                                                                                        \
    MStatus Class::clear()                                                                                   \
    {                                                                                                        \
        if (elements)                                                                                        \
            elements->clear();                                                                               \
        return MS::kSuccess;                                                                                 \
    }                                                                                                        \
    const char* Class::className()                                                                           \
    {                                                                                                        \
        return #Class;                                                                                       \
    }

/// The size increment, kept in the spare word `reserved`.
#define TVX_ARRAY_INCREMENT_MEMBERS(Class)                                                                   \
    void Class::setSizeIncrement(unsigned int newIncrement)                                                  \
    {                                                                                                        \
        tvxhost::api::array::setIncrement(reserved, newIncrement);                                           \
    }                                                                                                        \
    unsigned int Class::sizeIncrement() const                                                                \
    {                                                                                                        \
        return tvxhost::api::array::incrementOf(reserved);                                                   \
    }

/// The same with construction, destruction and size increment, which need the spare word `reserved`.
#define TVX_ARRAY_MEMBERS(Class, Element, Parameter, Result)                                                 \
    Class::Class() : elements(nullptr), reserved(nullptr) {}                                                 \
    Class::Class(const Class& other)                                                                         \
        : elements(tvxhost::api::array::copyOf(other.elements)), reserved(nullptr)                           \
    {                                                                                                        \
    }                                                                                                        \
    Class::~Class()                                                                                          \
    {                                                                                                        \
        delete elements;                                                                                     \
    }                                                                                                        \
    TVX_ARRAY_INCREMENT_MEMBERS(Class)                                                                       \
    TVX_ARRAY_ELEMENT_MEMBERS(Class, Element, Parameter, Result)

/// The same for an array that can be lent the elements of a data object.
#define TVX_LENDABLE_ARRAY_MEMBERS(Class, Element, Parameter, Result)                                        \
    Class::Class() : elements(nullptr), lender(nullptr), reserved(nullptr) {}                                \
    Class::Class(const Class& other)                                                                         \
        : elements(tvxhost::api::array::copyOf(other.elements)), lender(nullptr), reserved(nullptr)          \
    {                                                                                                        \
    }                                                                                                        \
    Class::~Class()                                                                                          \
    {                                                                                                        \
        tvxhost::api::array::release(elements, lender);                                                      \
    }                                                                                                        \
    TVX_ARRAY_INCREMENT_MEMBERS(Class)                                                                       \
    TVX_ARRAY_ELEMENT_MEMBERS(Class, Element, Parameter, Result)

/// `copy`, for the classes that have it.
#define TVX_ARRAY_COPY(Class)                                                                                \
    MStatus Class::copy(const Class& source)                                                                 \
    {                                                                                                        \
        tvxhost::api::array::assign(elements, source.elements);                                              \
        return MS::kSuccess;                                                                                 \
    }

/// A stream operator that writes "[a, b, c]".
#define TVX_ARRAY_STREAM(Class)                                                                              \
    std::ostream& operator<<(std::ostream& out, const Class& array)                                          \
    {                                                                                                        \
        return tvxhost::api::array::write(out, array);                                                       \
    }
