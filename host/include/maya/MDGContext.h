// MDGContext: the time at which the graph is evaluated.
#pragma once

#include <maya/MStatus.h>
#include <maya/MTypes.h>
#include <maya/tvxEngine.h>

class MTime;

/// The time at which the graph is evaluated: the normal context is the current time, with all values kept in
/// the nodes; any other evaluates at its own time and keeps nothing.
class OPENMAYA_EXPORT MDGContext
{
public:
    /// The normal context.
    MDGContext();

    /// At a given time.
    MDGContext(const MTime& when);
    MDGContext(const MDGContext& in);
    ~MDGContext();

    MDGContext& operator=(const MDGContext& other);

    /// Whether this is the normal context.
    bool isNormal(MStatus* ReturnStatus = nullptr) const;

    /// The time of the context; a failure for the normal one.
    MStatus getTime(MTime& value) const;

    /// The name of this class.
    static const char* className();

    static MDGContext fsNormal; ///< the normal context

private:
    friend class tvxAccess;

    tvxhost::api::DGContext* context; ///< owned; null for the normal context
};
