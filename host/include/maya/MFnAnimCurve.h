// MFnAnimCurve: animation curves and their keys.
#pragma once

#include <maya/MFn.h>
#include <maya/MFnDependencyNode.h>
#include <maya/MIntArray.h>
#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MTime.h>
#include <maya/MTypes.h>

class MAngle;
class MAnimCurveChange;
class MDGModifier;
class MDoubleArray;
class MPlug;
class MTimeArray;

/// Function set for animCurve nodes. Keys are counted from 0 in the order of their inputs. Values are
/// radians, centimetres or plain numbers, times of a value UI units. An index past the last key fails with
/// kInvalidParameter; a function for inputs or values of another kind than the curve has fails with kFailure.
/// With a `change` an edit can be taken back.
class OPENMAYAANIM_EXPORT MFnAnimCurve : public MFnDependencyNode
{
public:
    /// What goes in (time or a plain number) and what comes out (angle, distance, time, plain number).
    enum AnimCurveType
    {
        kAnimCurveTA = 0,
        kAnimCurveTL = 1,
        kAnimCurveTT = 2,
        kAnimCurveTU = 3,
        kAnimCurveUA = 4,
        kAnimCurveUL = 5,
        kAnimCurveUT = 6,
        kAnimCurveUU = 7,
        kAnimCurveUnknown = 8,
    };

    /// How a curve enters or leaves a key.
    enum TangentType
    {
        kTangentGlobal = 0,
        kTangentFixed = 1,
        kTangentLinear = 2,
        kTangentFlat = 3,
        kTangentSmooth = 4,
        kTangentStep = 5,
        kTangentSlow = 6,
        kTangentFast = 7,
        kTangentClamped = 8,
        kTangentPlateau = 9,
        kTangentStepNext = 10,
        kTangentAuto = 11,
        kTangentShared1 = 19,
        kTangentShared2 = 20,
        kTangentShared3 = 21,
        kTangentShared4 = 22,
        kTangentShared5 = 23,
        kTangentShared6 = 24,
        kTangentShared7 = 25,
        kTangentShared8 = 26,
        kTangentCustomStart = 64,
        kTangentCustomEnd = 32767,
        kTangentTypeCount = 32768,
    };

    /// What a curve does before its first and behind its last key.
    enum InfinityType
    {
        kConstant = 0,
        kLinear = 1,
        kCycle = 3,
        kCycleRelative = 4,
        kOscillate = 5,
    };

    MFn::Type type() const override;
    ~MFnAnimCurve() override;
    static const char* className();

    /// Attached to nothing, to a curve, or to the curve that feeds a plug.
    MFnAnimCurve() {}
    MFnAnimCurve(MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);
    MFnAnimCurve(const MPlug& plug, MStatus* ReturnStatus = nullptr);
    MFnAnimCurve(const MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);

    /// Makes a curve and attaches to it. With a plug, it feeds it and is named after it, and its type fits it
    /// unless one is given; kFailure when the plug is locked or fed already. With a modifier, undoIt() takes
    /// it away again.
    MObject create(const MObject& node, const MObject& attribute, MDGModifier* modifier = nullptr,
                   MStatus* ReturnStatus = nullptr);
    MObject create(const MObject& node, const MObject& attribute, AnimCurveType animCurveType,
                   MDGModifier* modifier = nullptr, MStatus* ReturnStatus = nullptr);
    MObject create(const MPlug& plug, MDGModifier* modifier = nullptr, MStatus* ReturnStatus = nullptr);
    MObject create(const MPlug& plug, AnimCurveType animCurveType, MDGModifier* modifier = nullptr,
                   MStatus* ReturnStatus = nullptr);
    MObject create(AnimCurveType animCurveType, MDGModifier* modifier = nullptr,
                   MStatus* ReturnStatus = nullptr);

    /// The type of the curve; kAnimCurveUnknown when there is none.
    AnimCurveType animCurveType(MStatus* ReturnStatus = nullptr) const;

    /// The types of curve over time, or over a plain number, that fit a plug; kAnimCurveUnknown for no
    /// number.
    AnimCurveType timedAnimCurveTypeForPlug(MPlug& plug, MStatus* ReturnStatus = nullptr) const;
    AnimCurveType unitlessAnimCurveTypeForPlug(MPlug& plug, MStatus* ReturnStatus = nullptr) const;

    /// The value anywhere, outside the keys as the infinities say.
    double evaluate(const MTime& atTime, MStatus* ReturnStatus = nullptr) const;
    MStatus evaluate(const MTime& atTime, double& value) const;
    MStatus evaluate(const MTime& atTime, MTime& timeValue) const;
    MStatus evaluate(const double& atUnitlessInput, double& value) const;
    MStatus evaluate(const double& atUnitlessInput, MTime& timeValue) const;

    /// Whether the curve has one value everywhere between its keys.
    bool isStatic(MStatus* ReturnStatus = nullptr) const;

    /// The number of keys.
    unsigned int numKeyframes(MStatus* ReturnStatus = nullptr) const;
    unsigned int numKeys(MStatus* ReturnStatus = nullptr) const;

    /// Removes a key.
    MStatus remove(unsigned int index, MAnimCurveChange* change = nullptr);

    /// Adds a key, or sets the one that is there. kTangentGlobal is kTangentAuto.
    MStatus addKeyframe(const MTime& time, double value, MAnimCurveChange* change = nullptr);
    MStatus addKeyframe(const MTime& time, double value, TangentType tangentInType,
                        TangentType tangentOutType, MAnimCurveChange* change = nullptr);

