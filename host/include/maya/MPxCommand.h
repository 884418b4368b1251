// MPxCommand: base class of a plug-in's commands.
#pragma once

#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MSyntax.h>
#include <maya/MTypes.h>
#include <maya/tvxEngine.h>

class MArgList;
class MDoubleArray;
class MIntArray;
class MStringArray;

/// Base class of a command that a plug-in adds to MEL. Maya makes an instance for every call and keeps it for
/// undo when isUndoable() says so.
class OPENMAYA_EXPORT MPxCommand
{
public:
    enum MResultType
    {
        kLong = 0,
        kDouble = 1,
        kString = 2,
        kNoArg = 3,
    };

    MPxCommand();
    virtual ~MPxCommand();

    /// Runs the command with its arguments. A failure makes the calling script fail.
    virtual MStatus doIt(const MArgList& args);

    /// Takes back, or does again, what doIt() did.
    virtual MStatus undoIt();
    virtual MStatus redoIt();

    /// Whether the call is kept for undo. False by default.
    virtual bool isUndoable() const;

    /// Whether the command was registered with a description of its flags.
    virtual bool hasSyntax() const;

    /// That description.
    MSyntax syntax() const;

    /// Whether construction history is on.
    bool isHistoryOn() const;

    /// The text of the call, for the undo queue.
    MString commandString() const;
    MStatus setHistoryOn(bool state);
    MStatus setCommandString(const MString& value);

    /// A line in the script editor.
    static void displayInfo(const MString& theInfo);
    static void displayWarning(const MString& theWarning, bool showLineNumber = false);
    static void displayError(const MString& theError, bool showLineNumber = false);

    /// The value that the call has in a script.
    static void clearResult();
    static void setResult(unsigned int val);
    static void setResult(int val);
    static void setResult(double val);
    static void setResult(bool val);
    static void setResult(const char* val);
    static void setResult(const MString& val);
    static void setResult(const MIntArray& val);
    static void setResult(const MDoubleArray& val);
    static void setResult(const MStringArray& val);

    /// Adds an element to a result that is an array.
    static void appendToResult(int val);
    static void appendToResult(double val);
    static void appendToResult(bool val);
    static void appendToResult(const char* val);
    static void appendToResult(const MString& val);
    static void appendToResult(const MStringArray& val);

    /// Whether the result is an array, and of what.
    static bool isCurrentResultArray();
    static MResultType currentResultType();

    /// The result; kFailure when it is of another type.
    static MStatus getCurrentResult(int& val);
    static MStatus getCurrentResult(double& val);
    static MStatus getCurrentResult(MString& val);
    static MStatus getCurrentResult(MIntArray& val);
    static MStatus getCurrentResult(MDoubleArray& val);
    static MStatus getCurrentResult(MStringArray& val);
    static int currentIntResult(MStatus* ReturnStatus = nullptr);
    static double currentDoubleResult(MStatus* ReturnStatus = nullptr);
    static MString currentStringResult(MStatus* ReturnStatus = nullptr);

    /// Obsolete: override isUndoable().
    MStatus setUndoable(bool state);

    /// The name of this class.
    static const char* className();

protected:
    /// For Maya itself.
    void setData(void* ptr);

private:
    friend class tvxAccess;

    tvxhost::api::CommandState* state; ///< not owned: belongs to the call
    void* reserved[2];
};
