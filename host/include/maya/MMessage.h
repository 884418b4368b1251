// MMessage: what all kinds of callback have in common.
#pragma once

#include <maya/MCallbackIdArray.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>

class MDagPath;
class MDGModifier;
class MFileObject;
class MIntArray;
class MObject;
class MObjectArray;
class MPlug;
class MPlugArray;
class MString;
class MStringArray;
class MTime;
class MUintArray;
class MUuid;
class QObject;

/// What Maya keeps of a callback.
typedef struct MMessageNode* MMessageNodePtr;

/// Base class of those with which callbacks are registered. A callback is a function and a pointer that it is
/// given; it is called on the main thread, may add and remove callbacks, itself included, and edit the scene.
/// A plug-in must remove its callbacks before it is unloaded. Those for one node go with that node.
class OPENMAYA_EXPORT MMessage
{
public:
    /// What a callback that is asked says.
    enum Action
    {
        kDefaultAction = 0,
        kDoNotDoAction = 1,
        kDoAction = 2,
    };

    // Functions; the last argument is the pointer that was given with them.
    typedef void (*MBasicFunction)(void* clientData);
    typedef void (*MElapsedTimeFunction)(float elapsedTime, float lastTime, void* clientData);
    typedef void (*MCheckFunction)(bool* retCode, void* clientData);
    typedef void (*MCheckFileFunction)(bool* retCode, MFileObject& file, void* clientData);
    typedef void (*MCheckPlugFunction)(bool* retCode, MPlug& plug, void* clientData);
    typedef void (*MComponentFunction)(MUintArray componentIds[], unsigned int count, void* clientData);
    typedef void (*MNodeFunction)(MObject& node, void* clientData);
    typedef void (*MStringFunction)(const MString& str, void* clientData);
    typedef void (*MTwoStringFunction)(const MString& str1, const MString& str2, void* clientData);
    typedef void (*MThreeStringFunction)(const MString& str1, const MString& str2, const MString& str3,
                                         void* clientData);
    typedef void (*MStringIntBoolIntFunction)(const MString& str, unsigned int index, bool flag,
                                              unsigned int type, void* clientData);
    typedef void (*MStringIndexFunction)(const MString& str, unsigned int index, void* clientData);
    typedef void (*MNodeStringBoolFunction)(MObject& node, const MString& str, bool flag, void* clientData);
    typedef void (*MStateFunction)(bool state, void* clientData);
    typedef void (*MTimeFunction)(MTime& time, void* clientData);
    typedef void (*MPlugFunction)(MPlug& srcPlug, MPlug& destPlug, bool made, void* clientData);
    typedef void (*MNodePlugFunction)(MObject& node, MPlug& plug, void* clientData);
    typedef void (*MNodeStringFunction)(MObject& node, const MString& str, void* clientData);
    typedef void (*MParentChildFunction)(MDagPath& child, MDagPath& parent, void* clientData);
    typedef void (*MModifierFunction)(MDGModifier& modifier, void* clientData);
    typedef void (*MStringArrayFunction)(const MStringArray& strs, void* clientData);
    typedef void (*MNodeModifierFunction)(MObject& node, MDGModifier& modifier, void* clientData);
    typedef void (*MObjArray)(MObjectArray& objects, void* clientData);
    typedef void (*MNodeObjArray)(MObject& node, MObjectArray& objects, void* clientData);
    typedef void (*MStringNode)(const MString& str, MObject& node, void* clientData);
    typedef void (*MCameraLayerFunction)(MObject& cameraSetNode, unsigned int multiIndex, bool added,
                                         void* clientData);
    typedef void (*MCameraLayerCameraFunction)(MObject& cameraSetNode, unsigned int multiIndex,
                                               MObject& oldCamera, MObject& newCamera, void* clientData);
    typedef void (*MConnFailFunction)(MPlug& srcPlug, MPlug& destPlug, const MString& srcPlugName,
                                      const MString& destPlugName, void* clientData);
    typedef void (*MPlugsDGModFunction)(MPlugArray& plugs, MDGModifier& modifier, void* clientData);
    typedef void (*MNodeUuidFunction)(MObject& node, const MUuid& uuid, void* clientData);
    typedef Action (*MCheckNodeUuidFunction)(bool doAction, MObject& node, MUuid& uuid, void* clientData);
    typedef void (*MObjectFileFunction)(const MObject& object, const MFileObject& file, void* clientData);
    typedef void (*MCheckObjectFileFunction)(bool* retCode, const MObject& referenceNode, MFileObject& file,
                                             void* clientData);

    /// Removes a callback; kInvalidParameter for an id that none has.
    static MStatus removeCallback(MCallbackId id);

    /// Removes several; what is not there fails, the others are removed all the same.
    static MStatus removeCallbacks(MCallbackIdArray& ids);

    /// The callback that is being called; 0 and kFailure when none is.
    static MCallbackId currentCallbackId(MStatus* ReturnStatus = nullptr);

    /// The callbacks for one node, in the order of adding. kInvalidParameter for what is no node.
    static MStatus nodeCallbacks(MObject& node, MCallbackIdArray& ids);

    /// For Maya's own use: that the next callback to be registered is a script.
    static void setRegisteringCallableScript();
    static bool registeringCallableScript();

    /// The name of this class.
    static const char* className();

    /// Obsolete: ids are larger than the elements of these arrays.
    static MStatus removeCallbacks(MIntArray& ids);
    static MStatus nodeCallbacks(MObject& node, MIntArray& ids);

protected:
    /// For Maya's own use: kNotImplemented.
    static void addNode(MMessageNodePtr node);
    static void removeNode(MMessageNodePtr node);
    static void addQtUICallback(QObject* client);
};
