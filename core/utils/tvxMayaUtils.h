// Helpers over the Maya API.
#pragma once

#include <tvxCore/DistanceUnit.h>
#include <tvxCore/Vector2.h>

#include <maya/MAngle.h>
#include <maya/MArgList.h>
#include <maya/MDGContext.h>
#include <maya/MDGModifier.h>
#include <maya/MDagPath.h>
#include <maya/MDataBlock.h>
#include <maya/MDoubleArray.h>
#include <maya/MFn.h>
#include <maya/MFnAttribute.h>
#include <maya/MFnDagNode.h>
#include <maya/MFnDependencyNode.h>
#include <maya/MIntArray.h>
#include <maya/MMatrix.h>
#include <maya/MObject.h>
#include <maya/MPoint.h>
#include <maya/MQuaternion.h>
#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MStringArray.h>
#include <maya/MTypeId.h>
#include <maya/MVector.h>
#include <maya/MVectorArray.h>

#include <list>
#include <string>
#include <vector>

class QMainWindow;

namespace tarvox::crowd {

/// An orientation in the core library's frame.
struct CoreQuaternion
{
    float x, y, z, w;
};

/// Static helpers; there is no state. Nothing is thrown. What goes wrong is told through the core log, at the
/// severity that each family names; a log whose filter is below that severity costs one comparison.
class MayaUtils
{
public:
    MayaUtils() = delete;

    /// Sets the six standard flags of a freshly created attribute, to be called before it is added to its
    /// node. What Maya answers is not examined.
    static void setAttributeFlags(MFnAttribute& attribute, bool keyable, bool readable, bool writable,
                                  bool hidden, bool array, bool indexMatters);

    /// @name Attributes of a node
    ///
    /// Each reads or writes one attribute, in up to three forms:
    /// - by attribute object: `networked` true looks the plug up, which tells of a node or an attribute that
    ///   does not fit; false makes the plug without a look-up, so that nothing can be told;
    /// - by name, long or short: always a look-up;
    /// - in a data block, inside a node's `compute`. Setters do not mark the attribute clean; that is for the
    ///   `compute` to do.
    ///
    /// Values are in Maya's internal units: centimetres and radians. A getter evaluates what its attribute
    /// depends on.
    ///
    /// Each step that fails is reported at WARNING, and the call goes on: a getter returns what Maya reads
    /// from a plug that is of no use (0, false or an empty text), an array or a matrix is left as Maya leaves
    /// it, and a setter does nothing. Whether the value itself could be read or set is not examined.
    /// @{

    static bool getBoolAttribute(const MObject& node, const MObject& attribute, bool networked);
    static bool getBoolAttribute(const MObject& node, const MString& attributeName);
    static bool getBoolAttribute(MDataBlock& block, const MObject& attribute);
    static void setBoolAttribute(const MObject& node, const MObject& attribute, bool value, bool networked);
    static void setBoolAttribute(const MObject& node, const MString& attributeName, bool value);
    static void setBoolAttribute(MDataBlock& block, const MObject& attribute, bool value);

    static short getShortAttribute(const MObject& node, const MObject& attribute, bool networked);
    static short getShortAttribute(const MObject& node, const MString& attributeName);
    static short getShortAttribute(MDataBlock& block, const MObject& attribute);
    static void setShortAttribute(const MObject& node, const MObject& attribute, short value, bool networked);
    static void setShortAttribute(const MObject& node, const MString& attributeName, short value);
    static void setShortAttribute(MDataBlock& block, const MObject& attribute, short value);

    static int getIntAttribute(const MObject& node, const MObject& attribute, bool networked);
    static int getIntAttribute(const MObject& node, const MString& attributeName);
    static int getIntAttribute(MDataBlock& block, const MObject& attribute);
    static void setIntAttribute(const MObject& node, const MObject& attribute, int value, bool networked);
    static void setIntAttribute(const MObject& node, const MString& attributeName, int value);
    static void setIntAttribute(MDataBlock& block, const MObject& attribute, int value);

