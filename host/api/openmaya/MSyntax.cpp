// MSyntax: the flags of a command.
#include <maya/MSyntax.h>

#include "support/apiCall.h"
#include "support/commandState.h"

#include <algorithm>
#include <limits>
#include <utility>

using tvxhost::api::failure;
using tvxhost::api::StatusText;
using tvxhost::api::SyntaxTable;

namespace {

std::string nameOf(const char* text)
{
    if (!text)
        return {};
    return *text == '-' ? std::string(text + 1) : std::string(text);
}

/// Changes a flag that must have been added before.
template <class Change>
MStatus changeFlag(SyntaxTable& syntax, const char* name, const char* flag, Change change)
{
    TVX_API_CALL(name);
    SyntaxTable::Flag* found = flag ? syntax.find(flag) : nullptr;
    if (!found)
        return failure(StatusText::itemNotFound);
    change(*found);
    return MS::kSuccess;
}

} // namespace

namespace tvxhost::api {

const SyntaxTable::Flag* SyntaxTable::find(const std::string& name) const
{
    const std::string bare = nameOf(name.c_str());
    const auto found = std::find_if(flags.begin(), flags.end(), [&bare](const Flag& flag) {
        return flag.shortName == bare || flag.longName == bare;
    });
    return found == flags.end() ? nullptr : &*found;
}

SyntaxTable::Flag* SyntaxTable::find(const std::string& name)
{
    return const_cast<Flag*>(std::as_const(*this).find(name));
}

} // namespace tvxhost::api

MSyntax::MSyntax() : syntax(new SyntaxTable), reserved(nullptr) {}

MSyntax::MSyntax(const MSyntax& other) : syntax(new SyntaxTable(*other.syntax)), reserved(nullptr) {}

MSyntax::~MSyntax()
{
    delete syntax;
}

MSyntax& MSyntax::operator=(const MSyntax& rhs)
{
    *syntax = *rhs.syntax;
    return *this;
}

const char* MSyntax::className()
{
    return "MSyntax";
}

MStatus MSyntax::addFlag(const char* shortName, const char* longName, MArgType argType1, MArgType argType2,
                         MArgType argType3, MArgType argType4, MArgType argType5, MArgType argType6)
{
    TVX_API_CALL("MSyntax::addFlag");
    SyntaxTable::Flag flag{nameOf(shortName), nameOf(longName), {}};
    if (flag.shortName.empty() || flag.longName.empty() || syntax->find(flag.shortName) ||
        syntax->find(flag.longName))
        return failure(StatusText::unexpectedFailure);
    for (const MArgType type : {argType1, argType2, argType3, argType4, argType5, argType6})
        if (type != kNoArg)
            flag.arguments.push_back(type);
    syntax->flags.push_back(std::move(flag));
    return MS::kSuccess;
}

MStatus MSyntax::makeFlagMultiUse(const char* flag)
{
    return changeFlag(*syntax, "MSyntax::makeFlagMultiUse", flag,
                      [](SyntaxTable::Flag& found) { found.isMultiUse = true; });
}

MStatus MSyntax::makeFlagQueryWithFullArgs(const char* flag, bool queryArgsAreOptional)
{
    return changeFlag(*syntax, "MSyntax::makeFlagQueryWithFullArgs", flag, [&](SyntaxTable::Flag& found) {
        found.isQueriedWithArguments = true;
        found.areQueryArgumentsOptional = queryArgsAreOptional;
    });
}

MStatus MSyntax::addArg(MArgType arg)
{
    TVX_API_CALL("MSyntax::addArg");
    if (arg <= kNoArg || arg >= kLastArgType)
        return failure(MS::kInvalidParameter, StatusText::unexpectedFailure);
    syntax->arguments.push_back(arg);
    return MS::kSuccess;
}

void MSyntax::useSelectionAsDefault(bool useSelectionList)
{
    syntax->usesSelection = useSelectionList;
}

MStatus MSyntax::setObjectType(MObjectFormat objectFormat, unsigned int minimumObjects)
{
    TVX_API_CALL("MSyntax::setObjectType");
    if (objectFormat <= kInvalidObjectFormat || objectFormat >= kLastObjectFormat)
        return failure(MS::kInvalidParameter, StatusText::unexpectedFailure);
    syntax->objectFormat = objectFormat;
    syntax->minimumObjects = minimumObjects;
    syntax->maximumObjects.reset();
    return MS::kSuccess;
}

MStatus MSyntax::setObjectType(MObjectFormat objectFormat, unsigned int minimumObjects,
                               unsigned int maximumObjects)
{
    const MStatus status = setObjectType(objectFormat, minimumObjects);
    if (status)
        syntax->maximumObjects = maximumObjects;
    return status;
}

void MSyntax::setMinObjects(unsigned int minimumObjectCount)
{
    syntax->minimumObjects = minimumObjectCount;
}

void MSyntax::setMaxObjects(unsigned int maximumObjectCount)
{
    syntax->maximumObjects = maximumObjectCount;
}

unsigned int MSyntax::minObjects() const
{
    return syntax->minimumObjects;
}

unsigned int MSyntax::maxObjects() const
{
    return syntax->maximumObjects.value_or(std::numeric_limits<unsigned int>::max());
}

void MSyntax::enableQuery(bool supportsQuery)
{
    syntax->canQuery = supportsQuery;
}

void MSyntax::enableEdit(bool supportsEdit)
{
    syntax->canEdit = supportsEdit;
}

bool MSyntax::canQuery() const
{
    return syntax->canQuery;
}

bool MSyntax::canEdit() const
{
    return syntax->canEdit;
}
