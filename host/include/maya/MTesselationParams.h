// MTesselationParams: how a surface is made into a mesh.
#pragma once

#include <maya/MStatus.h>
#include <maya/MTypes.h>
#include <maya/tvxEngine.h>

class MMatrix;

/// How a NURBS surface is made into a mesh: by a number of triangles, by how near the mesh is to the surface,
/// or by numbers along the surface. The host keeps the wishes; it makes no such meshes.
class OPENMAYA_EXPORT MTesselationParams
{
public:
    /// By what the surface is divided.
    enum TessFormat
    {
        kTriangleCountFormat = 0,
        kStandardFitFormat = 1,
        kGeneralFormat = 2,
    };

    /// What the mesh is made of.
    enum PolyType
    {
        kTriangles = 0,
        kQuads = 1,
    };

    /// Where the lines of kGeneralFormat run.
    enum IsoparmType
    {
        kSurface3DDistance = 0,
        kSurface3DEquiSpaced = 1,
        kSurfaceEquiSpaced = 2,
        kSpanEquiSpaced = 3,
    };

    /// Which of the limits below count.
    enum SubdivisionType
    {
        kUseFractionalTolerance = 0,
        kUseChordHeightRatio = 1,
        kUseMinEdgeLength = 2,
        kUseMaxEdgeLength = 3,
        kUseMaxNumberPolys = 4,
        kUseMaxSubdivisionLevel = 5,
        kUseMinScreenSize = 6,
        kUseMaxUVRectangleSize = 7,
        kUseTriangleEdgeSwapping = 8,
        kUseRelativeTolerance = 9,
        kUseEdgeSmooth = 10,
        kLastFlag = 11,
    };

    MTesselationParams(TessFormat format = kStandardFitFormat, PolyType = kTriangles);
    MTesselationParams(const MTesselationParams&);
    ~MTesselationParams();

    void setFormatType(TessFormat type);
    void setOutputType(PolyType type);

    /// Of kTriangleCountFormat.
    void setTriangleCount(int);

    /// Of kStandardFitFormat.
    void setStdChordHeightRatio(double);
    void setStdFractionalTolerance(double);
    void setStdMinEdgeLength(double);

    /// Limits, and whether each counts.
    void setSubdivisionFlag(SubdivisionType type, bool use);
    void setFitTolerance(double);
    void setChordHeightRatio(double);
    void setMinEdgeLength(double);
    void setMaxEdgeLength(double);
    void setMaxNumberPolys(int);
    void setMaxSubdivisionLevel(double);
    void setMinScreenSize(double, double);
    void setWorldspaceToScreenTransform(MMatrix&);
    void setMaxUVRectangleSize(double, double);
    void setRelativeFitTolerance(double);
    void setEdgeSmoothFactor(double);
    void set3DDelta(double);

    /// Of kGeneralFormat: lines along the surface.
    void setUIsoparmType(IsoparmType type);
    void setVIsoparmType(IsoparmType type);
    void setUNumber(int count);
    void setVNumber(int count);
    void setBoundingBoxDiagonal(double distance);
    void setUDistanceFraction(double value);
    void setVDistanceFraction(double value);

    MTesselationParams& operator=(const MTesselationParams& rhs);

    /// The name of this class.
    static const char* className();

    static MTesselationParams fsDefaultTesselationParams; ///< what is used when nothing is said

private:
    friend class tvxAccess;

    tvxhost::api::Tesselation* tesselation; ///< owned
};
