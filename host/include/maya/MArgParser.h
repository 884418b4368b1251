// MArgParser: the flags, arguments and objects of a command, taken apart as its syntax says.
#pragma once

#include <maya/MAngle.h>
#include <maya/MDistance.h>
#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MTime.h>
#include <maya/MTypes.h>
#include <maya/tvxEngine.h>

#include <memory>

class MArgList;
class MStringArray;
class MSyntax;

/// Takes the arguments of a command apart by a description of its flags. Flags are named by their short or
/// long name, with or without the dash. What does not fit the description is an error, which is shown in the
/// script editor; the parser is empty then and its readers fail.
class OPENMAYA_EXPORT MArgParser
{
public:
    /// Without arguments.
    MArgParser();

    /// kFailure when the arguments do not fit the syntax.
    MArgParser(const MSyntax& syntax, const MArgList& argList, MStatus* ReturnStatus = nullptr);

    virtual ~MArgParser();

    /// Whether a flag was given. kInvalidParameter for a flag that the syntax does not have.
    bool isFlagSet(const char* flag, MStatus* ReturnStatus = nullptr) const;

    /// Whether the command was called to edit, or to query. Never for a syntax that does not have the mode.
    bool isEdit(MStatus* ReturnStatus = nullptr) const;
    bool isQuery(MStatus* ReturnStatus = nullptr) const;

    /// How many flags were given, those for the mode aside; how often one was given.
    unsigned int numberOfFlagsUsed() const;
    unsigned int numberOfFlagUses(const char* flag) const;

    /// An argument of the first use of a flag. kInvalidParameter when the flag was not given, has not so many
    /// arguments, or the argument is of another kind; the result is left as it was then.
    MStatus getFlagArgument(const char* flag, unsigned int index, bool& result) const;
    MStatus getFlagArgument(const char* flag, unsigned int index, int& result) const;
    MStatus getFlagArgument(const char* flag, unsigned int index, double& result) const;
    MStatus getFlagArgument(const char* flag, unsigned int index, MString& result) const;
    MStatus getFlagArgument(const char* flag, unsigned int index, unsigned int& result) const;
    MStatus getFlagArgument(const char* flag, unsigned int index, MDistance& result) const;
    MStatus getFlagArgument(const char* flag, unsigned int index, MAngle& result) const;
    MStatus getFlagArgument(const char* flag, unsigned int index, MTime& result) const;

    /// The same; a neutral value on failure.
    bool flagArgumentBool(const char* flag, unsigned int index, MStatus* ReturnStatus = nullptr) const;
    int flagArgumentInt(const char* flag, unsigned int index, MStatus* ReturnStatus = nullptr) const;
    double flagArgumentDouble(const char* flag, unsigned int index, MStatus* ReturnStatus = nullptr) const;
    MString flagArgumentString(const char* flag, unsigned int index, MStatus* ReturnStatus = nullptr) const;
    MDistance flagArgumentMDistance(const char* flag, unsigned int index,
                                    MStatus* ReturnStatus = nullptr) const;
    MAngle flagArgumentMAngle(const char* flag, unsigned int index, MStatus* ReturnStatus = nullptr) const;
    MTime flagArgumentMTime(const char* flag, unsigned int index, MStatus* ReturnStatus = nullptr) const;

    /// Where the i-th use of a flag stands in the list of arguments; kInvalidParameter when there is none.
    MStatus getFlagArgumentPosition(const char* flag, unsigned int i, unsigned int& position) const;

    /// The arguments of the i-th use of a flag; kInvalidParameter when there is none.
    MStatus getFlagArgumentList(const char* flag, unsigned int i, MArgList& args) const;

    /// An argument behind the flags; kInvalidParameter beyond the last and for another kind.
    MStatus getCommandArgument(unsigned int index, bool& result) const;
    MStatus getCommandArgument(unsigned int index, int& result) const;
    MStatus getCommandArgument(unsigned int index, double& result) const;
    MStatus getCommandArgument(unsigned int index, MString& result) const;
    MStatus getCommandArgument(unsigned int index, MDistance& result) const;
    MStatus getCommandArgument(unsigned int index, MAngle& result) const;
    MStatus getCommandArgument(unsigned int index, MTime& result) const;

    /// The same; a neutral value on failure.
    bool commandArgumentBool(unsigned int index, MStatus* ReturnStatus = nullptr) const;
    int commandArgumentInt(unsigned int index, MStatus* ReturnStatus = nullptr) const;
    double commandArgumentDouble(unsigned int index, MStatus* ReturnStatus = nullptr) const;
    MString commandArgumentString(unsigned int index, MStatus* ReturnStatus = nullptr) const;
    MDistance commandArgumentMDistance(unsigned int index, MStatus* ReturnStatus = nullptr) const;
    MAngle commandArgumentMAngle(unsigned int index, MStatus* ReturnStatus = nullptr) const;
    MTime commandArgumentMTime(unsigned int index, MStatus* ReturnStatus = nullptr) const;

    /// The objects, as they were written, or the names of the selection when it stands in for them. kFailure
    /// when the syntax has no objects.
    MStatus getObjects(MStringArray& result) const;

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;

    std::shared_ptr<tvxhost::api::ParsedArguments> parsed; ///< of all copies
};
