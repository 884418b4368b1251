// MFnNurbsSurface: NURBS surfaces.
#pragma once

#include <maya/MFn.h>
#include <maya/MFnDagNode.h>
#include <maya/MObject.h>
#include <maya/MObjectArray.h>
#include <maya/MPoint.h>
#include <maya/MSpace.h>
#include <maya/MStatus.h>
#include <maya/MTesselationParams.h>
#include <maya/MTypes.h>
#include <maya/MVector.h>

struct ag_curve;
class MDagPath;
class MDoubleArray;
class MFloatArray;
class MIntArray;
class MPointArray;
class MTrimBoundaryArray;
class TnurbsCurvePtrArray;

#ifndef kMFnNurbsEpsilon
/// How near is near enough, in centimetres.
#define kMFnNurbsEpsilon 1.0e-3
#endif

/// Function set for NURBS surface shapes. Lengths are centimetres. In each direction there are as many knots
/// as control points and degree minus 1; control points lie one after the other along V for the first place
/// in U, then for the next. kWorld takes the path that the set was built on, or the first one. Surfaces are
/// those that are not trimmed: members fail with kInvalidParameter on others. What the host does not do
/// answers kNotImplemented.
class OPENMAYA_EXPORT MFnNurbsSurface : public MFnDagNode
{
public:
    /// How the ends of a direction meet.
    enum Form
    {
        kInvalid = 0,
        kOpen = 1,
        kClosed = 2,
        kPeriodic = 3,
        kLast = 4,
    };

    /// What a boundary of a trimmed region is.
    enum BoundaryType
    {
        kInvalidBoundary = 0,
        kOuter = 1,
        kInner = 2,
        kSegment = 3,
        kClosedSegment = 4,
    };

    MFn::Type type() const override;
    ~MFnNurbsSurface() override;

    /// Attached to nothing, to a surface, or to one instance of it.
    MFnNurbsSurface();
    MFnNurbsSurface(MObject& object, MStatus* ret TVX_OPTIONAL_STATUS);
    MFnNurbsSurface(const MDagPath& object, MStatus* ret TVX_OPTIONAL_STATUS);
    MFnNurbsSurface(const MObject& object, MStatus* ret TVX_OPTIONAL_STATUS);

    /// Makes a surface of control points and knots, or like another one, and attaches to it; below a new
    /// transform, the result, or below the parent. kInvalidParameter when numbers do not fit each other.
    MObject create(const MPointArray& controlVertices, const MDoubleArray& uKnotSequences,
                   const MDoubleArray& vKnotSequences, unsigned int degreeInU, unsigned int degreeInV,
                   Form formU, Form formV, bool createRational, MObject parentOrOwner = MObject::kNullObj,
                   MStatus* ReturnStatus = nullptr);
    MObject copy(const MObject& source, MObject parentOrOwner = MObject::kNullObj,
                 MStatus* ReturnStatus = nullptr);

    /// The surface as data; a null object when there is none.
    MObject getDataObject() const;

    /// Control points as components: kNotImplemented.
    MObject cv(unsigned int indexU, unsigned int indexV, MStatus* ReturnStatus = nullptr);
    MObject cvsInU(unsigned int startIndex, unsigned int endIndex, unsigned int rowIndex,
                   MStatus* ReturnStatus = nullptr);
    MObject cvsInV(unsigned int startIndex, unsigned int endIndex, unsigned int rowIndex,
                   MStatus* ReturnStatus = nullptr);

    /// Control points. A change refuses when the surface is fed by its history.
    MStatus getCVs(MPointArray& array, MSpace::Space space = MSpace::kObject) const;
    MStatus setCVs(const MPointArray& array, MSpace::Space space = MSpace::kObject);
    MStatus getCV(unsigned int indexU, unsigned int indexV, MPoint& pnt,
                  MSpace::Space space = MSpace::kObject) const;
    MStatus setCV(unsigned int indexU, unsigned int indexV, MPoint& pnt,
                  MSpace::Space space = MSpace::kObject) const;

    /// What the surface is like. Bézier: one span in both directions, with all knots at its ends. Uniform:
    /// all spans of a direction equally long.
    Form formInU(MStatus* ReturnStatus = nullptr) const;
    Form formInV(MStatus* ReturnStatus = nullptr) const;
    bool isBezier(MStatus* ReturnStatus = nullptr) const;
    bool isUniform(MStatus* ReturnStatus = nullptr) const;
    bool isKnotU(double param, MStatus* ReturnStatus = nullptr) const;
    bool isKnotV(double param, MStatus* ReturnStatus = nullptr) const;
    bool isParamOnSurface(double paramU, double paramV, MStatus* ReturnStatus = nullptr) const;
    MStatus getKnotDomain(double& startU, double& endU, double& startV, double& endV) const;
    int degreeU(MStatus* ReturnStatus = nullptr) const;
    int degreeV(MStatus* ReturnStatus = nullptr) const;
    int numSpansInU(MStatus* ReturnStatus = nullptr) const;
    int numSpansInV(MStatus* ReturnStatus = nullptr) const;
    int numNonZeroSpansInU(MStatus* ReturnStatus = nullptr) const;
    int numNonZeroSpansInV(MStatus* ReturnStatus = nullptr) const;
    int numCVsInU(MStatus* ReturnStatus = nullptr) const;
    int numCVsInV(MStatus* ReturnStatus = nullptr) const;
    int numKnotsInU(MStatus* ReturnStatus = nullptr) const;
    int numKnotsInV(MStatus* ReturnStatus = nullptr) const;

