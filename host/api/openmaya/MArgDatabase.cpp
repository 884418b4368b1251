// MArgDatabase: an MArgParser that also gives objects as selection lists.
#include <maya/MArgDatabase.h>
#include <maya/MSelectionList.h>
#include <maya/MStringArray.h>

#include "support/access.h"
#include "support/apiCall.h"
#include "support/parsedArguments.h"

using namespace tvxhost::api;

namespace {

/// Adds the objects of a name that was read with a status.
MStatus addNamed(const MStatus& read, const MString& name, MSelectionList& list)
{
    return read ? list.add(name) : read;
}

} // namespace

MArgDatabase::MArgDatabase() = default;

MArgDatabase::MArgDatabase(const MSyntax& syntax, const MArgList& argList, MStatus* ReturnStatus)
{
    TVX_API_CONSTRUCTION("MArgDatabase::MArgDatabase", ReturnStatus);
    MArgParser::operator=(MArgParser(syntax, argList, ReturnStatus));
}

MArgDatabase::~MArgDatabase() = default;

const char* MArgDatabase::className()
{
    return "MArgDatabase";
}

MStatus MArgDatabase::getFlagArgument(const char* flag, unsigned int index, MSelectionList& result) const
{
    TVX_API_CALL("MArgDatabase::getFlagArgument");
    MString name;
    const MStatus read = MArgParser::getFlagArgument(flag, index, name);
    return addNamed(read, name, result);
}

MStatus MArgDatabase::getCommandArgument(unsigned int index, MSelectionList& result) const
{
    TVX_API_CALL("MArgDatabase::getCommandArgument");
    MString name;
    const MStatus read = MArgParser::getCommandArgument(index, name);
    return addNamed(read, name, result);
}

MStatus MArgDatabase::getObjects(MSelectionList& result) const
{
    TVX_API_CALL("MArgDatabase::getObjects");
    const ParsedArguments& all = tvxAccess::parsed(*this);
    if (all.syntax.objectFormat != MSyntax::kSelectionList)
        return failure(StatusText::unexpectedFailure);
    tvxAccess::selection(result) = all.selection;
    return MS::kSuccess;
}

MStatus MArgDatabase::getObjects(MStringArray& result) const
{
    TVX_API_CALL("MArgDatabase::getObjects");
    return MArgParser::getObjects(result);
}

#define TVX_FLAG_ARGUMENT(Type)                                                                              \
    MStatus MArgDatabase::getFlagArgument(const char* flag, unsigned int index, Type& result) const          \
    {                                                                                                        \
        TVX_API_CALL("MArgDatabase::getFlagArgument");                                                       \
        return MArgParser::getFlagArgument(flag, index, result);                                             \
    }

#define TVX_ARGUMENT(Type)                                                                                   \
    TVX_FLAG_ARGUMENT(Type)                                                                                  \
    MStatus MArgDatabase::getCommandArgument(unsigned int index, Type& result) const                         \
    {                                                                                                        \
        TVX_API_CALL("MArgDatabase::getCommandArgument");                                                    \
        return MArgParser::getCommandArgument(index, result);                                                \
    }

TVX_ARGUMENT(bool)
TVX_ARGUMENT(int)
TVX_ARGUMENT(double)
TVX_ARGUMENT(MString)
TVX_ARGUMENT(MDistance)
TVX_ARGUMENT(MAngle)
TVX_ARGUMENT(MTime)
TVX_FLAG_ARGUMENT(unsigned int)

#undef TVX_ARGUMENT
#undef TVX_FLAG_ARGUMENT
