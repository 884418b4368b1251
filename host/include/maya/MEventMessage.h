// MEventMessage: callbacks for the events that scripts know by name.
#pragma once

#include <maya/MMessage.h>

/// Callbacks for the events that scripts know by name: "SelectionChanged", "timeChanged", "idle" and others.
class OPENMAYA_EXPORT MEventMessage : public MMessage
{
public:
    /// Gives the id of the callback; 0 and kInvalidParameter for a name that is no event, or without a
    /// function. Events of what the host has not (tools, panels, colours of the interface, rendering) have
    /// names, and never happen.
    static MCallbackId addEventCallback(const MString& event, MBasicFunction func, void* clientData = nullptr,
                                        MStatus* ReturnStatus = nullptr);

    /// The names of all events, in alphabetical order.
    static MStatus getEventNames(MStringArray& names);

    /// The name of this class.
    static const char* className();
};
