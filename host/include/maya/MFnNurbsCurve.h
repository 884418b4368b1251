// MFnNurbsCurve: NURBS curves.
#pragma once

#include <maya/MFn.h>
#include <maya/MFnDagNode.h>
#include <maya/MObject.h>
#include <maya/MPoint.h>
#include <maya/MSpace.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>
#include <maya/MVector.h>

class MDagPath;
class MDoubleArray;
class MObjectArray;
class MPointArray;
class TnurbsCurve;

#ifndef kMFnNurbsEpsilon
/// How near is near enough, in centimetres.
#define kMFnNurbsEpsilon 1.0e-3
#endif

/// Function set for NURBS curve shapes. Lengths are centimetres. There are as many knots as control points
/// and degree minus 1. kWorld takes the path that the set was built on, or the first one. What the host does
/// not do answers kNotImplemented.
class OPENMAYA_EXPORT MFnNurbsCurve : public MFnDagNode
{
public:
    /// How the ends of a curve meet.
    enum Form
    {
        kInvalid = 0,
        kOpen = 1,
        kClosed = 2,
        kPeriodic = 3,
        kLast = 4,
    };

    MFn::Type type() const override;
    ~MFnNurbsCurve() override;

    /// Attached to nothing, to a curve, or to one instance of it.
    MFnNurbsCurve();
    MFnNurbsCurve(MObject& object, MStatus* ret TVX_OPTIONAL_STATUS);
    MFnNurbsCurve(const MDagPath& object, MStatus* ret TVX_OPTIONAL_STATUS);
    MFnNurbsCurve(const MObject& object, MStatus* ret TVX_OPTIONAL_STATUS);

    /// Makes a curve of control points and knots and attaches to it; below a new transform, the result, or
    /// below the parent. kInvalidParameter when numbers do not fit each other. From edit points or from other
    /// curves: kNotImplemented.
    MObject create(const MPointArray& controlVertices, const MDoubleArray& knotSequences, unsigned int degree,
                   Form agForm, bool create2D, bool createRational,
                   MObject& parentOrOwner = MObject::kNullObj, MStatus* ReturnStatus = nullptr);
    MObject create(const MObjectArray& sources, MObject& parentOrOwner = MObject::kNullObj,
                   MStatus* ReturnStatus = nullptr);
    MObject createWithEditPoints(const MPointArray& editPoints, unsigned int degree, Form agForm,
                                 bool create2D, bool createRational, bool uniformParam,
                                 MObject& parentOrOwner = MObject::kNullObj, MStatus* ReturnStatus = nullptr);
    MObject copy(const MObject& source, MObject& parentOrOwner = MObject::kNullObj,
                 MStatus* ReturnStatus = nullptr);

    /// Changes of the whole, and control points as components: kNotImplemented.
    MStatus reverse(bool constructionHistory = false);
    MStatus makeMultipleEndKnots();
    MStatus removeKnot(double atThisParam, bool removeAll = false);
    MObject cv(unsigned int index, MStatus* ReturnStatus = nullptr) const;
    MObject cvs(unsigned int startIndex, unsigned int endIndex, MStatus* ReturnStatus = nullptr) const;

    /// Control points. A change refuses when the curve is fed by its history.
    MStatus getCV(unsigned int index, MPoint& pt, MSpace::Space space = MSpace::kObject) const;
    MStatus setCV(unsigned int index, const MPoint& pt, MSpace::Space space = MSpace::kObject);
    MStatus getCVs(MPointArray& array, MSpace::Space space = MSpace::kObject) const;
    MStatus setCVs(const MPointArray& array, MSpace::Space space = MSpace::kObject);
    int numCVs(MStatus* ReturnStatus = nullptr) const;

    /// What the curve is like.
    Form form(MStatus* ReturnStatus = nullptr) const;
    int degree(MStatus* ReturnStatus = nullptr) const;
    int numSpans(MStatus* ReturnStatus = nullptr) const;
    bool hasHistoryOnCreate(MStatus* ReturnStatus = nullptr) const;

    /// Knots, and the parameters between which the curve is. Setting refuses what descends.
    int numKnots(MStatus* ReturnStatus = nullptr) const;
    MStatus getKnotDomain(double& start, double& end) const;
    MStatus getKnots(MDoubleArray& array) const;
    MStatus setKnots(const MDoubleArray& array, unsigned int startIndex, unsigned int endIndex);
    MStatus setKnot(unsigned int index, double param);
    double knot(unsigned int index, MStatus* ReturnStatus = nullptr) const;

    /// The point at a parameter, how it moves, and how that changes; kInvalidParameter off the curve.
    MStatus getPointAtParam(double param, MPoint& point, MSpace::Space space = MSpace::kObject) const;
    bool isParamOnCurve(double param, MStatus* ReturnStatus = nullptr) const;
    MVector tangent(double param, MSpace::Space space = MSpace::kObject,
                    MStatus* ReturnStatus = nullptr) const;
    MStatus getDerivativesAtParm(double param, MPoint& pos, MVector& dU, MSpace::Space space,
                                 MVector* dUU = nullptr) const;

    /// Lengths along the curve, and where a length is reached.
    double length(double tolerance = kMFnNurbsEpsilon, MStatus* ReturnStatus = nullptr) const;
    double findParamFromLength(double partLength, MStatus* ReturnStatus = nullptr) const;

    /// What is nearest to a point, and what needs a search: kNotImplemented.
    bool isPointOnCurve(const MPoint& point, double tolerance = kMFnNurbsEpsilon,
                        MSpace::Space space = MSpace::kObject, MStatus* ReturnStatus = nullptr) const;
    MStatus getParamAtPoint(const MPoint& atThisPoint, double& param,
                            MSpace::Space space = MSpace::kObject) const;
    MStatus getParamAtPoint(const MPoint& atThisPoint, double& param, double tolerance,
                            MSpace::Space space = MSpace::kObject) const;
    MPoint closestPoint(const MPoint& toThisPoint, double* param = nullptr,
                        double tolerance = kMFnNurbsEpsilon, MSpace::Space space = MSpace::kObject,
                        MStatus* ReturnStatus = nullptr) const;
    MPoint closestPoint(const MPoint& toThisPoint, bool paramAsGuess, double* param = nullptr,
                        double tolerance = kMFnNurbsEpsilon, MSpace::Space space = MSpace::kObject,
                        MStatus* ReturnStatus = nullptr) const;
    double distanceToPoint(const MPoint& pt, MSpace::Space space = MSpace::kObject,
                           MStatus* ReturnStatus = nullptr) const;
    MVector normal(double param, MSpace::Space space = MSpace::kObject,
                   MStatus* ReturnStatus = nullptr) const;
    bool isPlanar(MVector* planeNormal = nullptr, MStatus* ReturnStatus = nullptr) const;
    double area(double tolerance = kMFnNurbsEpsilon, MStatus* ReturnStatus = nullptr) const;

    /// Tells that the curve was changed by its parts; there is nothing to do.
    MStatus updateCurve();

    /// The name of this class.
    static const char* className();

protected:
    /// For Maya itself.
    MObject createMObject(MObject& parentOrOwner, TnurbsCurve* newCurve, MStatus* ReturnStatus);
    bool objectChanged(MFn::Type, MStatus*) override;

private:
    friend class tvxAccess;

    void* reservedWords[4];
};
