// The sizes of the API's classes are those of Maya 2016 on Linux, so that a plug-in built for either lays its
// objects out alike.
#include <maya/M3dView.h>
#include <maya/MAngle.h>
#include <maya/MAnimControl.h>
#include <maya/MArgList.h>
#include <maya/MArrayDataBuilder.h>
#include <maya/MArrayDataHandle.h>
#include <maya/MBoundingBox.h>
#include <maya/MColor.h>
#include <maya/MColorArray.h>
#include <maya/MCommandResult.h>
#include <maya/MDGContext.h>
#include <maya/MDGModifier.h>
#include <maya/MDagModifier.h>
#include <maya/MDagPath.h>
#include <maya/MDagPathArray.h>
#include <maya/MDataBlock.h>
#include <maya/MDataHandle.h>
#include <maya/MDistance.h>
#include <maya/MDoubleArray.h>
#include <maya/MEulerRotation.h>
#include <maya/MExternalContentInfoTable.h>
#include <maya/MExternalContentLocationTable.h>
#include <maya/MFloatArray.h>
#include <maya/MFloatMatrix.h>
#include <maya/MFloatPoint.h>
#include <maya/MFloatPointArray.h>
#include <maya/MFloatVector.h>
#include <maya/MFloatVectorArray.h>
#include <maya/MFn.h>
#include <maya/MFnAttribute.h>
#include <maya/MFnBase.h>
#include <maya/MFnComponentListData.h>
#include <maya/MFnCompoundAttribute.h>
#include <maya/MFnDagNode.h>
#include <maya/MFnData.h>
#include <maya/MFnDependencyNode.h>
#include <maya/MFnDoubleArrayData.h>
#include <maya/MFnEnumAttribute.h>
#include <maya/MFnGenericAttribute.h>
#include <maya/MFnGeometryData.h>
#include <maya/MFnIntArrayData.h>
#include <maya/MFnMatrixAttribute.h>
#include <maya/MFnMatrixData.h>
#include <maya/MFnMesh.h>
#include <maya/MFnMeshData.h>
#include <maya/MFnMessageAttribute.h>
#include <maya/MFnNumericAttribute.h>
#include <maya/MFnNumericData.h>
#include <maya/MFnNurbsSurface.h>
#include <maya/MFnParticleSystem.h>
#include <maya/MFnPointArrayData.h>
#include <maya/MFnStringArrayData.h>
#include <maya/MFnStringData.h>
#include <maya/MFnTransform.h>
#include <maya/MFnTypedAttribute.h>
#include <maya/MFnUnitAttribute.h>
#include <maya/MFnVectorArrayData.h>
#include <maya/MGlobal.h>
#include <maya/MInt64Array.h>
#include <maya/MIntArray.h>
#include <maya/MItDag.h>
#include <maya/MItDependencyNodes.h>
#include <maya/MItMeshEdge.h>
#include <maya/MItMeshPolygon.h>
#include <maya/MItMeshVertex.h>
#include <maya/MMatrix.h>
#include <maya/MMatrixArray.h>
#include <maya/MNamespace.h>
#include <maya/MNodeClass.h>
#include <maya/MObject.h>
#include <maya/MObjectArray.h>
#include <maya/MObjectHandle.h>
#include <maya/MPlug.h>
#include <maya/MPlugArray.h>
#include <maya/MPoint.h>
#include <maya/MPointArray.h>
#include <maya/MPxCommand.h>
#include <maya/MPxData.h>
#include <maya/MPxLocatorNode.h>
#include <maya/MPxNode.h>
#include <maya/MQuaternion.h>
#include <maya/MRampAttribute.h>
#include <maya/MRichSelection.h>
#include <maya/MSelectionList.h>
#include <maya/MSelectionMask.h>
#include <maya/MSpace.h>
#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MStringArray.h>
#include <maya/MSyntax.h>
#include <maya/MTesselationParams.h>
#include <maya/MTime.h>
#include <maya/MTimeArray.h>
#include <maya/MTransformationMatrix.h>
#include <maya/MTrimBoundaryArray.h>
#include <maya/MTypeId.h>
#include <maya/MUint64Array.h>
#include <maya/MUintArray.h>
#include <maya/MUuid.h>
#include <maya/MVector.h>
#include <maya/MVectorArray.h>

