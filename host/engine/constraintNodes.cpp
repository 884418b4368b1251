// Constraints: see constraintNodes.h. All work in the space of the world; what comes out is in the space of
// the constrained object's parent.
#include "constraintNodes.h"

#include "aiming.h"
#include "computeSupport.h"
#include "matrixParts.h"
#include "node.h"
#include "turns.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tvxhost::engine {

namespace {

// Targets

/// One element of a constraint's array of targets.
class Target
{
public:
    explicit Target(const Plug& element)
        : m_element(element), m_weight(readNumber(plug("targetWeight")).value.asReal())
    {
    }

    double weight() const { return m_weight; }
    double number(const char* name) const { return readNumber(plug(name)).value.asReal(); }
    Vec3d vector(const char* name) const { return vectorOf(plug(name)); }
    Matrix matrix(const char* name) const { return matrixOf(plug(name)); }

private:
    Plug plug(const char* name) const { return m_element.child(*m_element.node()->findAttribute(name)); }

    Plug m_element;
    double m_weight;
};

/// Those with weight; never empty where a constraint is solved.
using Targets = std::vector<Target>;

Targets targetsOf(Node& node)
{
    Targets targets;
    const Plug all = plugOf(node, "target");
    for (const int index : existingElements(all)) {
        const Target target(all.element(index));
        if (target.weight() > 0.0)
            targets.push_back(target);
    }
    return targets;
}

double weightOf(const Targets& targets)
{
    double sum = 0.0;
    for (const Target& target : targets)
        sum += target.weight();
    return sum;
}

using TargetPoint = Vec3d (*)(const Target& target);

Vec3d meanOf(const Targets& targets, TargetPoint pointOf)
{
    Vec3d sum(0.0);
    for (const Target& target : targets)
        sum += target.weight() * pointOf(target);
    return sum / weightOf(targets);
}

using TargetTurn = Turn (*)(const Target& target);

Turn meanOf(Node& node, const Targets& targets, TargetTurn turnOfTarget)
{
    // A cached constraint is a continuous one whose results were kept.
    constexpr int kCached = 4;
    const int type = static_cast<int>(numberOf(node, "interpType"));
    std::vector<WeightedTurn> turns;
    for (const Target& target : targets)
        turns.push_back({turnOfTarget(target), target.weight()});
    return meanOf(turns, type == kCached ? TurnPath::continuous : static_cast<TurnPath>(type));
}

// What targets say of themselves

Vec3d localPivot(const Target& target)
{
    return target.vector("targetTranslate") + target.vector("targetRotatePivot") +
           target.vector("targetRotateTranslate");
}

Vec3d worldPivot(const Target& target)
{
    return localPivot(target) * target.matrix("targetParentMatrix");
}

int orderOf(const Target& target)
{
    return static_cast<int>(target.number("targetRotateOrder"));
}

Turn turnBelow(const Target& target, const Matrix& above)
{
    const Turn local = turnOf(target.vector("targetRotate"), orderOf(target));
    return then(then(local, turnOf(target.vector("targetJointOrient"), 0)), turnOf(above));
}

Turn worldTurn(const Target& target)
{
    return turnBelow(target, target.matrix("targetParentMatrix"));
}

/// What takes the scale of its parent back from a joint.
Matrix compensation(const Vec3d& inverseScale)
{
    return scaling(Vec3d(1.0) / inverseScale);
}

/// What stands above the rotation of a target that carries the constrained object.
Matrix carrierCompensation(const Target& target)
{
    const bool isOn = target.number("targetScaleCompensate") != 0.0;
    return isOn ? compensation(target.vector("targetInverseScale")) : Matrix();
}

Turn carriedTurn(const Target& target)
{
    // Scenes of Maya's have the offset in this order whatever order the target has.
    const Turn offset = turnOf(target.vector("targetOffsetRotate"), 0);
    return then(offset, turnBelow(target, carrierCompensation(target) * target.matrix("targetParentMatrix")));
}

Vec3d carriedPoint(const Target& target)
{
    const Matrix local = scaling(target.vector("targetScale")) *
                         rotation(target.vector("targetRotate"), orderOf(target)) *
                         rotation(target.vector("targetJointOrient"), 0) * carrierCompensation(target) *
                         translation(localPivot(target));
    return target.vector("targetOffsetTranslate") * local * target.matrix("targetParentMatrix");
}

// The way back to the constrained object

Matrix parentInverse(Node& node)
{
    return matrixOf(plugOf(node, "constraintParentInverseMatrix"));
}

/// The translation that brings the pivot of the constrained object to a point of the world.
Vec3d translateTo(Node& node, const Vec3d& point)
{
    return point * parentInverse(node) - vectorOf(node, "constraintRotatePivot") -
           vectorOf(node, "constraintRotateTranslate");
}

int constrainedOrder(Node& node)
{
    return static_cast<int>(numberOf(node, "constraintRotateOrder"));
}

/// The angles with which the constrained object has an orientation in the world.
Vec3d rotateTo(Node& node, const Matrix& orientation)
{
    Matrix local = orientation * parentInverse(node);
    const Plug compensates = plugOf(node, "scaleCompensate");
    if (!compensates.isNull() && readNumber(compensates).value.asWhole() != 0)
        local *= scaling(vectorOf(node, "inverseScale"));
    const Matrix jointOrient = rotation(vectorOf(node, "constraintJointOrient"), 0);
    return anglesOf(takeApart(local).rotation * jointOrient.transposed(), constrainedOrder(node));
}

/// The same with an offset, which the constrained object has as if it were a child.
Vec3d rotateToWithOffset(Node& node, const Matrix& orientation)
{
    return rotateTo(node, rotation(vectorOf(node, "offset"), constrainedOrder(node)) * orientation);
}

// Solving

Vec3d pointTranslate(Node& node, const Targets& targets)
{
    const bool isSubtracted = numberOf(node, "constraintOffsetPolarity") != 0.0;
    const Vec3d offset = vectorOf(node, "offset");
    return translateTo(node, meanOf(targets, worldPivot)) + (isSubtracted ? -offset : offset);
}

/// From the start joint to the target.
Vec3d poleVector(Node& node, const Targets& targets)
{
    const Vec3d start = vectorOf(node, "constraintRotatePivot") * matrixOf(plugOf(node, "pivotSpace"));
    Vec3d direction;
    parentInverse(node).multDirMatrix(meanOf(targets, worldPivot) - start, direction);
    return direction + vectorOf(node, "offset");
}

Vec3d orientRotate(Node& node, const Targets& targets)
{
    return rotateToWithOffset(node, meanOf(node, targets, worldTurn).toMatrix44());
}

Vec3d parentTranslate(Node& node, const Targets& targets)
{
    return translateTo(node, meanOf(targets, carriedPoint));
}

Vec3d parentRotate(Node& node, const Targets& targets)
{
    return rotateTo(node, meanOf(node, targets, carriedTurn).toMatrix44());
}

Vec3d scaleOf(const Matrix& matrix)
{
    const Vec3d scale = takeApart(matrix).scale;
    return {std::abs(scale.x), std::abs(scale.y), std::abs(scale.z)};
}

/// The geometric mean of the targets' scales in the world.
Vec3d meanScale(const Targets& targets)
{
    const double sum = weightOf(targets);
    Vec3d mean(1.0);
    for (const Target& target : targets) {
        const Vec3d scale = target.vector("targetScale") * scaleOf(target.matrix("targetParentMatrix"));
        for (int axis = 0; axis < 3; ++axis)
            mean[axis] *= std::pow(scale[axis], target.weight() / sum);
    }
    return mean;
}

Vec3d constrainedScale(Node& node, const Targets& targets)
{
    const Vec3d scale = meanScale(targets) * vectorOf(node, "offset");
    // A joint that compensates does not have the scale of its parents.
    if (numberOf(node, "constraintScaleCompensate") != 0.0)
        return scale;
    return scale / scaleOf(parentInverse(node).inverse());
}

// Aiming

Vec3d constrainedPlace(Node& node)
{
    const Vec3d pivot = vectorOf(node, "constraintTranslate") + vectorOf(node, "constraintRotatePivot") +
                        vectorOf(node, "constraintRotateTranslate");
    return pivot * parentInverse(node).inverse();
}

Matrix aimedOrientation(Node& node, const Vec3d& place, const Vec3d& target)
{
    const Vec3d aim = vectorOf(node, "aimVector");
    const std::optional<Matrix> own = axesAlong(aim, vectorOf(node, "upVector"));
    const std::optional<Matrix> wanted = axesAlong(target - place, worldUp(node, place));
    if (own && wanted)
        return own->transposed() * *wanted;
    Turn shortest;
    shortest.setRotation(aim.normalized(), (target - place).normalized());
    return shortest.toMatrix44();
}

Vec3d aimRotate(Node& node, const Targets& targets)
{
    return rotateToWithOffset(node,
                              aimedOrientation(node, constrainedPlace(node), meanOf(targets, worldPivot)));
}

// Rows

/// The three numbers of one output.
using Solution = Vec3d (*)(Node& node, const Targets& targets);

struct ConstraintRow
{
    std::string_view type;
    std::string_view output;
    std::string_view rest;
    Solution solve;
};

constexpr ConstraintRow kConstraints[] = {
    {"aimConstraint", "constraintRotate", "restRotate", aimRotate},
    {"orientConstraint", "constraintRotate", "restRotate", orientRotate},
    {"parentConstraint", "constraintRotate", "restRotate", parentRotate},
    {"parentConstraint", "constraintTranslate", "restTranslate", parentTranslate},
    {"pointConstraint", "constraintTranslate", "restTranslate", pointTranslate},
    {"poleVectorConstraint", "constraintTranslate", "restTranslate", poleVector},
    {"scaleConstraint", "constraintScale", "restScale", constrainedScale},
};

void finishConstraint(Node& node, const Plug& output, const ConstraintRow& row)
{
    const Targets targets = targetsOf(node);
    if (!targets.empty())
        finishVector(output, row.solve(node, targets));
    else if (numberOf(node, "enableRestPosition") != 0.0)
        finishVector(output, vectorOf(node, row.rest));
    else
        finishNumbers(output, {});
}

Computed computeConstraint(Node& node, const Plug& plug)
{
    const Plug output = topPlug(plug);
    for (const ConstraintRow& row : kConstraints)
        if (row.output == output.attribute()->longName && row.type == node.type().name) {
            finishConstraint(node, output, row);
            return Computed::done;
        }
    return Computed::unknown;
}

} // namespace

void addConstraintComputes(TypeTable& types)
{
    for (const ConstraintRow& row : kConstraints)
        types.find(std::string(row.type))->compute = computeConstraint;
}

} // namespace tvxhost::engine
