// MRichSelection: a selection with its mirror image, which is empty here.
#include <maya/MMatrix.h>
#include <maya/MRichSelection.h>
#include <maya/MSelectionList.h>

#include "support/apiCall.h"

using namespace tvxhost::api;

MRichSelection::MRichSelection() : list(new MSelectionList) {}

MRichSelection::MRichSelection(const MRichSelection& src) : list(new MSelectionList(*src.list)) {}

MRichSelection::~MRichSelection()
{
    delete list;
}

MStatus MRichSelection::getSelection(MSelectionList& selection) const
{
    TVX_API_CALL("MRichSelection::getSelection");
    selection = *list;
    return MS::kSuccess;
}

MStatus MRichSelection::getSymmetry(MSelectionList& symmetry) const
{
    TVX_API_CALL("MRichSelection::getSymmetry");
    symmetry.clear();
    return MS::kSuccess;
}

MStatus MRichSelection::getSymmetryMatrix(MMatrix&, MSpace::Space&) const
{
    TVX_API_CALL("MRichSelection::getSymmetryMatrix");
    return failure(StatusText::unexpectedFailure);
}

MStatus MRichSelection::getSymmetryMatrix(const MDagPath&, MSpace::Space, MMatrix&) const
{
    TVX_API_CALL("MRichSelection::getSymmetryMatrix");
    return failure(StatusText::unexpectedFailure);
}

MStatus MRichSelection::getSymmetryPlane(const MDagPath&, MSpace::Space, MPlane&) const
{
    TVX_API_CALL("MRichSelection::getSymmetryPlane");
    return failure(StatusText::unexpectedFailure);
}

MStatus MRichSelection::clear()
{
    TVX_API_CALL("MRichSelection::clear");
    return list->clear();
}

MStatus MRichSelection::setSelection(const MSelectionList& selection)
{
    TVX_API_CALL("MRichSelection::setSelection");
    *list = selection;
    return MS::kSuccess;
}

const char* MRichSelection::className()
{
    return "MRichSelection";
}