    static float getFloatAttribute(const MObject& node, const MObject& attribute, bool networked);
    static float getFloatAttribute(const MObject& node, const MString& attributeName);
    static float getFloatAttribute(MDataBlock& block, const MObject& attribute);
    static void setFloatAttribute(const MObject& node, const MObject& attribute, float value, bool networked);
    static void setFloatAttribute(const MObject& node, const MString& attributeName, float value);
    static void setFloatAttribute(MDataBlock& block, const MObject& attribute, float value);

    static double getDoubleAttribute(const MObject& node, const MObject& attribute, bool networked);
    static double getDoubleAttribute(const MObject& node, const MString& attributeName);
    static double getDoubleAttribute(MDataBlock& block, const MObject& attribute);
    static void setDoubleAttribute(const MObject& node, const MObject& attribute, double value,
                                   bool networked);
    static void setDoubleAttribute(const MObject& node, const MString& attributeName, double value);
    static void setDoubleAttribute(MDataBlock& block, const MObject& attribute, double value);

    /// As getDoubleAttribute, narrowed.
    static float getDoubleAttributeAsFloat(const MObject& node, const MObject& attribute, bool networked);
    static float getDoubleAttributeAsFloat(const MObject& node, const MString& attributeName);
    static float getDoubleAttributeAsFloat(MDataBlock& block, const MObject& attribute);

    static MString getStringAttribute(const MObject& node, const MObject& attribute, bool networked);
    static MString getStringAttribute(const MObject& node, const MString& attributeName);
    static MString getStringAttribute(MDataBlock& block, const MObject& attribute);
    static void setStringAttribute(const MObject& node, const MObject& attribute, const MString& value,
                                   bool networked);
    static void setStringAttribute(const MObject& node, const MString& attributeName, const MString& value);
    static void setStringAttribute(MDataBlock& block, const MObject& attribute, const MString& value);

    /// The first three children of the attribute as x, y and z; w is always 1.
    static MPoint getPointAttribute(const MObject& node, const MObject& attribute, bool networked);
    static MPoint getPointAttribute(const MObject& node, const MString& attributeName);

    /// The attribute's data object.
    static MObject getObjectAttribute(const MObject& node, const MObject& attribute, bool networked);
    static MObject getObjectAttribute(const MObject& node, const MString& attributeName);

    /// The first element of an array of matrices, such as the world matrix of a node's first instance. The
    /// second form reads it in a context of the caller's.
    static void getMatrixAttribute(const MObject& node, const MString& attributeName, MMatrix& result);
    static void getMatrixAttribute(const MObject& node, const MString& attributeName, MMatrix& result,
                                   MDGContext& context);

    /// Replaces what the array held. The form by object always looks the plug up.
    static void getIntArrayAttribute(const MObject& node, const MObject& attribute, MIntArray& result);
    static void getIntArrayAttribute(const MObject& node, const MString& attributeName, MIntArray& result);
    static void setIntArrayAttribute(const MObject& node, const MObject& attribute, const MIntArray& value,
                                     bool networked);

    /// Replaces what the array held.
    static void getDoubleArrayAttribute(const MObject& node, const MObject& attribute, MDoubleArray& result,
                                        bool networked);
    static void getDoubleArrayAttribute(const MObject& node, const MString& attributeName,
                                        MDoubleArray& result);
    static void setDoubleArrayAttribute(const MObject& node, const MObject& attribute,
                                        const MDoubleArray& value, bool networked);

    /// As getDoubleArrayAttribute, narrowed, and appended to what the vector holds: several attributes can be
    /// gathered in one.
    static void getDoubleArrayAttributeAsFloats(const MObject& node, const MObject& attribute,
                                                std::vector<float>& result, bool networked);
    static void getDoubleArrayAttributeAsFloats(const MObject& node, const MString& attributeName,
                                                std::vector<float>& result);

    /// Replaces what the array held.
    static void getStringArrayAttribute(const MObject& node, const MObject& attribute, MStringArray& result,
                                        bool networked);
    static void getStringArrayAttribute(const MObject& node, const MString& attributeName,
                                        MStringArray& result);
    static void setStringArrayAttribute(const MObject& node, const MObject& attribute,
                                        const MStringArray& value, bool networked);

