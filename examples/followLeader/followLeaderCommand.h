// The command followLeader.
#pragma once

#include <maya/MArgDatabase.h>
#include <maya/MDGModifier.h>
#include <maya/MDagPath.h>
#include <maya/MDistance.h>
#include <maya/MObject.h>
#include <maya/MPxCommand.h>
#include <maya/MStringArray.h>
#include <maya/MSyntax.h>

#include <vector>

namespace followLeader {

/// followLeader [-leader NAME] [-axis x|y|z]... [-gap DISTANCE] [OBJECT...]
///
/// Makes transforms follow a leader at a fixed distance, the second one twice as far off as the first and so
/// on. Without -leader the first object leads; without objects the selected ones are meant. -axis (-a) may be
/// given several times and is x by default; -gap (-g) is one unit. Gives the names of the nodes that are
/// made, which add the distances.
class FollowLeaderCommand : public MPxCommand
{
public:
    static const MString name;

    static void* creator();
    static MSyntax newSyntax();

    MStatus doIt(const MArgList& arguments) override;
    MStatus redoIt() override;
    MStatus undoIt() override;
    bool isUndoable() const override;

private:
    MStatus parse(const MArgList& arguments);
    MStatus parseAxes(const MArgDatabase& arguments);
    MStatus parseLeader(const MArgDatabase& arguments);
    MStatus queue(const MDagPath& follower, int rank);
    MStatus queue(const MDagPath& follower, const MString& attribute, double distance);

    MStringArray m_attributes; ///< one for each axis
    MDistance m_gap{1.0, MDistance::uiUnit()};
    MDagPath m_leader;
    std::vector<MDagPath> m_followers;
    std::vector<MObject> m_sums;
    MDGModifier m_modifier;
};

} // namespace followLeader