    /// The same; gives the index of the key.
    unsigned int addKey(const MTime& time, double value, TangentType tangentInType = kTangentGlobal,
                        TangentType tangentOutType = kTangentGlobal, MAnimCurveChange* change = nullptr,
                        MStatus* ReturnStatus = nullptr);
    unsigned int addKey(const MTime& timeInput, const MTime& timeValue,
                        TangentType tangentInType = kTangentGlobal,
                        TangentType tangentOutType = kTangentGlobal, MAnimCurveChange* change = nullptr,
                        MStatus* ReturnStatus = nullptr);
    unsigned int addKey(double unitlessInput, double value, TangentType tangentInType = kTangentGlobal,
                        TangentType tangentOutType = kTangentGlobal, MAnimCurveChange* change = nullptr,
                        MStatus* ReturnStatus = nullptr);
    unsigned int addKey(double unitlessInput, const MTime& time, TangentType tangentInType = kTangentGlobal,
                        TangentType tangentOutType = kTangentGlobal, MAnimCurveChange* change = nullptr,
                        MStatus* ReturnStatus = nullptr);

    /// Adds several keys, in place of all unless they are to be kept.
    MStatus addKeys(MTimeArray* timeArray, MDoubleArray* valueArray,
                    TangentType tangentInType = kTangentGlobal, TangentType tangentOutType = kTangentGlobal,
                    bool keepExistingKeys = false, MAnimCurveChange* change = nullptr);

    /// The key at an input; false when there is none.
    bool find(const MTime& time, unsigned int& index, MStatus* ReturnStatus = nullptr) const;
    bool find(double unitlessInput, unsigned int& index, MStatus* ReturnStatus = nullptr) const;

    /// The key nearest to an input.
    unsigned int findClosest(const MTime& time, MStatus* ReturnStatus = nullptr) const;
    unsigned int findClosest(double unitlessInput, MStatus* ReturnStatus = nullptr) const;

    /// The input and the value of a key.
    MTime time(unsigned int index, MStatus* ReturnStatus = nullptr) const;
    double value(unsigned int index, MStatus* ReturnStatus = nullptr) const;
    double unitlessInput(unsigned int index, MStatus* ReturnStatus = nullptr) const;

    /// Changes the value of a key.
    MStatus setValue(unsigned int index, double value, MAnimCurveChange* change = nullptr);

    /// Moves a key; kFailure when another one is there.
    MStatus setTime(unsigned int index, const MTime& time, MAnimCurveChange* change = nullptr);
    MStatus setUnitlessInput(unsigned int index, double unitlessInput, MAnimCurveChange* change = nullptr);

    /// What goes in.
    bool isTimeInput(MStatus* ReturnStatus = nullptr) const;
    bool isUnitlessInput(MStatus* ReturnStatus = nullptr) const;

    /// The types of the tangents.
    TangentType inTangentType(unsigned int index, MStatus* ReturnStatus = nullptr) const;
    TangentType outTangentType(unsigned int index, MStatus* ReturnStatus = nullptr) const;
    MStatus setInTangentType(unsigned int index, TangentType tangentType, MAnimCurveChange* change = nullptr);
    MStatus setOutTangentType(unsigned int index, TangentType tangentType,
                              MAnimCurveChange* change = nullptr);
    MStatus setTangentTypes(MIntArray indexArray, TangentType tangentInType = kTangentGlobal,
                            TangentType tangentOutType = kTangentGlobal, MAnimCurveChange* change = nullptr);

    /// The tangent of a key: as input (seconds) against value in internal units, of length 1 without weights
    /// and three times the handle with them; or as angle and length of the handle in UI units, the length
    /// being 1 without weights.
    MStatus getTangent(unsigned int index, float& x, float& y, bool inTangent) const;
    MStatus getTangent(unsigned int index, MAngle& angle, double& weight, bool inTangent) const;

    /// Makes a tangent fixed. x and y are in UI units when they are to be converted. Locked tangents turn
    /// together.
    MStatus setTangent(unsigned int index, float x, float y, bool inTangent,
                       MAnimCurveChange* change = nullptr, bool convertUnits = true);
    MStatus setTangent(unsigned int index, const MAngle& angle, double weight, bool inTangent,
                       MAnimCurveChange* change = nullptr, bool convertUnits = true);
    MStatus setAngle(unsigned int index, const MAngle& angle, bool inTangent,
                     MAnimCurveChange* change = nullptr);

    /// Changes the length of a handle; kFailure without weights.
    MStatus setWeight(unsigned int index, double weight, bool inTangent, MAnimCurveChange* change = nullptr);

    /// Whether both tangents of a key turn together, and have one length.
    bool weightsLocked(unsigned int index, MStatus* ReturnStatus = nullptr) const;
    bool tangentsLocked(unsigned int index, MStatus* ReturnStatus = nullptr) const;
    MStatus setWeightsLocked(unsigned int index, bool locked, MAnimCurveChange* change = nullptr);
    MStatus setTangentsLocked(unsigned int index, bool locked, MAnimCurveChange* change = nullptr);

    /// The infinities.
    InfinityType preInfinityType(MStatus* ReturnStatus = nullptr) const;
    InfinityType postInfinityType(MStatus* ReturnStatus = nullptr) const;
    MStatus setPreInfinityType(InfinityType infinityType, MAnimCurveChange* change = nullptr);
    MStatus setPostInfinityType(InfinityType infinityType, MAnimCurveChange* change = nullptr);

    /// Whether tangents have weights.
    bool isWeighted(MStatus* ReturnStatus = nullptr) const;
    MStatus setIsWeighted(bool isWeighted, MAnimCurveChange* change = nullptr);

    /// Whether a key is a breakdown.
    bool isBreakdown(unsigned int index, MStatus* ReturnStatus = nullptr) const;
    MStatus setIsBreakdown(unsigned int index, bool isBreakdown, MAnimCurveChange* change = nullptr);

private:
    friend class tvxAccess;
};
