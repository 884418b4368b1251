// The command followLeader.
#include "followLeaderCommand.h"

#include <maya/MArgList.h>
#include <maya/MFnDependencyNode.h>
#include <maya/MPlug.h>
#include <maya/MSelectionList.h>

namespace followLeader {

const MString FollowLeaderCommand::name("followLeader");

namespace {

constexpr char kLeader[] = "-l", kLeaderLong[] = "-leader";
constexpr char kAxis[] = "-a", kAxisLong[] = "-axis";
constexpr char kGap[] = "-g", kGapLong[] = "-gap";

MStatus failure(const MString& text)
{
    MPxCommand::displayError(FollowLeaderCommand::name + ": " + text);
    return MStatus::kFailure;
}

/// The transforms of a list, in its order.
MStatus getTransforms(const MSelectionList& list, std::vector<MDagPath>& transforms)
{
    for (unsigned int i = 0; i < list.length(); ++i) {
        MDagPath path;
        if (!list.getDagPath(i, path) || !path.hasFn(MFn::kTransform))
            return failure("only transforms can lead and follow");
        transforms.push_back(path);
    }
    return MStatus::kSuccess;
}

} // namespace

void* FollowLeaderCommand::creator()
{
    return new FollowLeaderCommand;
}

MSyntax FollowLeaderCommand::newSyntax()
{
    MSyntax syntax;
    syntax.addFlag(kLeader, kLeaderLong, MSyntax::kString);
    syntax.addFlag(kAxis, kAxisLong, MSyntax::kString);
    syntax.makeFlagMultiUse(kAxis);
    syntax.addFlag(kGap, kGapLong, MSyntax::kDistance);
    syntax.setObjectType(MSyntax::kSelectionList, 1);
    syntax.useSelectionAsDefault(true);
    syntax.enableQuery(false);
    syntax.enableEdit(false);
    return syntax;
}

MStatus FollowLeaderCommand::doIt(const MArgList& arguments)
{
    MStatus status = parse(arguments);
    if (!status)
        return status;
    for (std::size_t i = 0; status && i < m_followers.size(); ++i)
        status = queue(m_followers[i], static_cast<int>(i) + 1);
    if (!status)
        return failure("the nodes that add the distances cannot be made");
    status = redoIt();
    if (!status)
        return status;
    MStringArray names;
    for (const MObject& sum : m_sums)
        names.append(MFnDependencyNode(sum, nullptr).name());
    setResult(names);
    return status;
}

MStatus FollowLeaderCommand::redoIt()
{
    const MStatus status = m_modifier.doIt();
    if (status)
        return status;
    // What was done before the step that failed must not stay.
    m_modifier.undoIt();
    return failure("a follower's translation is locked, or follows something already");
}

MStatus FollowLeaderCommand::undoIt()
{
    return m_modifier.undoIt();
}

bool FollowLeaderCommand::isUndoable() const
{
    return true;
}

MStatus FollowLeaderCommand::parse(const MArgList& arguments)
{
    MStatus status;
    const MArgDatabase database(syntax(), arguments, &status);
    if (status)
        status = parseAxes(database);
    if (status && database.isFlagSet(kGap))
        status = database.getFlagArgument(kGap, 0, m_gap);
    return status ? parseLeader(database) : status;
}

MStatus FollowLeaderCommand::parseAxes(const MArgDatabase& arguments)
{
    const unsigned int uses = arguments.numberOfFlagUses(kAxis);
    for (unsigned int i = 0; i < uses; ++i) {
        MArgList values;
        const MStatus status = arguments.getFlagArgumentList(kAxis, i, values);
        if (!status)
            return status;
        const MString axis = values.asString(0);
        if (axis != "x" && axis != "y" && axis != "z")
            return failure("an axis is x, y or z and not \"" + axis + "\"");
        m_attributes.append("translate" + MString(axis).toUpperCase());
    }
    if (uses == 0)
        m_attributes.append("translateX");
    return MStatus::kSuccess;
}

MStatus FollowLeaderCommand::parseLeader(const MArgDatabase& arguments)
{
    MSelectionList objects;
    MStatus status = arguments.getObjects(objects);
    if (status)
        status = getTransforms(objects, m_followers);
    if (!status)
        return status;
    if (arguments.isFlagSet(kLeader)) {
        MString leader;
        arguments.getFlagArgument(kLeader, 0, leader);
        MSelectionList named;
        if (!named.add(leader) || !named.getDagPath(0, m_leader) || !m_leader.hasFn(MFn::kTransform))
            return failure("there is no transform \"" + leader + "\" to lead");
    } else {
        m_leader = m_followers.front();
        m_followers.erase(m_followers.begin());
    }
    return m_followers.empty() ? failure("there is nobody to follow") : MStatus(MStatus::kSuccess);
}

MStatus FollowLeaderCommand::queue(const MDagPath& follower, int rank)
{
    MStatus status;
    // Between lengths and plain numbers Maya converts by the user's unit.
    const double distance = rank * m_gap.as(MDistance::uiUnit());
    for (unsigned int i = 0; status && i < m_attributes.length(); ++i)
        status = queue(follower, m_attributes[i], distance);
    return status;
}

MStatus FollowLeaderCommand::queue(const MDagPath& follower, const MString& attribute, double distance)
{
    MStatus status;
    const MObject sum = m_modifier.createNode("plusMinusAverage", &status);
    if (!status)
        return status;
    m_sums.push_back(sum);
    const MFnDependencyNode followerNode(follower.node(), nullptr);
    const MFnDependencyNode sumNode(sum, nullptr);
    const MPlug inputs = sumNode.findPlug("input1D", true);
    status = m_modifier.renameNode(sum, followerNode.name() + "_" + attribute);
    if (status)
        status = m_modifier.newPlugValueFloat(inputs.elementByLogicalIndex(1), static_cast<float>(distance));
    if (status)
        status = m_modifier.connect(MFnDependencyNode(m_leader.node(), nullptr).findPlug(attribute, true),
                                    inputs.elementByLogicalIndex(0));
    if (status)
        status =
            m_modifier.connect(sumNode.findPlug("output1D", true), followerNode.findPlug(attribute, true));
    return status;
}

} // namespace followLeader