    /// Replaces what the array held.
    static void getVectorArrayAttribute(const MObject& node, const MObject& attribute, MVectorArray& result,
                                        bool networked);
    static void getVectorArrayAttribute(const MObject& node, const MString& attributeName,
                                        MVectorArray& result);
    static void setVectorArrayAttribute(const MObject& node, const MObject& attribute,
                                        const MVectorArray& value, bool networked);

    /// @}

    /// @name Attributes of particles
    ///
    /// One particle's value of a per-particle attribute of a particle shape, by the particle's index.
    /// @param status  may be null
    /// @{

    /// 0 past the last particle, and when the shape or the attribute is none of its kind; the latter is
    /// reported at WARNING. The status is that of the last call to Maya: an index past the end is no failure.
    static double getDoubleAttributePP(const MObject& particleShape, const MString& attributeName,
                                       unsigned int index, MStatus* status);
    /// As getDoubleAttributePP, narrowed.
    static float getDoubleAttributePPAsFloat(const MObject& particleShape, const MString& attributeName,
                                             unsigned int index, MStatus* status);

    /// Changes the value in the data that the shape hands out, which others read from there, and neither
    /// marks anything dirty nor outlasts the next evaluation of the particles. Does nothing past the last
    /// particle, and when the shape or the attribute is none of its kind. A value that cannot be stored is
    /// reported at WARNING.
    static void setDoubleAttributePP(const MObject& particleShape, const MString& attributeName,
                                     unsigned int index, double value);

    /// Zero with MS::kInvalidParameter past the last particle and for an attribute that is no per-particle
    /// vector, and with Maya's failure for a shape that is no particle shape. Nothing is reported.
    static MVector getVectorAttributePP(const MObject& particleShape, const MString& attributeName,
                                        unsigned int index, MStatus* status);

    /// @}

    /// @name Placement of nodes
    ///
    /// Lengths are centimetres unless said otherwise. Each failure is reported once at ERROR, with line and
    /// file, and ends the member; nothing is undone.
    /// @{

    /// The path of the transform that places a node: the node's own when it is a transform, else that of its
    /// first parent. MS::kFailure when neither is a transform, or the node has no parent.
    static MStatus getTransform(const MObject& node, MDagPath& path);

    /// Moves the first parent of a node, which is to be a transform, by an offset in world space from where
    /// it is; a transform that is passed in moves its parent, not itself.
    static MStatus setWorldPosition(const MObject& node, const MVector& offset);

    /// Moves a node by the MEL command `move -r`, in the units of the user interface and with six significant
    /// digits, and puts the selection back. A name that is not unique in the scene cannot be selected. When
    /// the move fails, the node stays selected.
    static MStatus moveNodeByCommand(const MFnDependencyNode& node, double x, double y, double z);

    /// Shows the local axis of a node's first parent.
    static MStatus forceLocalAxisDisplay(const MObject& node);

    /// Whether a node and every ancestor along each of its paths have "visibility" on; an intermediate object
    /// is not visible. What cannot be read counts as not visible, and only a plain MS::kFailure is reported.
    /// @param status  how the last look-up or reading went; may be null
    static bool isVisible(const MFnDagNode& node, MStatus* status);

    /// The nearest ancestor whose type is exactly `type`, first parents first; null when there is none.
    static MObject findParentOfType(const MFnDagNode& node, MFn::Type type);

    /// Where the transform of a node (see getTransform) is in world space; zero when it cannot be told.
    /// @param status  MS::kSuccess only with a value that was read; may be null
    static MVector getWorldTranslation(const MObject& node, MStatus* status);
    /// The rotation pivot of a node's transform in world space, with the same status.
    static MVector getWorldRotatePivot(const MObject& node, MStatus* status);
    /// The scale of a node's transform, with the same status; zero when it cannot be told.
    static MVector getTransformScale(const MObject& node, MStatus* status);

    /// @}

    /// @name Connections
    ///
    /// The four members that connect, disconnect and find by name report their first failure at ERROR, with
    /// line and file; the others report nothing.
    /// @{

