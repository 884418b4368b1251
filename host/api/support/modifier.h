// What stands behind a MDGModifier: operations in a queue, done and undone in order.
#pragma once

#include "status.h"

#include <maya/MTypes.h>

#include <cstddef>
#include <functional>
#include <vector>

namespace tvxhost::api {

/// Whether MDGModifier::disconnect insists on the source coming first. By default a connected pair is
/// disconnected in either order.
OPENMAYA_EXPORT void setStrictDisconnect(bool strict);
OPENMAYA_EXPORT bool isDisconnectStrict();

struct Modifier
{
    /// One change; `revert` is only called after `perform` succeeded, and `perform` again only after
    /// `revert`.
    struct Operation
    {
        std::function<MStatus()> perform;
        std::function<MStatus()> revert;
        /// Called when the operation is forgotten without being done; may be empty.
        std::function<void()> discard = nullptr;
    };

    Modifier() = default;
    Modifier(const Modifier&) = default;
    Modifier& operator=(const Modifier&) = default;
    ~Modifier() { forgetRest(); }

    /// Does what is queued and not done yet. When an operation fails, those before it stay done, and it is
    /// forgotten with all that follow.
    MStatus doIt();
    /// Takes back what was done, last first.
    MStatus undoIt();

    std::vector<Operation> queue;
    std::size_t done = 0; ///< how many of them, from the front

private:
    void forgetRest();
};

} // namespace tvxhost::api
