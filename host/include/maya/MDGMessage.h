// MDGMessage: callbacks for what happens to the graph as a whole.
#pragma once

#include <maya/MMessage.h>
#include <maya/MString.h>

/// The type from which all nodes are derived.
#define kDefaultNodeType "dependNode"

/// Callbacks for time, nodes and connections. To register gives the id of the callback, and 0 on failure:
/// kInvalidParameter without a function.
class OPENMAYA_EXPORT MDGMessage : public MMessage
{
public:
    /// The time was changed; the function is given the new one. The host never runs time up to a frame, so
    /// those of the third kind are not called.
    static MCallbackId addTimeChangeCallback(MTimeFunction func, void* clientData = nullptr,
                                             MStatus* ReturnStatus = nullptr);
    static MCallbackId addDelayedTimeChangeCallback(MTimeFunction func, void* clientData = nullptr,
                                                    MStatus* ReturnStatus = nullptr);
    static MCallbackId addDelayedTimeChangeRunupCallback(MTimeFunction func, void* clientData = nullptr,
                                                         MStatus* ReturnStatus = nullptr);

    /// The same, for those who draw or compute by themselves.
    static MCallbackId addForceUpdateCallback(MTimeFunction func, void* clientData = nullptr,
                                              MStatus* ReturnStatus = nullptr);

    /// A node of a type, or of one derived from it, came or is out of the scene. kInvalidParameter for a type
    /// that nobody knows.
    static MCallbackId addNodeAddedCallback(MNodeFunction func, const MString& nodeType = kDefaultNodeType,
                                            void* clientData = nullptr, MStatus* ReturnStatus = nullptr);
    static MCallbackId addNodeRemovedCallback(MNodeFunction func, const MString& nodeType = kDefaultNodeType,
                                              void* clientData = nullptr, MStatus* ReturnStatus = nullptr);

    /// A connection was made or broken, or is about to be.
    static MCallbackId addConnectionCallback(MPlugFunction func, void* clientData = nullptr,
                                             MStatus* ReturnStatus = nullptr);
    static MCallbackId addPreConnectionCallback(MPlugFunction func, void* clientData = nullptr,
                                                MStatus* ReturnStatus = nullptr);

    /// Not done by the host: kNotImplemented.
    static MCallbackId addNodeChangeUuidCheckCallback(MCheckNodeUuidFunction func, void* clientData = nullptr,
                                                      MStatus* ReturnStatus = nullptr);
};
