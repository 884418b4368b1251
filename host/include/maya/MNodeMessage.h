// MNodeMessage: callbacks for what happens to one node.
#pragma once

#include <maya/MMessage.h>

/// Callbacks for what happens to one node. They are called until they are removed or the node is gone for
/// good. To register gives the id of the callback, and 0 on failure: kInvalidParameter for what is no node or
/// no function.
class OPENMAYA_EXPORT MNodeMessage : public MMessage
{
public:
    /// What happened to an attribute: one of these, with those from kIncomingDirection on added.
    enum AttributeMessage
    {
        kConnectionMade = 0x01,
        kConnectionBroken = 0x02,
        kAttributeEval = 0x04,
        kAttributeSet = 0x08,
        kAttributeLocked = 0x10,
        kAttributeUnlocked = 0x20,
        kAttributeAdded = 0x40,
        kAttributeRemoved = 0x80,
        kAttributeRenamed = 0x100,
        kAttributeKeyable = 0x200,
        kAttributeUnkeyable = 0x400,
        kIncomingDirection = 0x800, ///< the plug is a destination, or a value was set
        kAttributeArrayAdded = 0x1000,
        kAttributeArrayRemoved = 0x2000,
        kOtherPlugSet = 0x4000, ///< the other plug is the other end of the connection
        kLast = 0x8000,
    };

    /// What is about to be done to a plug.
    enum KeyableChangeMsg
    {
        kKeyChangeInvalid = 0,
        kMakeKeyable = 1,
        kMakeUnkeyable = 2,
        kKeyChangeLast = 3,
    };

    typedef void (*MAttr2PlugFunction)(MNodeMessage::AttributeMessage msg, MPlug& plug, MPlug& otherPlug,
                                       void* clientData);
    typedef void (*MAttrPlugFunction)(MNodeMessage::AttributeMessage msg, MPlug& plug, void* clientData);
    typedef void (*MKeyableFunction)(MPlug& plug, void* clientData, MNodeMessage::KeyableChangeMsg msg,
                                     bool& retCode);

    /// A value was set or computed, a plug connected, disconnected, locked, made keyable, an element added.
    static MCallbackId addAttributeChangedCallback(MObject& node, MAttr2PlugFunction func,
                                                   void* clientData = nullptr,
                                                   MStatus* ReturnStatus = nullptr);

    /// A dynamic attribute came or went.
    static MCallbackId addAttributeAddedOrRemovedCallback(MObject& node, MAttrPlugFunction func,
                                                          void* clientData = nullptr,
                                                          MStatus* ReturnStatus = nullptr);

    /// A plug is not up to date any more, or was set.
    static MCallbackId addNodeDirtyCallback(MObject& node, MNodeFunction func, void* clientData = nullptr,
                                            MStatus* ReturnStatus = nullptr);
    static MCallbackId addNodeDirtyPlugCallback(MObject& node, MNodePlugFunction func,
                                                void* clientData = nullptr, MStatus* ReturnStatus = nullptr);

    /// The node was renamed: the text is its former name. The null object asks for all nodes.
    static MCallbackId addNameChangedCallback(MObject& node, MNodeStringFunction func,
                                              void* clientData = nullptr, MStatus* ReturnStatus = nullptr);

    /// It has another identity: the former one is given. The null object asks for all nodes.
    static MCallbackId addUuidChangedCallback(MObject& node, MNodeUuidFunction func,
                                              void* clientData = nullptr, MStatus* ReturnStatus = nullptr);

    /// It is about to be deleted by somebody, not with its scene. What is queued in the modifier is done
    /// first.
    static MCallbackId addNodeAboutToDeleteCallback(MObject& node, MNodeModifierFunction func,
                                                    void* clientData = nullptr,
                                                    MStatus* ReturnStatus = nullptr);

    /// It is about to leave the scene, for whatever reason; its connections are still there.
    static MCallbackId addNodePreRemovalCallback(MObject& node, MNodeFunction func,
                                                 void* clientData = nullptr, MStatus* ReturnStatus = nullptr);

    /// It is gone for good: no undo brings it back.
    static MCallbackId addNodeDestroyedCallback(MObject& node, MBasicFunction func,
                                                void* clientData = nullptr, MStatus* ReturnStatus = nullptr);

    /// Asks before a plug is made keyable or not; it stays as it is when the answer is false.
    static MCallbackId addKeyableChangeOverride(MPlug& plug, MKeyableFunction func,
                                                void* clientData = nullptr, MStatus* status = nullptr);

    /// The name of this class.
    static const char* className();

    /// Obsolete forms with other functions.
    static MCallbackId addNodeDirtyCallback(MObject& node, MBasicFunction func, void* clientData = nullptr,
                                            MStatus* ReturnStatus = nullptr);
    static MCallbackId addNodeDirtyCallback(MObject& node, MNodePlugFunction func, void* clientData = nullptr,
                                            MStatus* ReturnStatus = nullptr);
    static MCallbackId addNameChangedCallback(MObject& node, MNodeFunction func, void* clientData = nullptr,
                                              MStatus* ReturnStatus = nullptr);
    static MCallbackId addNodeAboutToDeleteCallback(MObject& node, MModifierFunction func,
                                                    void* clientData = nullptr,
                                                    MStatus* ReturnStatus = nullptr);
};