    /// Knots. Setting refuses what descends.
    MStatus getKnotsInU(MDoubleArray& array) const;
    MStatus getKnotsInV(MDoubleArray& array) const;
    MStatus setKnotsInU(const MDoubleArray& array, unsigned int startIndex, unsigned int endIndex);
    MStatus setKnotsInV(const MDoubleArray& array, unsigned int startIndex, unsigned int endIndex);
    double knotInU(unsigned int index, MStatus* ReturnStatus = nullptr) const;
    double knotInV(unsigned int index, MStatus* ReturnStatus = nullptr) const;
    MStatus setKnotInU(unsigned int index, double param);
    MStatus setKnotInV(unsigned int index, double param);

    /// Not done: kNotImplemented.
    MStatus removeKnotInU(double atThisParam, bool removeAll = false);
    MStatus removeKnotInV(double atThisParam, bool removeAll = false);
    MStatus removeOneKnotInU(double atThisParam);
    MStatus removeOneKnotInV(double atThisParam);

    /// The direction away from the surface, the directions along it (all of length 1), and how the place
    /// moves with the parameters; kInvalidParameter off the surface.
    MVector normal(double paramInU, double paramInV, MSpace::Space space = MSpace::kObject,
                   MStatus* ReturnStatus = nullptr) const;
    MStatus getTangents(double paramInU, double paramInV, MVector& vectorInU, MVector& vectorInV,
                        MSpace::Space space = MSpace::kObject) const;
    MStatus getDerivativesAtParm(double paramInU, double paramInV, MPoint& pos, MVector& dU, MVector& dV,
                                 MSpace::Space space, MVector* dUU = nullptr, MVector* dVV = nullptr,
                                 MVector* dUV = nullptr) const;

    /// Not done: kNotImplemented, false.
    bool isFoldedOnBispan() const;

    /// The area, in object space where no space is given.
    double area(double tolerance = kMFnNurbsEpsilon, MStatus* ReturnStatus = nullptr) const;
    double area(MSpace::Space space, double tolerance = kMFnNurbsEpsilon,
                MStatus* ReturnStatus = nullptr) const;

    /// What is nearest to a point. In world space distances are measured there as long as the surface is not
    /// stretched. The parameters at a point: kInvalidParameter for one that is farther away than the
    /// tolerance.
    MPoint closestPoint(const MPoint& toThisPoint, double* paramU = nullptr, double* paramV = nullptr,
                        bool ignoreTrimBoundaries = false, double tolerance = kMFnNurbsEpsilon,
                        MSpace::Space space = MSpace::kObject, MStatus* ReturnStatus = nullptr) const;
    MPoint closestPoint(const MPoint& toThisPoint, bool paramAsStart, double* paramU, double* paramV,
                        bool ignoreTrimBoundaries = false, double tolerance = kMFnNurbsEpsilon,
                        MSpace::Space space = MSpace::kObject, MStatus* ReturnStatus = nullptr) const;
    bool isPointOnSurface(const MPoint& point, double tolerance = kMFnNurbsEpsilon,
                          MSpace::Space space = MSpace::kObject, MStatus* ReturnStatus = nullptr) const;
    MStatus getParamAtPoint(const MPoint& atThisPoint, double& paramU, double& paramV,
                            bool ignoreTrimBoundaries, MSpace::Space space = MSpace::kObject,
                            double tolerance = kMFnNurbsEpsilon) const;
    MStatus getParamAtPoint(const MPoint& atThisPoint, double& paramU, double& paramV,
                            MSpace::Space space = MSpace::kObject) const;
    double distanceToPoint(const MPoint& pt, MSpace::Space space = MSpace::kObject,
                           MStatus* ReturnStatus = nullptr) const;

    /// The place at two parameters; kInvalidParameter off the surface.
    MStatus getPointAtParam(double paramU, double paramV, MPoint& point,
                            MSpace::Space space = MSpace::kObject) const;

