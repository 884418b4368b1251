// MFnParticleSystem: particle shapes.
#pragma once

#include <maya/MFn.h>
#include <maya/MFnDagNode.h>
#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MTypes.h>

class MDagPath;
class MDoubleArray;
class MIntArray;
class MPoint;
class MPointArray;
class MTime;
class MVector;
class MVectorArray;

/// Function set for particle shapes. Arrays have one element per particle, in the order in which the
/// particles were made; those that are read replace the caller's. Positions are centimetres in the shape's
/// own space, times seconds. A function without a status leaves its array empty when there is nothing to
/// read.
class OPENMAYAFX_EXPORT MFnParticleSystem : public MFnDagNode
{
public:
    /// How the particles are drawn.
    enum RenderType
    {
        kCloud = 0,
        kTube = 1,
        kBlobby = 2,
        kMultiPoint = 3,
        kMultiStreak = 4,
        kNumeric = 5,
        kPoints = 6,
        kSpheres = 7,
        kSprites = 8,
        kStreak = 9,
    };

    /// Attached to nothing.
    MFnParticleSystem();

    /// Attached to a particle shape, or to one instance of it.
    MFnParticleSystem(MObject& object, MStatus* ret TVX_OPTIONAL_STATUS);
    MFnParticleSystem(const MDagPath& object, MStatus* ret TVX_OPTIONAL_STATUS);

    MFnParticleSystem(const MObject& object, MStatus* ret TVX_OPTIONAL_STATUS);
    ~MFnParticleSystem() override;

    MFn::Type type() const override;

    /// Makes a particle shape and attaches to it. Without a parent it gets a transform, which is returned;
    /// else the shape is.
    MObject create(MStatus* status = nullptr);
    MObject create(MObject parent, MStatus* status = nullptr);

    /// Adds particles to the present state. As many velocities as positions, or none.
    MStatus emit(const MPoint& position);
    MStatus emit(const MPointArray& positionArray);
    MStatus emit(const MPoint& position, const MVector& velocity);
    MStatus emit(const MPointArray& positionArray, const MVectorArray& velocityArray);

    /// Makes the present state the one that the particles begin with.
    MStatus saveInitialState() const;

    /// Moves the particles to a time, from now or from their start.
    void evaluateDynamics(MTime& to, bool runupFromStart);

    /// Whether the set is attached to a living particle shape.
    bool isValid() const;

    /// The name of the shape.
    MString particleName() const;

    /// Number of particles now; setCount drops the last ones or adds some at the origin.
    unsigned int count() const;
    void setCount(unsigned int) const;

    MFnParticleSystem::RenderType renderType() const;

    // The present state.
    void position(MVectorArray&) const;
    void velocity(MVectorArray&) const;
    void acceleration(MVectorArray&) const;
    void particleIds(MIntArray&) const;
    void age(MDoubleArray&) const;
    void mass(MDoubleArray&) const;

    /// The two ends of tubes.
    void position0(MVectorArray&) const;
    void position1(MVectorArray&) const;
    void radius0(MDoubleArray&) const;
    void radius1(MDoubleArray&) const;

    // What the shape says for all particles alike counts where it has nothing per particle.
    void radius(MDoubleArray&) const;
    void lifespan(MDoubleArray&) const;
    void rgb(MVectorArray&) const;
    void opacity(MDoubleArray&) const;
    void emission(MVectorArray&) const;

    /// Whether the shape has such an attribute, per particle or for all.
    bool hasLifespan() const;
    bool hasRgb() const;
    bool hasOpacity() const;
    bool hasEmission() const;

    // How the shape is rendered; 0 or false where it has no such attribute.
    double surfaceShading() const;
    double threshold() const;
    bool betterIllum() const;
    bool flatShaded() const;
    bool disableCloudAxis() const;
    double tailSize() const;
    bool primaryVisibility() const;
    bool visibleInReflections() const;
    bool visibleInRefractions() const;
    bool castsShadows() const;
    bool receiveShadows() const;

    /// The values of an attribute by its name, and their number. A name that the shape lacks, or an attribute
    /// of another kind: 0 and kFailure, the array stays as it was.
    unsigned int getPerParticleAttribute(const MString& attrName, MIntArray&,
                                         MStatus* status = nullptr) const;
    unsigned int getPerParticleAttribute(const MString& attrName, MVectorArray&,
                                         MStatus* status = nullptr) const;
    unsigned int getPerParticleAttribute(const MString& attrName, MDoubleArray&,
                                         MStatus* status = nullptr) const;

    /// Replaces the values of an attribute; kFailure for what getPerParticleAttribute refuses.
    void setPerParticleAttribute(const MString& attrName, MVectorArray&, MStatus* status = nullptr) const;
    void setPerParticleAttribute(const MString& attrName, MDoubleArray&, MStatus* status = nullptr) const;

    /// Whether there is an attribute of that name and kind; an unknown name is no failure.
    bool isPerParticleIntAttribute(const MString& attrName, MStatus* status = nullptr) const;
    bool isPerParticleDoubleAttribute(const MString& attrName, MStatus* status = nullptr) const;
    bool isPerParticleVectorAttribute(const MString& attrName, MStatus* status = nullptr) const;

    /// Deformed particles: the shape that a deformer puts out, and the one that goes into it.
    bool isDeformedParticleShape(MStatus* status = nullptr) const;
    MObject deformedParticleShape(MStatus* status = nullptr) const;
    MObject originalParticleShape(MStatus* status = nullptr) const;

    /// The name of this class.
    static const char* className();

protected:
    bool objectChanged(MFn::Type, MStatus*) override;

private:
    friend class tvxAccess;
};
