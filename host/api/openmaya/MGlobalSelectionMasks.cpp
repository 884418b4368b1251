// MGlobal: what the user's cursor can select, and the selection with its mirror image.
#include <maya/MGlobal.h>
#include <maya/MRichSelection.h>
#include <maya/MSelectionList.h>

#include "support/apiCall.h"

using namespace tvxhost::api;

namespace {

/// What can be selected in this session.
struct SelectionMasks
{
    MSelectionMask object = MSelectionMask::kSelectObjectsMask;
    MSelectionMask component = MSelectionMask::kSelectComponentsMask;
    MSelectionMask anim = MSelectionMask::kSelectAnimMask;
    MSelectionMask misc;
};

SelectionMasks& masks()
{
    static SelectionMasks all;
    return all;
}

} // namespace

#define TVX_SELECTION_MASK(getter, setter, mask)                                                             \
    MSelectionMask MGlobal::getter(MStatus* ReturnStatus)                                                    \
    {                                                                                                        \
        TVX_API_CALL_OR("MGlobal::" #getter, ReturnStatus, MSelectionMask());                                \
        giveSuccess(ReturnStatus);                                                                           \
        return masks().mask;                                                                                 \
    }                                                                                                        \
    MStatus MGlobal::setter(const MSelectionMask& newMask)                                                   \
    {                                                                                                        \
        TVX_API_CALL("MGlobal::" #setter);                                                                   \
        masks().mask = newMask;                                                                              \
        return MS::kSuccess;                                                                                 \
    }

TVX_SELECTION_MASK(objectSelectionMask, setObjectSelectionMask, object)
TVX_SELECTION_MASK(componentSelectionMask, setComponentSelectionMask, component)
TVX_SELECTION_MASK(animSelectionMask, setAnimSelectionMask, anim)
TVX_SELECTION_MASK(miscSelectionMask, setMiscSelectionMask, misc)

#undef TVX_SELECTION_MASK

MStatus MGlobal::getRichSelection(MRichSelection& dest, bool defaultToActiveSelection)
{
    TVX_API_CALL("MGlobal::getRichSelection");
    if (!defaultToActiveSelection)
        return failure(StatusText::unexpectedFailure);
    MSelectionList list;
    const MStatus status = getActiveSelectionList(list);
    return status ? dest.setSelection(list) : status;
}

MStatus MGlobal::setRichSelection(const MRichSelection& src)
{
    TVX_API_CALL("MGlobal::setRichSelection");
    MSelectionList list;
    const MStatus status = src.getSelection(list);
    return status ? setActiveSelectionList(list) : status;
}
