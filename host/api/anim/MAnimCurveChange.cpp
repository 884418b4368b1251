// MAnimCurveChange: edits of animation curves that can be taken back.
#include <maya/MAnimCurveChange.h>

#include "support/apiCall.h"
#include "support/curveSet.h"

#include <algorithm>

using namespace tvxhost;
using api::CurveChanges;

namespace {

MStatus restore(const engine::Ref<engine::Node>& curve, const engine::AnimCurveKeys& keys)
{
    if (!curve->isAlive())
        return api::failure(api::StatusText::objectDoesNotExist);
    return api::toStatus(engine::writeCurve(*curve, keys));
}

} // namespace

MAnimCurveChange::MAnimCurveChange(MStatus* ReturnStatus) : changes(new CurveChanges)
{
    TVX_API_CONSTRUCTION("MAnimCurveChange::MAnimCurveChange", ReturnStatus);
    api::giveSuccess(ReturnStatus);
}

MAnimCurveChange::~MAnimCurveChange()
{
    delete changes;
}

MStatus MAnimCurveChange::undoIt()
{
    TVX_API_CALL("MAnimCurveChange::undoIt");
    for (auto edit = changes->edits.rbegin(); edit != changes->edits.rend(); ++edit)
        if (const MStatus restored = restore(edit->curve, edit->before); !restored)
            return restored;
    return MS::kSuccess;
}

MStatus MAnimCurveChange::redoIt()
{
    TVX_API_CALL("MAnimCurveChange::redoIt");
    for (const CurveChanges::Edit& edit : changes->edits)
        if (const MStatus restored = restore(edit.curve, edit.after); !restored)
            return restored;
    return MS::kSuccess;
}

bool MAnimCurveChange::isInteractive() const
{
    return changes->isInteractive;
}

void MAnimCurveChange::setInteractive(bool value)
{
    changes->isInteractive = value;
}

const char* MAnimCurveChange::className()
{
    return "MAnimCurveChange";
}
