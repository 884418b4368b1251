// DagNode: its kind, its local matrix and its own display state.
#include "builtinTypes.h"
#include "cell.h"
#include "matrixParts.h"
#include "scene.h"
#include "values.h"

namespace tvxhost::engine {

namespace {

/// Values of one node by attribute name; attributes that the node lacks give the neutral value.
class Values
{
public:
    explicit Values(DagNode& node) : m_node(node) {}

    double number(const char* name, double neutral) const
    {
        Attribute* attribute = m_node.type().find(name);
        return attribute ? readNumber(Plug(m_node, *attribute)).value.asReal() : neutral;
    }
    bool flag(const char* name, bool neutral) const { return number(name, neutral) != 0.0; }
    Vec3d vector(const char* name, double neutral = 0.0) const
    {
        Attribute* attribute = m_node.type().find(name);
        if (!attribute || attribute->children.size() != 3)
            return Vec3d(neutral);
        const Plug plug(m_node, *attribute);
        // Most values are defaults; these need neither evaluation nor a list.
        if (!m_node.cells().find(*attribute))
            return {attribute->children[0]->defaultNumber, attribute->children[1]->defaultNumber,
                    attribute->children[2]->defaultNumber};
        (void)evaluate(plug);
        return {storedNumber(plug.child(0)).asReal(), storedNumber(plug.child(1)).asReal(),
                storedNumber(plug.child(2)).asReal()};
    }

private:
    DagNode& m_node;
};

/// What takes the scale of the joint above back from a joint.
Matrix segmentCompensation(const Values& values)
{
    const bool compensates = values.flag("segmentScaleCompensate", false);
    return compensates ? scaling(Vec3d(1.0) / values.vector("inverseScale", 1.0)) : Matrix();
}

constexpr int kTemplateDisplay = 1;

} // namespace

DagNode::DagNode(Scene& scene, NodeType& type) : Node(scene, type) {}

bool DagNode::isWorldOfScene() const
{
    return isAlive() && &scene().world() == this;
}

bool DagNode::isTransform() const
{
    return !type().isShape && type().name != "world";
}

DagNode* DagNode::childAt(std::size_t i) const
{
    constexpr std::size_t kNodeAhead = 16, kShapeAhead = 8;
    if (i + kNodeAhead < m_children.size()) {
        __builtin_prefetch(m_children[i + kNodeAhead]);
        const DagNode* soon = m_children[i + kShapeAhead];
        if (!soon->m_children.empty())
            __builtin_prefetch(soon->m_children.front());
    }
    return m_children[i];
}

bool DagNode::isIntermediate()
{
    Attribute* attribute = m_mayBeIntermediate ? type().intermediateObject() : nullptr;
    return attribute && storedNumber(Plug(*this, *attribute)).asWhole() != 0;
}

Matrix DagNode::localMatrix()
{
    if (!isTransform() || cells().roots().empty())
        return {};
    const Values values(*this);
    const Vec3d scalePivot = values.vector("scalePivot");
    const Vec3d rotatePivot = values.vector("rotatePivot");
    const int order = static_cast<int>(values.number("rotateOrder", 0.0));
    return translation(-scalePivot) * scaling(values.vector("scale", 1.0)) *
           shearing(values.vector("shear")) *
           translation(scalePivot + values.vector("scalePivotTranslate") - rotatePivot) *
           rotation(values.vector("rotateAxis"), 0) * rotation(values.vector("rotate"), order) *
           rotation(values.vector("jointOrient"), 0) * segmentCompensation(values) *
           translation(rotatePivot + values.vector("rotatePivotTranslate") + values.vector("translate"));
}

bool inheritsTransform(DagNode& node)
{
    return Values(node).flag("inheritsTransform", true);
}

bool isShownByItself(DagNode& node)
{
    const Values values(node);
    if (!values.flag("visibility", true) || !values.flag("lodVisibility", true) || node.isIntermediate())
        return false;
    return !values.flag("overrideEnabled", false) || values.flag("overrideVisibility", true);
}

bool isTemplatedByItself(DagNode& node)
{
    const Values values(node);
    if (values.flag("template", false))
        return true;
    return values.flag("overrideEnabled", false) &&
           static_cast<int>(values.number("overrideDisplayType", 0.0)) == kTemplateDisplay;
}

} // namespace tvxhost::engine
