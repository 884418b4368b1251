// MArgDatabase: an MArgParser that also gives objects as selection lists.
#pragma once

#include <maya/MArgParser.h>

class MSelectionList;

/// Takes the arguments of a command apart, and finds the objects that they name.
class OPENMAYA_EXPORT MArgDatabase : public MArgParser
{
public:
    /// Without arguments.
    MArgDatabase();

    /// kFailure when the arguments do not fit the syntax.
    MArgDatabase(const MSyntax& syntax, const MArgList& argList, MStatus* ReturnStatus = nullptr);

    ~MArgDatabase() override;

    /// Adds the objects that an argument names to a list. kInvalidParameter as in MArgParser, and when the
    /// scene has no such object.
    MStatus getFlagArgument(const char* flag, unsigned int index, MSelectionList& result) const;
    MStatus getCommandArgument(unsigned int index, MSelectionList& result) const;

    /// Replaces a list by the objects. kFailure when the syntax does not ask for a selection list.
    MStatus getObjects(MSelectionList& result) const;

    /// As in MArgParser.
    MStatus getFlagArgument(const char* flag, unsigned int index, bool& result) const;
    MStatus getFlagArgument(const char* flag, unsigned int index, int& result) const;
    MStatus getFlagArgument(const char* flag, unsigned int index, double& result) const;
    MStatus getFlagArgument(const char* flag, unsigned int index, MString& result) const;
    MStatus getFlagArgument(const char* flag, unsigned int index, unsigned int& result) const;
    MStatus getFlagArgument(const char* flag, unsigned int index, MDistance& result) const;
    MStatus getFlagArgument(const char* flag, unsigned int index, MAngle& result) const;
    MStatus getFlagArgument(const char* flag, unsigned int index, MTime& result) const;
    MStatus getCommandArgument(unsigned int index, bool& result) const;
    MStatus getCommandArgument(unsigned int index, int& result) const;
    MStatus getCommandArgument(unsigned int index, double& result) const;
    MStatus getCommandArgument(unsigned int index, MString& result) const;
    MStatus getCommandArgument(unsigned int index, MDistance& result) const;
    MStatus getCommandArgument(unsigned int index, MAngle& result) const;
    MStatus getCommandArgument(unsigned int index, MTime& result) const;
    MStatus getObjects(MStringArray& result) const;

    /// The name of this class.
    static const char* className();
};
