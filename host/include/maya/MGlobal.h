// MGlobal: the application: selection, commands, messages, options.
#pragma once

#include <maya/MFn.h>
#include <maya/MObject.h>
#include <maya/MSelectionMask.h>
#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MTransformationMatrix.h>
#include <maya/MTypes.h>
#include <maya/MVector.h>

class MCommandResult;
class MDagPath;
class MDoubleArray;
class MIntArray;
class MObjectArray;
class MRichSelection;
class MSelectionList;
class MStringArray;
class MTime;

/// Access to the application as a whole. Call from the main thread.
class OPENMAYA_EXPORT MGlobal
{
public:
    /// How the application was started.
    enum MMayaState
    {
        kInteractive = 0,
        kBatch = 1,
        kLibraryApp = 2,
        kBaseUIMode = 3,
    };

    /// How a selection is combined with the present one.
    enum ListAdjustment
    {
        kReplaceList = 0,
        kXORWithList = 1,
        kAddToList = 2,
        kRemoveFromList = 3,
        kAddToHeadOfList = 4,
    };

    /// What counts when selecting on the screen.
    enum SelectionMethod
    {
        kSurfaceSelectMethod = 0,
        kWireframeSelectMethod = 1,
    };

    /// What selecting on the screen selects.
    enum MSelectionMode
    {
        kSelectObjectMode = 0,
        kSelectComponentMode = 1,
        kSelectRootMode = 2,
        kSelectLeafMode = 3,
        kSelectTemplateMode = 4,
    };

    /// The application's version, as text, and the interface's as a number.
    static MString mayaVersion();
    static int apiVersion();

    /// The folder of the application's resources.
    static MString getAbsolutePathToResources();

    /// How the application was started.
    static MMayaState mayaState(MStatus* ReturnStatus = nullptr);

    /// The names of the function sets that suit an object.
    static MStatus getFunctionSetList(MObject forObject, MStringArray& array);

    /// The sets that belong to items of the list.
    static MStatus getAssociatedSets(const MSelectionList& list, MObjectArray& setArray);

    /// All that has a name; wildcards are allowed. A failure when there is nothing.
    static MStatus getSelectionListByName(const MString& name, MSelectionList& list);

    /// A copy of the selection, in the order of selecting.
    static MStatus getActiveSelectionList(MSelectionList& dest, bool orderedSelectionIfAvailable = false);

    /// What is live, and what is hilited for work on components.
    static MStatus getLiveList(MSelectionList& dest);
    static MStatus getHiliteList(MSelectionList& dest);
    static MStatus setHiliteList(MSelectionList& src);

    /// The selection with its mirror image, which is empty here. Without `defaultToActiveSelection` only one
    /// that is more than the plain selection counts: kFailure.
    static MStatus getRichSelection(MRichSelection& dest, bool defaultToActiveSelection = true);

    /// Replaces the selection. Cannot be undone.
    static MStatus setRichSelection(const MRichSelection& src);

    /// What the user's cursor can select among objects, components, animation and the rest. The host keeps
    /// the masks; it selects by name only.
    static MSelectionMask objectSelectionMask(MStatus* ReturnStatus = nullptr);
    static MStatus setObjectSelectionMask(const MSelectionMask& mask);
    static MSelectionMask componentSelectionMask(MStatus* ReturnStatus = nullptr);
    static MStatus setComponentSelectionMask(const MSelectionMask& mask);
    static MSelectionMask animSelectionMask(MStatus* ReturnStatus = nullptr);
    static MStatus setAnimSelectionMask(const MSelectionMask& mask);
    static MSelectionMask miscSelectionMask(MStatus* ReturnStatus = nullptr);
    static MStatus setMiscSelectionMask(const MSelectionMask& mask);

    /// Replaces the selection or combines with it. Cannot be undone.
    static MStatus setActiveSelectionList(const MSelectionList& src,
                                          ListAdjustment adjustment = kReplaceList);

    /// Shows or hides the control points of the items.
    static MStatus setDisplayCVs(MSelectionList&, bool);

    /// As setActiveSelectionList, but goes onto the undo queue.
    static MStatus selectCommand(const MSelectionList& src, ListAdjustment adjustment = kReplaceList);

