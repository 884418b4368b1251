// MTesselationParams: how a surface is made into a mesh.
#include <maya/MMatrix.h>
#include <maya/MTesselationParams.h>

#include <array>

namespace tvxhost::api {

/// What was asked for; the numbers at first are Maya's.
struct Tesselation
{
    MTesselationParams::TessFormat format;
    MTesselationParams::PolyType output;
    int triangleCount = 64;
    double stdChordHeightRatio = 0.1;
    double stdFractionalTolerance = 0.01;
    double stdMinEdgeLength = 0.001;
    std::array<bool, MTesselationParams::kLastFlag> isUsed{};
    double fitTolerance = 0.01;
    double chordHeightRatio = 0.1;
    double minEdgeLength = 0.001;
    double maxEdgeLength = 0.0;
    int maxNumberPolys = 0;
    double maxSubdivisionLevel = 0.0;
    std::array<double, 2> minScreenSize{};
    MMatrix worldToScreen = MMatrix();
    std::array<double, 2> maxUVRectangleSize{};
    double relativeFitTolerance = 0.0;
    double edgeSmoothFactor = 0.0;
    double delta3D = 0.1;
    MTesselationParams::IsoparmType uType = MTesselationParams::kSpanEquiSpaced;
    MTesselationParams::IsoparmType vType = MTesselationParams::kSpanEquiSpaced;
    int uNumber = 3;
    int vNumber = 3;
    double boundingBoxDiagonal = 0.0;
    double uDistanceFraction = 0.0;
    double vDistanceFraction = 0.0;
};

} // namespace tvxhost::api

MTesselationParams MTesselationParams::fsDefaultTesselationParams;

MTesselationParams::MTesselationParams(TessFormat format, PolyType type)
    : tesselation(new tvxhost::api::Tesselation{format, type})
{
}

MTesselationParams::MTesselationParams(const MTesselationParams& other)
    : tesselation(new tvxhost::api::Tesselation(*other.tesselation))
{
}

MTesselationParams::~MTesselationParams()
{
    delete tesselation;
}

MTesselationParams& MTesselationParams::operator=(const MTesselationParams& rhs)
{
    *tesselation = *rhs.tesselation;
    return *this;
}

void MTesselationParams::setSubdivisionFlag(SubdivisionType type, bool use)
{
    if (type >= kUseFractionalTolerance && type < kLastFlag)
        tesselation->isUsed[static_cast<std::size_t>(type)] = use;
}

void MTesselationParams::setMinScreenSize(double width, double height)
{
    tesselation->minScreenSize = {width, height};
}

void MTesselationParams::setMaxUVRectangleSize(double width, double height)
{
    tesselation->maxUVRectangleSize = {width, height};
}

void MTesselationParams::setWorldspaceToScreenTransform(MMatrix& matrix)
{
    tesselation->worldToScreen = matrix;
}

const char* MTesselationParams::className()
{
    return "MTesselationParams";
}

#define TVX_WISH(setter, Type, member)                                                                       \
    void MTesselationParams::setter(Type value)                                                              \
    {                                                                                                        \
        tesselation->member = value;                                                                         \
    }

TVX_WISH(setFormatType, TessFormat, format)
TVX_WISH(setOutputType, PolyType, output)
TVX_WISH(setTriangleCount, int, triangleCount)
TVX_WISH(setStdChordHeightRatio, double, stdChordHeightRatio)
TVX_WISH(setStdFractionalTolerance, double, stdFractionalTolerance)
TVX_WISH(setStdMinEdgeLength, double, stdMinEdgeLength)
TVX_WISH(setFitTolerance, double, fitTolerance)
TVX_WISH(setChordHeightRatio, double, chordHeightRatio)
TVX_WISH(setMinEdgeLength, double, minEdgeLength)
TVX_WISH(setMaxEdgeLength, double, maxEdgeLength)
TVX_WISH(setMaxNumberPolys, int, maxNumberPolys)
TVX_WISH(setMaxSubdivisionLevel, double, maxSubdivisionLevel)
TVX_WISH(setRelativeFitTolerance, double, relativeFitTolerance)
TVX_WISH(setEdgeSmoothFactor, double, edgeSmoothFactor)
TVX_WISH(set3DDelta, double, delta3D)
TVX_WISH(setUIsoparmType, IsoparmType, uType)
TVX_WISH(setVIsoparmType, IsoparmType, vType)
TVX_WISH(setUNumber, int, uNumber)
TVX_WISH(setVNumber, int, vNumber)
TVX_WISH(setBoundingBoxDiagonal, double, boundingBoxDiagonal)
TVX_WISH(setUDistanceFraction, double, uDistanceFraction)
TVX_WISH(setVDistanceFraction, double, vDistanceFraction)

#undef TVX_WISH
