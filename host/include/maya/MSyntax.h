// MSyntax: the flags of a command.
#pragma once

#include <maya/MStatus.h>
#include <maya/MTypes.h>
#include <maya/tvxEngine.h>

/// The flags and arguments that a command understands. Flag names begin with a dash; the short one has up to
/// three letters, the long one four or more.
class OPENMAYA_EXPORT MSyntax
{
public:
    /// The kinds of argument.
    enum MArgType
    {
        kInvalidArgType = 0,
        kNoArg = 1,
        kBoolean = 2,
        kLong = 3,
        kDouble = 4,
        kString = 5,
        kUnsigned = 6,
        kDistance = 7,
        kAngle = 8,
        kTime = 9,
        kSelectionItem = 10,
        kLastArgType = 11,
    };

    /// In which form objects are handed to the command.
    enum MObjectFormat
    {
        kInvalidObjectFormat = 0,
        kNone = 1,
        kStringObjects = 2,
        kSelectionList = 3,
        kLastObjectFormat = 4,
    };

    /// No flags, no arguments.
    MSyntax();
    MSyntax(const MSyntax& other);
    virtual ~MSyntax();

    MSyntax& operator=(const MSyntax& rhs);

    /// Adds a flag with up to six arguments; kFailure when a name is taken or no good.
    MStatus addFlag(const char* shortName, const char* longName, MArgType argType1 = kNoArg,
                    MArgType argType2 = kNoArg, MArgType argType3 = kNoArg, MArgType argType4 = kNoArg,
                    MArgType argType5 = kNoArg, MArgType argType6 = kNoArg);

    /// Lets the flag be used several times.
    MStatus makeFlagMultiUse(const char* flag);

    /// Lets the flag take its arguments in query mode too.
    MStatus makeFlagQueryWithFullArgs(const char* flag, bool queryArgsAreOptional);

    /// Adds an argument behind the flags.
    MStatus addArg(MArgType arg);

    /// Whether the selection stands in for missing objects.
    void useSelectionAsDefault(bool useSelectionList = false);

    /// What objects the command takes, and how many.
    MStatus setObjectType(MObjectFormat objectFormat, unsigned int minimumObjects = 0);
    MStatus setObjectType(MObjectFormat objectFormat, unsigned int minimumObjects,
                          unsigned int maximumObjects);

    void setMinObjects(unsigned int minimumObjectCount);
    void setMaxObjects(unsigned int maximumObjectCount);

    /// Whether the command has a query mode, and an edit mode.
    void enableQuery(bool supportsQuery = true);
    void enableEdit(bool supportsEdit = true);

    unsigned int minObjects() const;
    unsigned int maxObjects() const;
    bool canQuery() const;
    bool canEdit() const;

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;

    tvxhost::api::SyntaxTable* syntax; ///< owned
    void* reserved;
};
