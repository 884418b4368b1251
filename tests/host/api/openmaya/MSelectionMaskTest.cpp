// MSelectionMask, MRichSelection, and the members of MGlobal that take them.
#include "../sceneFixture.h"

#include <maya/MGlobal.h>
#include <maya/MMatrix.h>
#include <maya/MRichSelection.h>
#include <maya/MSelectionMask.h>

namespace tvxhost::api::test {
namespace {

using SelectionMask = SceneFixture;
using RichSelection = SceneFixture;
using Mask = MSelectionMask;

TEST_F(SelectionMask, HoldsKindsAndTheirGroups)
{
    Mask mask;
    EXPECT_FALSE(mask.intersects(Mask::kSelectMeshes));
    EXPECT_EQ(MS::kSuccess, mask.addMask(Mask::kSelectMeshes));
    EXPECT_EQ(MS::kSuccess, mask.addMask(Mask::kSelectNParticles));
    EXPECT_TRUE(mask.intersects(Mask::kSelectMeshes));
    EXPECT_TRUE(mask.intersects(Mask::kSelectNParticles));
    EXPECT_FALSE(mask.intersects(Mask::kSelectLights));
    EXPECT_TRUE(mask.intersects(Mask::kSelectObjectsMask));
    EXPECT_FALSE(mask.intersects(Mask::kSelectComponentsMask));
    EXPECT_EQ(MS::kSuccess, mask.setMask(Mask::kSelectVertices));
    EXPECT_FALSE(mask.intersects(Mask::kSelectMeshes));
    EXPECT_TRUE(mask.intersects(Mask::kSelectMeshVerts));
    EXPECT_TRUE(mask.intersects(Mask::kSelectSubdivMeshPoints));
    EXPECT_FALSE(mask.intersects(Mask::kSelectMeshEdges));
    EXPECT_TRUE(mask.intersects(Mask::kSelectMeshComponents));
}

TEST_F(SelectionMask, IsUnitedWithOthers)
{
    Mask lights(Mask::kSelectLights);
    Mask cameras(Mask::kSelectCameras);
    Mask both = lights | cameras;
    EXPECT_TRUE(both.intersects(lights));
    EXPECT_TRUE(both.intersects(cameras));
    EXPECT_FALSE(lights.intersects(cameras)) << "it did not change";
    EXPECT_TRUE((lights | Mask::kSelectJoints).intersects(Mask::kSelectJoints));
}

TEST_F(SelectionMask, RefusesWhatIsNoKind)
{
    Mask mask(Mask::kSelectLights);
    const auto none = static_cast<Mask::SelectionType>(84);
    EXPECT_EQ(MS::kInvalidParameter, mask.addMask(none));
    EXPECT_EQ(MS::kInvalidParameter, mask.setMask(none));
    MStatus status;
    EXPECT_FALSE(mask.intersects(none, &status));
    EXPECT_EQ(MS::kInvalidParameter, status);
    EXPECT_TRUE(mask.intersects(Mask::kSelectLights));
}

TEST_F(SelectionMask, PluginsAddKindsByName)
{
    EXPECT_TRUE(Mask::registerSelectionType("crowdAgents", 7));
    EXPECT_FALSE(Mask::registerSelectionType("crowdAgents", 8)) << "taken";
    EXPECT_FALSE(Mask::registerSelectionType("", 1));
    EXPECT_TRUE(Mask::registerSelectionType("crowdPlaces"));
    EXPECT_EQ(7, Mask::getSelectionTypePriority("crowdAgents"));
    EXPECT_EQ(0, Mask::getSelectionTypePriority("crowdPlaces"));
    Mask agents("crowdAgents");
    Mask places("crowdPlaces");
    Mask unknown("crowdSeats");
    EXPECT_TRUE(agents.intersects(agents));
    EXPECT_FALSE(agents.intersects(places));
    EXPECT_FALSE(unknown.intersects(unknown)) << "it is empty";
    EXPECT_FALSE(agents.intersects(Mask::kSelectObjectsMask));
    EXPECT_TRUE(Mask::deregisterSelectionType("crowdAgents"));
    EXPECT_FALSE(Mask::deregisterSelectionType("crowdAgents"));
    EXPECT_TRUE(Mask::deregisterSelectionType("crowdPlaces"));
    EXPECT_EQ(0, Mask::getSelectionTypePriority("crowdAgents"));
}

TEST_F(SelectionMask, TheSessionKeepsWhatCanBeSelected)
{
    MStatus status(MS::kFailure);
    Mask before = MGlobal::objectSelectionMask(&status);
    EXPECT_EQ(MS::kSuccess, status);
    EXPECT_TRUE(before.intersects(Mask::kSelectMeshes));
    EXPECT_EQ(MS::kSuccess, MGlobal::setObjectSelectionMask(Mask(Mask::kSelectLights)));
    EXPECT_FALSE(MGlobal::objectSelectionMask().intersects(Mask::kSelectMeshes));
    EXPECT_TRUE(MGlobal::objectSelectionMask().intersects(Mask::kSelectLights));
    EXPECT_EQ(MS::kSuccess, MGlobal::setObjectSelectionMask(before));
    EXPECT_TRUE(MGlobal::componentSelectionMask().intersects(Mask::kSelectCVs));
    EXPECT_TRUE(MGlobal::animSelectionMask().intersects(Mask::kSelectAnimKeyframes));
    EXPECT_EQ(MS::kSuccess, MGlobal::setMiscSelectionMask(Mask(Mask::kSelectTemplates)));
    EXPECT_TRUE(MGlobal::miscSelectionMask().intersects(Mask::kSelectTemplates));
    EXPECT_EQ(MS::kSuccess, MGlobal::setMiscSelectionMask(Mask()));
}

TEST_F(RichSelection, IsTheSelectionWithoutAMirrorImage)
{
    make("transform", "a");
    make("transform", "b");
    select({"b", "a"});
    MRichSelection rich;
    EXPECT_EQ(MS::kSuccess, MGlobal::getRichSelection(rich));
    MSelectionList list;
    EXPECT_EQ(MS::kSuccess, rich.getSelection(list));
    EXPECT_EQ((Texts{"b", "a"}), names(list));
    EXPECT_EQ(MS::kSuccess, rich.getSymmetry(list));
    EXPECT_EQ((Texts{}), names(list));
    MMatrix matrix;
    MSpace::Space space = MSpace::kWorld;
    EXPECT_EQ(MS::kFailure, rich.getSymmetryMatrix(matrix, space));
    EXPECT_EQ(MS::kFailure, rich.getSymmetryMatrix(path("a"), MSpace::kWorld, matrix));
    EXPECT_EQ(MS::kFailure, MGlobal::getRichSelection(rich, false));
}

TEST_F(RichSelection, ReplacesTheSelection)
{
    make("transform", "a");
    make("transform", "b");
    select({"b"});
    MSelectionList list;
    list.add("a");
    MRichSelection rich;
    EXPECT_EQ(MS::kSuccess, rich.setSelection(list));
    EXPECT_EQ(MS::kSuccess, MGlobal::setRichSelection(MRichSelection(rich)));
    MSelectionList active;
    MGlobal::getActiveSelectionList(active);
    EXPECT_EQ((Texts{"a"}), names(active));
    EXPECT_EQ(MS::kSuccess, rich.clear());
    EXPECT_EQ(MS::kSuccess, MGlobal::setRichSelection(rich));
    MGlobal::getActiveSelectionList(active);
    EXPECT_EQ((Texts{}), names(active));
}

} // namespace
} // namespace tvxhost::api::test
