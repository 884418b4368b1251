// What the function sets of attributes share: making an attribute, its flags, its numbers.
#include "attributeSets.h"

#include <algorithm>
#include <cctype>

namespace tvxhost::api {

namespace {

using engine::Attribute;

bool isLegalName(const std::string& name)
{
    const auto isWordCharacter = [](unsigned char c) { return std::isalnum(c) || c == '_'; };
    return !name.empty() && !std::isdigit(static_cast<unsigned char>(name.front())) &&
           std::all_of(name.begin(), name.end(), isWordCharacter);
}

/// The numbers of the attached attribute when there are as many as the caller gave; else what is wrong.
MStatus findNumbers(const MFnBase& set, std::size_t count, std::vector<Attribute*>& numbers)
{
    Attribute* attribute = attributeOf(set);
    if (!attribute)
        return notAttached();
    numbers = numbersOf(*attribute);
    return numbers.size() == count ? MStatus() : failure(StatusText::objectIsIncompatible);
}

/// Gives a member of each number its value.
template <class Member>
MStatus setMembers(MFnBase& set, const char* name, Member Attribute::*member,
                   std::initializer_list<double> values)
{
    TVX_API_CALL(name);
    std::vector<Attribute*> numbers;
    if (const MStatus found = findNumbers(set, values.size(), numbers); !found)
        return found;
    auto value = values.begin();
    for (Attribute* number : numbers)
        number->*member = *value++;
    return MS::kSuccess;
}

} // namespace

MObject adoptAttribute(MFnBase& set, const engine::Ref<Attribute>& made, MStatus* returnStatus)
{
    if (!isLegalName(made->longName) || !isLegalName(made->shortName)) {
        give(returnStatus, failure(StatusText::unexpectedFailure));
        return MObject();
    }
    tvxAccess::attach(set, made.get());
    giveSuccess(returnStatus);
    return tvxAccess::handle(made.get());
}

bool isFree(const Attribute& attribute)
{
    return !attribute.owner && !attribute.flags.dynamic;
}

std::vector<Attribute*> numbersOf(Attribute& attribute)
{
    if (!attribute.isNumberGroup())
        return {&attribute};
    std::vector<Attribute*> numbers;
    for (const auto& child : attribute.children)
        numbers.push_back(child.get());
    return numbers;
}

MObject childAt(const MFnBase& set, const char* name, unsigned int index, MStatus* returnStatus)
{
    TVX_API_CALL_OR(name, returnStatus, MObject());
    const Attribute* attribute = attributeOf(set);
    if (!requireAttached(attribute, returnStatus))
        return MObject();
    const bool exists = index < attribute->children.size();
    give(returnStatus, exists ? MStatus() : failure(StatusText::noElementAtIndex));
    return exists ? tvxAccess::handle(attribute->children[index].get()) : MObject();
}

bool hasLimit(const MFnBase& set, const char* name, Limit limit, MStatus* returnStatus)
{
    TVX_API_CALL_OR(name, returnStatus, false);
    Attribute* attribute = attributeOf(set);
    if (!requireAttached(attribute, returnStatus))
        return false;
    return (numbersOf(*attribute).front()->*limit).has_value();
}

MStatus getLimits(const MFnBase& set, const char* name, Limit limit, std::initializer_list<double*> values)
{
    TVX_API_CALL(name);
    std::vector<Attribute*> numbers;
    if (const MStatus found = findNumbers(set, values.size(), numbers); !found)
        return found;
    for (const Attribute* number : numbers)
        if (!(number->*limit))
            return failure(StatusText::unexpectedFailure);
    auto value = values.begin();
    for (const Attribute* number : numbers)
        **value++ = *(number->*limit);
    return MS::kSuccess;
}

MStatus setLimits(MFnBase& set, const char* name, Limit limit, std::initializer_list<double> values)
{
    return setMembers(set, name, limit, values);
}

MStatus getDefaults(const MFnBase& set, const char* name, std::initializer_list<double*> values)
{
    TVX_API_CALL(name);
    std::vector<Attribute*> numbers;
    if (const MStatus found = findNumbers(set, values.size(), numbers); !found)
        return found;
    auto value = values.begin();
    for (const Attribute* number : numbers)
        **value++ = number->defaultNumber;
    return MS::kSuccess;
}

MStatus setDefaults(MFnBase& set, const char* name, std::initializer_list<double> values)
{
    return setMembers(set, name, &Attribute::defaultNumber, values);
}

} // namespace tvxhost::api