    /// Selects all that has a name; wildcards are allowed.
    static MStatus selectByName(const MString& name, ListAdjustment adjustment = kAddToList);

    static MStatus unselectByName(const MString& name);

    /// Selects one thing.
    static MStatus select(MObject& object, ListAdjustment adjustment = kAddToList);
    static MStatus select(const MDagPath& object, const MObject& component,
                          ListAdjustment adjustment = kAddToList);
    static MStatus select(MDagPath& object, const MObject& component, ListAdjustment adjustment = kAddToList);
    static MStatus unselect(MObject& object);
    static MStatus unselect(const MDagPath& object, const MObject& component);
    static MStatus unselect(MDagPath& object, const MObject& component);

    /// Selects what is at a point, or inside a rectangle, of the active view. Pixels from the lower left.
    static MStatus selectFromScreen(const short& x_pos, const short& y_pos,
                                    ListAdjustment adjustment = kAddToList,
                                    SelectionMethod = kWireframeSelectMethod);
    static MStatus selectFromScreen(const short& start_x, const short& start_y, const short& end_x,
                                    const short& end_y, ListAdjustment adjustment = kAddToList,
                                    SelectionMethod = kWireframeSelectMethod);

    /// How the screen is selected on.
    static SelectionMethod selectionMethod(MStatus* ReturnStatus = nullptr);
    static MSelectionMode selectionMode(MStatus* ReturnStatus = nullptr);
    static MStatus setSelectionMode(MSelectionMode mode);

    /// Selects nothing.
    static MStatus clearSelectionList();

    /// Whether the thing is selected.
    static bool isSelected(MObject& object, MStatus* ReturnStatus = nullptr);

    /// Whether the order of selected components is kept.
    static bool trackSelectionOrderEnabled(MStatus* ReturnStatus = nullptr);
    static MStatus setTrackSelectionOrderEnabled(bool enable);

    /// What is hilited under the cursor.
    static MStatus getPreselectionHiliteList(MSelectionList& list);
    static MStatus setPreselectionHiliteList(const MSelectionList& list);

    /// The tool in use; a null object when there is none.
    static MObject currentToolContext();

    /// Goes to a time, given as such or as a number of the user interface's unit.
    static MStatus viewFrame(const MTime& time);
    static MStatus viewFrame(double time);

    /// Runs a script file.
    static MStatus sourceFile(const MString& fileName);

    /// Runs commands when the application is next idle.
    static MStatus executeCommandOnIdle(const MString& command, bool displayEnabled = false);

    /// Runs MEL at the top level, at once, and takes over the result of its last statement. kFailure, and the
    /// message in the script editor, when it fails. `displayEnabled` echoes the command, `undoEnabled` puts
    /// it onto the undo queue.
    static MStatus executeCommand(const MString& command, bool displayEnabled = false,
                                  bool undoEnabled = false);
    static MStatus executeCommand(const MString& command, MCommandResult& result, bool displayEnabled = false,
                                  bool undoEnabled = false);
    static MStatus executeCommand(const MString& command, int& result, bool displayEnabled = false,
                                  bool undoEnabled = false);
    static MStatus executeCommand(const MString& command, MIntArray& result, bool displayEnabled = false,
                                  bool undoEnabled = false);
    static MStatus executeCommand(const MString& command, double& result, bool displayEnabled = false,
                                  bool undoEnabled = false);
    static MStatus executeCommand(const MString& command, MDoubleArray& result, bool displayEnabled = false,
                                  bool undoEnabled = false);
    static MStatus executeCommand(const MString& command, MStringArray& result, bool displayEnabled = false,
                                  bool undoEnabled = false);
    static MStatus executeCommand(const MString& command, MString& result, bool displayEnabled = false,
                                  bool undoEnabled = false);

    /// As executeCommand, with the result as text.
    static MString executeCommandStringResult(const MString& command, bool displayEnabled = false,
                                              bool undoEnabled = false, MStatus* ResultStatus = nullptr);