    /// Connects two attributes, given by name. What Maya refuses is returned unreported.
    static MStatus connectAttributes(const MObject& sourceNode, const MString& sourceAttribute,
                                     const MObject& destinationNode, const MString& destinationAttribute);
    /// Undoes connectAttributes.
    static MStatus disconnectAttributes(const MObject& sourceNode, const MString& sourceAttribute,
                                        const MObject& destinationNode, const MString& destinationAttribute);

    /// Appends the nodes that feed an attribute, or the elements of an array in their order; a node that
    /// feeds several is listed as often. The status is that of the look-up.
    static MStatus findConnectedNodesOnPlug(const MObject& node, const MString& attributeName,
                                            std::vector<MObject>& nodes);
    /// Appends the nodes that an attribute feeds, in the same way.
    static MStatus findConnectedNodesToPlug(const MObject& node, const MString& attributeName,
                                            std::vector<MObject>& nodes);

    /// As findConnectedNodesOnPlug, by attribute object and without reports.
    /// @param status  how the look-up went; may be null
    static void collectConnectedSources(const MObject& node, const MObject& attribute,
                                        std::vector<MObject>& nodes, MStatus* status);
    /// As findConnectedNodesToPlug, by attribute object and without reports.
    static void collectConnectedDestinations(const MObject& node, const MObject& attribute,
                                             std::vector<MObject>& nodes, MStatus* status);

    /// Queues the removal of every connection of a node, for the caller to run. MS::kFailure for what is no
    /// dependency node, and when a connection cannot be listed or queued.
    static MStatus disconnectAllConnections(const MObject& node, MDGModifier& modifier);
    /// Removes every connection of a node; when one cannot be queued, none.
    static MStatus disconnectAll(const MObject& node);

    /// @}

    /// @name Nodes of the scene
    /// @{

    /// Replaces `meshes` by the mesh nodes at and below the selected items, in the order of selection and
    /// then of children. Maya counts a transform right above a mesh as one.
    /// @param warnIfNone  report at WARNING when there are none
    static void getSelectedMeshes(std::vector<MObject>& meshes, bool warnIfNone);

    /// Appends the paths of the meshes at and below a path, depth first. Below an instanced node that has
    /// several paths, the one that continues `path` is taken: of all paths to the child, the first among
    /// those whose full names share most leading characters, 10,000 at most, with that of its parent here.
    static void collectMeshPaths(const MDagPath& path, std::list<MDagPath>& meshes);

    /// Appends the nodes of one registered type, in the scene's order.
    /// @param filter  the kind of nodes to look at; MFn::kInvalid for all
    static MStatus findNodesByTypeId(std::vector<MObject>& nodes, const MTypeId& typeId, MFn::Type filter);

    /// Sets a string attribute through MEL, and adds it first when the node lacks it. Nothing is reported.
    /// The value is put into the command as it is: it may hold no double quote.
    static void setStringAttributeByCommand(const std::string& node, const std::string& longName,
                                            const std::string& niceName, const std::string& value);

    /// @}

    /// @name Files and dialogs
    /// @{

    /// Makes a folder and those above it. MS::kFailure, with a line on standard error, when Maya could not.
    /// @param display  show the command in the script editor
    static MStatus createDirectory(const std::string& path, bool display);

    /// The folder of the current project, without a slash at its end.
    static std::string getWorkspacePath();

    /// The file name of the scene without its folder; empty when it has none.
    /// @param stripExtension  keep only what stands before the first "."
    static std::string getSceneShortName(bool stripExtension);

    /// Lets the user choose a file: an existing one, or the name of any. Empty when there is no choice. A
    /// dialog that cannot be opened or read is reported at WARNING.
    /// @param filter  the kinds offered, as "Scenes (*.ma *.mb);;All (*)"
    static MString getFilePath(const MString& filter, bool existingFile);

    /// Lets the user choose a folder, as getFilePath does.
    /// @param startingDirectory  the folder shown first; empty for Maya's choice
    static MString getDirectoryPath(const MString& startingDirectory);

    /// @}

    /// @name Windows
    /// @{

    /// Stores where a window of this name opens next: the upper left corner and the size, in pixels.
    static void restoreWindowPreference(const char* name, int top, int left, int width, int height);
    /// Has Maya write the preferences of all windows to its file.
    static void saveAllWindowPreferences();
    /// Reads where a window of this name opens; without a stored preference all four stay as they are.
    static void getWindowPreference(const char* name, int& top, int& left, int& width, int& height);

