// Reports about the nodes of a scene.
#include "nodeReport.h"

#include "engine/dagPath.h"
#include "engine/plug.h"
#include "engine/typeName.h"
#include "mel/arguments.h"

#include <cstdio>

namespace tvxhost::app {

using engine::Attribute;
using engine::DagNode;
using engine::Node;
using engine::NodeType;
using engine::Plug;

namespace {

std::string nameOf(Node& node)
{
    DagNode* dagNode = node.asDag();
    return dagNode ? engine::DagPath::firstTo(*dagNode).fullName() : node.name();
}

bool isWorld(Node& node)
{
    const DagNode* dagNode = node.asDag();
    return dagNode && dagNode->isWorld();
}

std::string numberText(double number)
{
    char text[32];
    std::snprintf(text, sizeof text, "%g", number);
    return text;
}

engine::Expected<std::string> valueText(const Plug& plug)
{
    if (plug.attribute()->kind == engine::AttributeKind::typed &&
        plug.attribute()->dataType == engine::DataType::string) {
        const auto string = engine::readString(plug);
        return string ? engine::Expected<std::string>(mel::quoted(string.value)) : string.outcome;
    }
    const auto numbers = engine::readNumbers(plug);
    if (!numbers)
        return numbers.outcome;
    std::string text;
    for (double number : numbers.value)
        text += (text.empty() ? "" : " ") + numberText(number);
    return text;
}

void evaluate(const Plug& plug, Evaluation& evaluation)
{
    const auto text = valueText(plug);
    if (text)
        evaluation.lines.push_back(plug.name() + " = " + text.value);
    else
        evaluation.failures.push_back(plug.name() + ": " + text.outcome.text);
}

/// The attributes that a type adds to its parents', outputs only when it has some.
std::vector<Attribute*> tellingAttributes(const NodeType& type)
{
    std::vector<Attribute*> all;
    std::vector<Attribute*> outputs;
    for (const auto& attribute : type.attributes()) {
        if (attribute->owner != &type)
            continue;
        all.push_back(attribute.get());
        if (type.isOutput(*attribute))
            outputs.push_back(attribute.get());
    }
    return outputs.empty() ? all : outputs;
}

} // namespace

std::vector<std::string> listNodes(engine::Scene& scene)
{
    std::vector<std::string> lines;
    for (Node* node : scene.nodes()) {
        if (!isWorld(*node))
            lines.push_back(typeNameOf(*node) + " " + nameOf(*node));
    }
    return lines;
}

Evaluation evaluatePluginNodes(engine::Scene& scene)
{
    Evaluation evaluation;
    for (Node* node : scene.nodes()) {
        if (node->type().plugin.empty())
            continue;
        const std::vector<Attribute*> attributes = tellingAttributes(node->type());
        if (attributes.empty())
            evaluation.lines.push_back(node->name() + ": no attributes of its own");
        for (Attribute* attribute : attributes)
            evaluate(Plug(*node, *attribute), evaluation);
    }
    return evaluation;
}

} // namespace tvxhost::app