    /// Meshes, and where a ray meets the surface: kNotImplemented.
    MObject tesselate(MTesselationParams& parms = MTesselationParams::fsDefaultTesselationParams,
                      MObject parentOrOwner = MObject::kNullObj, MStatus* ReturnStatus = nullptr);
    MObject tesselate(MTesselationParams& parms, MStatus* ReturnStatus);
    bool intersect(const MPoint& rayStartingPoint, const MVector& alongThisDirection, double& u, double& v,
                   MPoint& intersectionData, double tolerance = kMFnNurbsEpsilon,
                   MSpace::Space space = MSpace::kObject, bool calculateDistance = false,
                   double* distance = nullptr, bool calculateExactHit = false, bool* wasExactHit = nullptr,
                   MStatus* ReturnStatus = nullptr) const;
    bool intersect(const MPoint& rayStartingPoint, const MVector& alongThisDirection, MDoubleArray& u,
                   MDoubleArray& v, MPointArray& intersectionData, double tolerance = kMFnNurbsEpsilon,
                   MSpace::Space space = MSpace::kObject, bool calculateDistance = false,
                   MDoubleArray* distances = nullptr, bool calculateExactHit = false,
                   bool* wasExactHit = nullptr, MStatus* ReturnStatus = nullptr) const;

    /// Whether the surface is made by its history.
    bool hasHistoryOnCreate(MStatus* ReturnStatus = nullptr) const;

    /// Tells that the surface was changed by its parts; there is nothing to do.
    MStatus updateSurface();

    /// Trimming: kNotImplemented, but for the question whether there is any.
    bool isTrimmedSurface(MStatus* ReturnStatus = nullptr) const;
    unsigned int numRegions(MStatus* ReturnStatus = nullptr) const;
    bool isFlipNorm(unsigned int region, MStatus* ReturnStatus = nullptr) const;
    unsigned int numBoundaries(unsigned int region, MStatus* ReturnStatus = nullptr);
    BoundaryType boundaryType(unsigned int region, unsigned int boundary, MStatus* ReturnStatus = nullptr);
    unsigned int numEdges(unsigned int region, unsigned int boundary, MStatus* ReturnStatus = nullptr);
    MObjectArray edge(unsigned int region, unsigned int boundary, unsigned int edge, bool paramEdge = false,
                      MStatus* ReturnStatus = nullptr);
    bool isPointInTrimmedRegion(double u, double v, MStatus* ReturnStatus = nullptr);
    MStatus getTrimBoundaries(MTrimBoundaryArray& result, unsigned int region, bool paramEdge = true);
    MStatus trimWithBoundaries(const MTrimBoundaryArray& mBoundaries, bool flipNormal = false,
                               double e_tol = 1e-3, double pe_tol = 1e-5, bool createNewRegion = false);
    MStatus projectCurve(const MDagPath& curve, const MVector* direction = nullptr,
                         bool constructionHistory = false);
    MStatus trim(const MDoubleArray& locatorU, const MDoubleArray& locatorV,
                 bool constructionHistory = false);

    /// Patches: the pieces between knots.
    unsigned int numPatches(MStatus* ReturnStatus = nullptr) const;
    unsigned int numPatchesInU(MStatus* ReturnStatus = nullptr) const;
    unsigned int numPatchesInV(MStatus* ReturnStatus = nullptr) const;

    /// Texture coordinates and shaders of patches: kNotImplemented.
    int numUVs(MStatus* ReturnStatus = nullptr) const;
    MStatus setUVs(const MFloatArray& uArray, const MFloatArray& vArray);
    MStatus getUVs(MFloatArray& uArray, MFloatArray& vArray) const;
    MStatus setUV(int uvId, float u, float v);
    MStatus getUV(int uvId, float& u, float& v) const;
    MStatus getPatchUV(int patchId, int cornerIndex, float& u, float& v) const;
    MStatus getPatchUVs(int patchId, MFloatArray& uArray, MFloatArray& vArray) const;
    MStatus getPatchUVid(int patchId, int cornerIndex, int& uvId) const;
    MStatus assignUV(int patchId, int cornerIndex, int uvId);
    MStatus assignUVs(const MIntArray& uvCounts, const MIntArray& uvIds);
    MStatus clearUVs();
    MStatus getAssignedUVs(MIntArray& uvCounts, MIntArray& uvIds) const;
    MStatus getConnectedShaders(unsigned int instanceNumber, MObjectArray& shaders, MIntArray& indices) const;

    /// The name of this class.
    static const char* className();

protected:
    bool objectChanged(MFn::Type, MStatus*) override;

    /// For Maya's own use: kNotImplemented, false.
    bool getUVSetIndex(const MString* uvSetName, int& uvSet) const;
    bool curveToMObjects(ag_curve* crv, MObjectArray& curveArray, MStatus* ReturnStatus);
    bool trimWithBoundariesInHistory(const TnurbsCurvePtrArray& boundaries, bool flipnorm, double e_tol,
                                     double pe_tol, bool createNewRegion, MStatus* status);

private:
    friend class tvxAccess;

    void* reservedWords[2];
};
