// MSelectionMask: which kinds of things can be selected.
#pragma once

#include <maya/MStatus.h>
#include <maya/MTypes.h>

class MString;

/// A set of kinds of things that can be selected. Some kinds stand for several: kSelectLocators,
/// kSelectVertices, kSelectEdges, kSelectFacets, kSelectMeshLines, kSelectMeshComponents, kSelectPivots,
/// kSelectObjectsMask, kSelectComponentsMask, kSelectAnimMask and kSelectAnimAny.
class OPENMAYA_EXPORT MSelectionMask
{
public:
    enum SelectionType
    {
        // Objects
        kSelectHandles = 0,
        kSelectLocalAxis = 1,
        kSelectIkHandles = 2,
        kSelectIkEndEffectors = 3,
        kSelectJoints = 4,
        kSelectLights = 5,
        kSelectCameras = 6,
        kSelectLattices = 7,
        kSelectClusters = 8,
        kSelectSculpts = 9,
        kSelectNurbsCurves = 10,
        kSelectNurbsSurfaces = 11,
        kSelectMeshes = 12,
        kSelectSubdiv = 13,
        kSelectSketchPlanes = 14,
        kSelectParticleShapes = 15,
        kSelectEmitters = 16,
        kSelectFields = 17,
        kSelectSprings = 18,
        kSelectRigidBodies = 19,
        kSelectRigidConstraints = 20,
        kSelectCollisionModels = 21,
        kSelectXYZLocators = 22,
        kSelectOrientationLocators = 23,
        kSelectUVLocators = 24,
        kSelectTextures = 25,
        kSelectCurves = 26,
        kSelectSurfaces = 27,
        kSelectLocators = 28,
        kSelectObjectsMask = 29,

        // Components
        kSelectCVs = 30,
        kSelectHulls = 31,
        kSelectEditPoints = 32,
        kSelectMeshVerts = 33,
        kSelectMeshEdges = 34,
        kSelectMeshFreeEdges = 35,
        kSelectMeshFaces = 36,
        kSelectSubdivMeshPoints = 37,
        kSelectSubdivMeshEdges = 38,
        kSelectSubdivMeshFaces = 39,
        kSelectMeshUVs = 40,
        kSelectVertices = 41,
        kSelectEdges = 42,
        kSelectFacets = 43,
        kSelectMeshLines = 44,
        kSelectMeshComponents = 45,
        kSelectCurveParmPoints = 46,
        kSelectCurveKnots = 47,
        kSelectSurfaceParmPoints = 48,
        kSelectSurfaceKnots = 49,
        kSelectSurfaceRange = 50,
        kSelectSurfaceEdge = 51,
        kSelectIsoparms = 52,
        kSelectCurvesOnSurfaces = 53,
        kSelectPPStrokes = 54,
        kSelectLatticePoints = 55,
        kSelectParticles = 56,
        kSelectJointPivots = 57,
        kSelectScalePivots = 58,
        kSelectRotatePivots = 59,
        kSelectPivots = 60,
        kSelectSelectHandles = 61,
        kSelectComponentsMask = 62,

        // Animation
        kSelectAnimCurves = 63,
        kSelectAnimKeyframes = 64,
        kSelectAnimInTangents = 65,
        kSelectAnimOutTangents = 66,
        kSelectAnimMask = 67,
        kSelectAnimAny = 68,

        // Others
        kSelectTemplates = 69,
        kSelectManipulators = 70,
        kSelectGuideLines = 71,
        kSelectPointsForGravity = 72,
        kSelectPointsOnCurvesForGravity = 73,
        kSelectPointsOnSurfacesForGravity = 74,
        kSelectObjectGroups = 75,
        kSelectSubdivMeshMaps = 76,

        // Objects that came later
        kSelectFluids = 77,
        kSelectHairSystems = 78,
        kSelectFollicles = 79,
        kSelectNCloths = 80,
        kSelectNRigids = 81,
        kSelectDynamicConstraints = 82,
        kSelectNParticles = 83,
    };

    /// Nothing, one kind, a kind that was registered by name (nothing for another name), or a copy.
    MSelectionMask();
    MSelectionMask(SelectionType selType);
    MSelectionMask(const MString& selTypeName);
    MSelectionMask(const MSelectionMask& in);
    virtual ~MSelectionMask();

    /// Replaces what the mask holds.
    MStatus setMask(SelectionType selType);
    MStatus setMask(MSelectionMask& mask);

    /// Adds a kind.
    MStatus addMask(SelectionType selType);

    /// Whether something is in both.
    bool intersects(SelectionType selType, MStatus* ReturnStatus = nullptr) const;
    bool intersects(MSelectionMask& mask, MStatus* ReturnStatus = nullptr) const;

    /// This mask and another; neither changes.
    MSelectionMask operator|(SelectionType selType);
    MSelectionMask operator|(MSelectionMask& mask);
    MSelectionMask& operator=(const MSelectionMask& other);

    /// Adds a kind of its own for a plug-in's objects: false when the name is taken or there are too many.
    /// Of two objects under the cursor that of the higher priority is selected.
    static bool registerSelectionType(const MString& selTypeName, int priority = 0);

    /// Removes it; false when there is none.
    static bool deregisterSelectionType(const MString& selTypeName);

    /// Its priority; 0 when there is none.
    static int getSelectionTypePriority(const MString& selTypeName);

private:
    friend class tvxAccess;

    unsigned long bits[2];
};