    /// The application's main window, for dialogs to stand above: the first one without a parent. Null when
    /// there is none. Defined in a library of its own, for the sake of those who do without Qt.
    static QMainWindow* getMainWindow();

    /// @}

    /// @name Time and units
    /// @{

    /// The current time, in frames or whatever unit the user has chosen.
    static float getCurrentFrame();
    static double getCurrentTimeInSeconds();
    /// The length of one unit of the user's time, in seconds.
    static double getFrameDuration();

    /// How many of the user's units of length a centimetre is.
    static float getUIUnitScale();
    /// From centimetres to the user's unit of length, and back.
    static MVector internalToUIUnits(const MVector& lengths);
    static MVector uiToInternalUnits(const MVector& lengths);

    /// @}

    /// @name Geometry in the core library's frame and units
    ///
    /// The point (x, y, z) of Maya is the ground point (-x, z) of the core library. Nothing is reported.
    /// @{

    /// A length in another unit.
    static float convertDistance(float value, core::DistanceUnit from, core::DistanceUnit to);
    /// A length in the first unit, centimetres, in another one.
    static float convertDistanceTo(float value, core::DistanceUnit to);

    /// An angle in radians, half a turn further.
    static float shiftedRadians(const MAngle& angle);

    /// An orientation of Maya's in the core library's frame.
    static CoreQuaternion toCoreOrientation(const MQuaternion& orientation);

    /// The outline of a mesh's open border as ground points, in the mesh's own space: one for each border
    /// edge, in the order of walking. The walk begins at the first border edge, follows that border only, and
    /// ends where it is closed. MS::kFailure and no points when there is no border, and for what is no mesh.
    static MStatus getMeshBoundary(const MDagPath& mesh, std::vector<core::Vector2<float>>& outline);

    /// The convex hull of all vertices of a mesh as ground points, in world space, counter-clockwise. Always
    /// MS::kSuccess; without vertices the hull is empty.
    static MStatus getMeshConvexHull(const MDagPath& mesh, std::vector<core::Vector2<float>>& hull);

    /// A number that no other node of a type has in an integer attribute of theirs: below the smallest when
    /// that is above 1, else above the largest. 1 when there is no other node, and when the last one found
    /// has a number below 1.
    static int findFreeIndex(const MObject& excludedNode, const MObject& attribute, const MTypeId& typeId);

    /// The name of the shape below a transform, or of the shape itself. Left as it is when there is no such
    /// node; a transform without a shape gives its own name.
    static MStatus getShapeName(const MObject& node, MString& name);

    /// How many elements of an array attribute are connected; 0 when it cannot be told.
    static unsigned int countConnectedElements(const MObject& node, const MObject& attribute);

    /// @}

    /// @name Arguments of commands
    ///
    /// Each reads the value that follows a flag.
    /// - `index`: in, the flag's place in the list; out, that of the value, for a point or an array that of
    ///   its last element. Arrays begin with the number of their elements.
    /// - `value`: what Maya reads there, also when that fails.
    ///
    /// False when there is no such value. Nothing changes when the index is not one of the list.
    /// @{

    static bool readArgument(const MArgList& arguments, unsigned int& index, MString& value);
    static bool readArgument(const MArgList& arguments, unsigned int& index, double& value);
    static bool readArgument(const MArgList& arguments, unsigned int& index, float& value);
    static bool readArgument(const MArgList& arguments, unsigned int& index, int& value);
    static bool readArgument(const MArgList& arguments, unsigned int& index, bool& value);
    static bool readArgument(const MArgList& arguments, unsigned int& index, MPoint& value);
    static bool readArgument(const MArgList& arguments, unsigned int& index, MIntArray& value);
    static bool readArgument(const MArgList& arguments, unsigned int& index, MStringArray& value);
    /// An array of doubles, three to a vector; vectors are appended to what the array holds, and doubles that
    /// make no whole vector are left out.
    static bool readArgument(const MArgList& arguments, unsigned int& index, MVectorArray& value);

    /// @}
};

} // namespace tarvox::crowd