    /// The same for Python; kNotImplemented where there is none.
    static MStatus executePythonCommand(const MString& command, bool displayEnabled = false,
                                        bool undoEnabled = false);
    static MStatus executePythonCommand(const MString& command, int& result, bool displayEnabled = false,
                                        bool undoEnabled = false);
    static MStatus executePythonCommand(const MString& command, MIntArray& result,
                                        bool displayEnabled = false, bool undoEnabled = false);
    static MStatus executePythonCommand(const MString& command, double& result, bool displayEnabled = false,
                                        bool undoEnabled = false);
    static MStatus executePythonCommand(const MString& command, MDoubleArray& result,
                                        bool displayEnabled = false, bool undoEnabled = false);
    static MStatus executePythonCommand(const MString& command, MString& result, bool displayEnabled = false,
                                        bool undoEnabled = false);
    static MStatus executePythonCommand(const MString& command, MStringArray& result,
                                        bool displayEnabled = false, bool undoEnabled = false);

    static MString executePythonCommandStringResult(const MString& command, bool displayEnabled = false,
                                                    bool undoEnabled = false,
                                                    MStatus* ReturnStatus = nullptr);

    static MStatus executePythonCommandOnIdle(const MString& command, bool displayEnabled = false);

    /// Puts a node into the hierarchy, below the parent or the world, or takes it out.
    static MStatus addToModel(MObject& object, MObject& parent = MObject::kNullObj);
    static MStatus addToModelAt(MObject&, const MVector& point, const double scale[3] = nullptr,
                                const double rotation[3] = nullptr,
                                MTransformationMatrix::RotationOrder order = MTransformationMatrix::kXYZ);
    static MStatus removeFromModel(MObject&);

    /// Deletes a node. Cannot be undone.
    static MStatus deleteNode(MObject&);

    /// Which axis points up.
    static MStatus setYAxisUp(bool rotateView = false);
    static MStatus setZAxisUp(bool rotateView = false);
    static bool isYAxisUp(MStatus* ReturnStatus = nullptr);
    static bool isZAxisUp(MStatus* ReturnStatus = nullptr);
    static MVector upAxis(MStatus* ReturnStatus = nullptr);

    /// A line in the script editor; neither stops a script nor sets a status.
    static void displayInfo(const MString& theMessage);
    static void displayWarning(const MString& theWarning);
    static void displayError(const MString& theError);

    /// Whether scripts may put windows away.
    static void setDisableStow(bool state);
    static bool disableStow();

    /// The value of an option variable, kept between sessions; 0 or "" and `exists` false when there is none.
    static int optionVarIntValue(const MString& name, bool* exists = nullptr);
    static double optionVarDoubleValue(const MString& name, bool* exists = nullptr);
    static MString optionVarStringValue(const MString& name, bool* exists = nullptr);

    /// Sets an option variable, and its type; always true.
    static bool setOptionVarValue(const MString& name, int value);
    static bool setOptionVarValue(const MString& name, double value);
    static bool setOptionVarValue(const MString& name, MString value);

    static void removeOptionVar(const MString& name);
    static bool optionVarExists(const MString& name);

    /// The file that failures of API calls are written to while logging is on.
    static MString defaultErrorLogPathName(MStatus* ReturnStatus = nullptr);
    static MStatus resetToDefaultErrorLogPathName();
    static MStatus setErrorLogPathName(const MString& logPathName);
    static MString errorLogPathName(MStatus* ReturnStatus = nullptr);
    static MStatus startErrorLogging();
    static MStatus startErrorLogging(const MString& logPathName);
    static bool errorLoggingIsOn(MStatus* ReturnStatus = nullptr);
    static MStatus stopErrorLogging();
    static MStatus closeErrorLog();
    static MStatus doErrorLogEntry(const MString& errorLogEntry);

    /// Whether an undo, or a redo, is running.
    static bool isUndoing();
    static bool isRedoing();

    /// The value of an option variable; false, and no change, when there is none.
    static bool getOptionVarValue(const MString& name, int& value);
    static bool getOptionVarValue(const MString& name, double& value);
    static bool getOptionVarValue(const MString& name, MString& value);

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;

    MGlobal() = delete;
    MGlobal(const MGlobal&) = delete;
};
