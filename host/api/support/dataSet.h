// What the function sets of data objects do alike.
#pragma once

#include "engine/data.h"
#include "functionSet.h"

#include <vector>

namespace tvxhost::api {

/// The data object of a set, when it is of that class; null otherwise.
template <class DataClass>
DataClass* dataAs(const MFnBase& set)
{
    return dynamic_cast<DataClass*>(dataOf(set));
}

/// Attaches a set to a new data object, which the handle that is returned keeps.
template <class DataClass>
MObject createData(MFnBase& set, engine::Ref<DataClass> data, MStatus* returnStatus)
{
    giveSuccess(returnStatus);
    tvxAccess::attach(set, data.get());
    return tvxAccess::handle(data.get());
}

/// The elements of an array as the API's type, which has the layout of the engine's.
template <class Element, class DataClass>
std::vector<Element>& elementsOf(DataClass& data)
{
    using Stored = typename decltype(data.values)::value_type;
    static_assert(sizeof(Element) == sizeof(Stored) && alignof(Element) == alignof(Stored));
    return reinterpret_cast<std::vector<Element>&>(data.values);
}

/// The element at an index, not checked; one that belongs to nobody when the set is attached to nothing.
template <class DataClass, class Element>
Element& elementAt(const MFnBase& set, unsigned int index)
{
    static thread_local Element nobodys;
    DataClass* data = dataAs<DataClass>(set);
    return data ? elementsOf<Element>(*data)[index] : nobodys = Element();
}

template <class DataClass, class Element>
MStatus setElement(MFnBase& set, const Element& element, unsigned int index)
{
    DataClass* data = dataAs<DataClass>(set);
    if (!data)
        return notAttached();
    if (index >= data->values.size())
        return failure(StatusText::noElementAtIndex);
    elementsOf<Element>(*data)[index] = element;
    return MS::kSuccess;
}

template <class DataClass, class Element, class Array>
MStatus setElements(MFnBase& set, const Array& array)
{
    DataClass* data = dataAs<DataClass>(set);
    if (!data)
        return notAttached();
    elementsOf<Element>(*data) = tvxAccess::elements(array);
    return MS::kSuccess;
}

template <class DataClass, class Element, class Array>
MStatus copyElements(const MFnBase& set, Array& target)
{
    DataClass* data = dataAs<DataClass>(set);
    if (!data)
        return notAttached();
    tvxAccess::elements(target) = elementsOf<Element>(*data);
    return MS::kSuccess;
}

/// An array that edits the elements inside the data object.
template <class DataClass, class Element, class Array>
Array lentArray(const MFnBase& set, MStatus* returnStatus)
{
    Array array;
    DataClass* data = dataAs<DataClass>(set);
    if (requireAttached(data, returnStatus))
        tvxAccess::lend(array, elementsOf<Element>(*data), *data);
    return array;
}

template <class DataClass, class Element, class Array>
MObject createArrayData(MFnBase& set, const Array& array, MStatus* returnStatus)
{
    engine::Ref<DataClass> data(new DataClass);
    elementsOf<Element>(*data) = tvxAccess::elements(array);
    return createData(set, data, returnStatus);
}

} // namespace tvxhost::api

/// All members of the function set of an array's data. `ConstResult` is what the const operator[] gives.
#define TVX_ARRAY_DATA_SET(Class, kType, DataClass, Array, Element, Parameter, ConstResult)                  \
    TVX_FUNCTION_SET(Class, kType)                                                                           \
    unsigned int Class::length(MStatus* ReturnStatus) const                                                  \
    {                                                                                                        \
        TVX_API_CALL_OR(#Class "::length", ReturnStatus, 0);                                                 \
        const auto* data = tvxhost::api::dataAs<tvxhost::engine::DataClass>(*this);                          \
        return tvxhost::api::requireAttached(data, ReturnStatus)                                             \
                   ? static_cast<unsigned int>(data->values.size())                                          \
                   : 0;                                                                                      \
    }                                                                                                        \
    ConstResult Class::operator[](unsigned int index) const                                                  \
    {                                                                                                        \
        return tvxhost::api::elementAt<tvxhost::engine::DataClass, Element>(*this, index);                   \
    }                                                                                                        \
    Element& Class::operator[](unsigned int index)                                                           \
    {                                                                                                        \
        return tvxhost::api::elementAt<tvxhost::engine::DataClass, Element>(*this, index);                   \
    }                                                                                                        \
    MStatus Class::set(Parameter element, unsigned int index)                                                \
    {                                                                                                        \
        TVX_API_CALL(#Class "::set");                                                                        \
        return tvxhost::api::setElement<tvxhost::engine::DataClass, Element>(*this, element, index);         \
    }                                                                                                        \
    MStatus Class::set(const Array& newArray)                                                                \
    {                                                                                                        \
        TVX_API_CALL(#Class "::set");                                                                        \
        return tvxhost::api::setElements<tvxhost::engine::DataClass, Element>(*this, newArray);              \
    }                                                                                                        \
    MStatus Class::copyTo(Array& target) const                                                               \
    {                                                                                                        \
        TVX_API_CALL(#Class "::copyTo");                                                                     \
        return tvxhost::api::copyElements<tvxhost::engine::DataClass, Element>(*this, target);               \
    }                                                                                                        \
    Array Class::array(MStatus* ReturnStatus)                                                                \
    {                                                                                                        \
        TVX_API_CALL_OR(#Class "::array", ReturnStatus, Array());                                            \
        return tvxhost::api::lentArray<tvxhost::engine::DataClass, Element, Array>(*this, ReturnStatus);     \
    }                                                                                                        \
    MObject Class::create(MStatus* ReturnStatus)                                                             \
    {                                                                                                        \
        return create(Array(), ReturnStatus);                                                                \
    }                                                                                                        \
    MObject Class::create(const Array& in, MStatus* ReturnStatus)                                            \
    {                                                                                                        \
        TVX_API_CALL_OR(#Class "::create", ReturnStatus, MObject());                                         \
        return tvxhost::api::createArrayData<tvxhost::engine::DataClass, Element>(*this, in, ReturnStatus);  \
    }
