// MRichSelection: a selection with its mirror image.
#pragma once

#include <maya/MSpace.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>

class MDagPath;
class MMatrix;
class MPlane;
class MSelectionList;

/// A selection together with what lies opposite to it. The host selects nothing by symmetry, so the opposite
/// side is empty here and there is neither matrix nor plane.
class OPENMAYA_EXPORT MRichSelection
{
public:
    MRichSelection();
    MRichSelection(const MRichSelection& src);
    virtual ~MRichSelection();

    /// What is selected.
    MStatus getSelection(MSelectionList& selection) const;

    /// What lies opposite.
    MStatus getSymmetry(MSelectionList& symmetry) const;

    /// From one side to the other; kFailure without symmetry.
    MStatus getSymmetryMatrix(MMatrix& symmetryMatrix, MSpace::Space& space) const;
    MStatus getSymmetryMatrix(const MDagPath& path, MSpace::Space space, MMatrix& symmetryMatrix) const;

    /// The plane between the sides; kFailure without symmetry.
    MStatus getSymmetryPlane(const MDagPath& path, MSpace::Space space, MPlane& plane) const;

    /// Empties both sides.
    MStatus clear();

    MStatus setSelection(const MSelectionList& selection);

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;

    MRichSelection& operator=(const MRichSelection&) = delete;

    MSelectionList* list; ///< owned
};