#define MNoVersionString
#include <maya/MFnPlugin.h>
#include <maya/MFnPluginData.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <type_traits>
#include <vector>

namespace {

struct Layout
{
    const char* name;
    std::size_t size;
    std::size_t alignment;
    std::size_t expectedSize;
    std::size_t expectedAlignment;
};

#define LAYOUT(type, size, alignment)                                                                        \
    Layout                                                                                                   \
    {                                                                                                        \
#type, sizeof(type), alignof(type), size, alignment                                                  \
    }

const Layout layouts[] = {
    LAYOUT(M3dView, 24, 8),
    LAYOUT(MAngle, 16, 8),
    LAYOUT(MAnimControl, 8, 8),
    LAYOUT(MArgList, 16, 8),
    LAYOUT(MArrayDataBuilder, 41, 1),
    LAYOUT(MArrayDataHandle, 41, 1),
    LAYOUT(MBoundingBox, 48, 8),
    LAYOUT(MColor, 16, 4),
    LAYOUT(MColorArray, 24, 8),
    LAYOUT(MCommandResult, 16, 8),
    LAYOUT(MDGContext, 8, 8),
    LAYOUT(MDGModifier, 24, 8),
    LAYOUT(MDagModifier, 24, 8),
    LAYOUT(MDagPath, 16, 8),
    LAYOUT(MDagPathArray, 16, 8),
    LAYOUT(MDataBlock, 16, 8),
    LAYOUT(MDataHandle, 32, 1),
    LAYOUT(MDistance, 16, 8),
    LAYOUT(MDoubleArray, 24, 8),
    LAYOUT(MEulerRotation, 32, 8),
    LAYOUT(MExternalContentInfoTable, 8, 8),
    LAYOUT(MExternalContentLocationTable, 8, 8),
    LAYOUT(MFloatArray, 24, 8),
    LAYOUT(MFloatMatrix, 64, 4),
    LAYOUT(MFloatPoint, 16, 4),
    LAYOUT(MFloatPointArray, 24, 8),
    LAYOUT(MFloatVector, 12, 4),
    LAYOUT(MFloatVectorArray, 24, 8),
    LAYOUT(MFn, 4, 4),
    LAYOUT(MFnAttribute, 64, 8),
    LAYOUT(MFnBase, 32, 8),
    LAYOUT(MFnComponentListData, 32, 8),
    LAYOUT(MFnCompoundAttribute, 64, 8),
    LAYOUT(MFnDagNode, 64, 8),
    LAYOUT(MFnData, 32, 8),
    LAYOUT(MFnDependencyNode, 32, 8),
    LAYOUT(MFnDoubleArrayData, 32, 8),
    LAYOUT(MFnEnumAttribute, 64, 8),
    LAYOUT(MFnGenericAttribute, 64, 8),
    LAYOUT(MFnGeometryData, 32, 8),
    LAYOUT(MFnIntArrayData, 32, 8),
    LAYOUT(MFnMatrixAttribute, 64, 8),
    LAYOUT(MFnMatrixData, 32, 8),
    LAYOUT(MFnMesh, 80, 8),
    LAYOUT(MFnMeshData, 32, 8),
    LAYOUT(MFnMessageAttribute, 64, 8),
    LAYOUT(MFnNumericAttribute, 64, 8),
    LAYOUT(MFnNumericData, 32, 8),
    LAYOUT(MFnNurbsSurface, 80, 8),
    LAYOUT(MFnParticleSystem, 64, 8),
    LAYOUT(MFnPlugin, 32, 8),
    LAYOUT(MFnPluginData, 32, 8),
    LAYOUT(MFnPointArrayData, 32, 8),
    LAYOUT(MFnStringArrayData, 32, 8),
    LAYOUT(MFnStringData, 32, 8),
    LAYOUT(MFnTransform, 64, 8),
    LAYOUT(MFnTypedAttribute, 64, 8),
    LAYOUT(MFnUnitAttribute, 64, 8),
    LAYOUT(MFnVectorArrayData, 32, 8),
    LAYOUT(MGlobal, 1, 1),
    LAYOUT(MInt64Array, 24, 8),
    LAYOUT(MIntArray, 24, 8),
    LAYOUT(MItDag, 56, 8),
    LAYOUT(MItDependencyNodes, 56, 8),
    LAYOUT(MItMeshEdge, 88, 8),
    LAYOUT(MItMeshPolygon, 88, 8),
    LAYOUT(MItMeshVertex, 88, 8),
    LAYOUT(MMatrix, 128, 8),
    LAYOUT(MMatrixArray, 16, 8),
    LAYOUT(MNamespace, 1, 1),
    LAYOUT(MNodeClass, 4, 4),
    LAYOUT(MObject, 16, 8),
    LAYOUT(MObjectArray, 8, 8),
    LAYOUT(MObjectHandle, 24, 8),
    LAYOUT(MPlug, 24, 8),
    LAYOUT(MPlugArray, 16, 8),
    LAYOUT(MPoint, 32, 8),
    LAYOUT(MPointArray, 24, 8),
    LAYOUT(MPxCommand, 32, 8),
    LAYOUT(MPxData, 16, 8),
    LAYOUT(MPxLocatorNode, 24, 8),
    LAYOUT(MPxNode, 24, 8),
    LAYOUT(MQuaternion, 32, 8),
    LAYOUT(MRampAttribute, 8, 8),
    LAYOUT(MRichSelection, 16, 8),
    LAYOUT(MSelectionList, 24, 8),
    LAYOUT(MSelectionMask, 24, 8),
    LAYOUT(MSpace, 1, 1),
    LAYOUT(MStatus, 3, 1),
    LAYOUT(MString, 16, 8),
    LAYOUT(MStringArray, 24, 8),
    LAYOUT(MSyntax, 24, 8),
    LAYOUT(MTesselationParams, 8, 8),
    LAYOUT(MTime, 16, 8),
    LAYOUT(MTimeArray, 8, 8),
    LAYOUT(MTransformationMatrix, 8, 8),
    LAYOUT(MTrimBoundaryArray, 16, 8),
    LAYOUT(MTypeId, 4, 4),
    LAYOUT(MUint64Array, 24, 8),
    LAYOUT(MUintArray, 24, 8),
    LAYOUT(MUuid, 8, 8),
    LAYOUT(MVector, 24, 8),
    LAYOUT(MVectorArray, 24, 8),
};

TEST(ApiLayout, ClassesHaveTheSizesOfTheRealInterface)
{
    for (const Layout& layout : layouts) {
        EXPECT_EQ(layout.size, layout.expectedSize) << layout.name;
        EXPECT_EQ(layout.alignment, layout.expectedAlignment) << layout.name;
    }
}

TEST(ApiLayout, PublicComponentsStandWhereInlineCodeOfPlugInsExpectsThem)
{
    EXPECT_EQ(offsetof(MColor, r), 0u);
    EXPECT_EQ(offsetof(MColor, a), 12u);
    EXPECT_EQ(offsetof(MVector, z), 16u);
    EXPECT_EQ(offsetof(MPoint, w), 24u);
    EXPECT_EQ(offsetof(MFloatVector, z), 8u);
    EXPECT_EQ(offsetof(MFloatPoint, w), 12u);
    EXPECT_EQ(offsetof(MQuaternion, w), 24u);
    EXPECT_EQ(offsetof(MEulerRotation, order), 24u);
    EXPECT_EQ(offsetof(MMatrix, matrix), 0u);
    EXPECT_EQ(offsetof(MFloatMatrix, matrix), 0u);
}

TEST(ApiLayout, FunctionSetsAndIteratorsCannotBeCopied)
{
    EXPECT_FALSE(std::is_copy_constructible<MFnDependencyNode>::value);
    EXPECT_FALSE(std::is_copy_constructible<MFnTransform>::value);
    EXPECT_FALSE(std::is_copy_constructible<MFnNumericAttribute>::value);
    EXPECT_FALSE(std::is_copy_constructible<MItDependencyNodes>::value);
    EXPECT_FALSE(std::is_copy_constructible<MItDag>::value);
    EXPECT_FALSE(std::is_copy_constructible<MCommandResult>::value);
    EXPECT_FALSE(std::is_default_constructible<MGlobal>::value);
}

TEST(ApiLayout, HandlesOfADataBlockAreCopiedBitByBit)
{
    EXPECT_TRUE(std::is_trivially_destructible<MDataHandle>::value);
    EXPECT_TRUE(std::is_trivially_destructible<MArrayDataHandle>::value);
}

} // namespace
