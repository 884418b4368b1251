// What stands behind a MDGModifier: operations in a queue, done and undone in order.
#include "modifier.h"

#include <atomic>

namespace tvxhost::api {

namespace {

std::atomic<bool> strictDisconnect{false};

} // namespace

void setStrictDisconnect(bool strict)
{
    strictDisconnect = strict;
}

bool isDisconnectStrict()
{
    return strictDisconnect;
}

MStatus Modifier::doIt()
{
    for (; done < queue.size(); ++done) {
        const MStatus status = queue[done].perform();
        if (!status) {
            forgetRest();
            return status;
        }
    }
    return MS::kSuccess;
}

void Modifier::forgetRest()
{
    for (std::size_t i = done; i < queue.size(); ++i)
        if (queue[i].discard)
            queue[i].discard();
    queue.resize(done);
}

MStatus Modifier::undoIt()
{
    for (; done > 0; --done)
        if (const MStatus status = queue[done - 1].revert(); !status)
            return status;
    return MS::kSuccess;
}

} // namespace tvxhost::api
