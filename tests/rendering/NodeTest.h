// A scene with the plug-in loaded, and the handling of its nodes through the API.
#pragma once

#include "PluginSession.h"

#include <maya/MObject.h>
#include <maya/MPlug.h>
#include <maya/MStatus.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarvox::crowd::test {

using Color = std::vector<float>;

class NodeTest : public testing::Test
{
protected:
    void SetUp() override;

    static MObject createNode(const char* type);
    /// The shape of a new locator, which comes with a transform.
    static MObject createShape(const char* type);

    static std::string nameOf(const MObject& node);
    static MPlug plugOf(const MObject& node, const char* attribute);
    /// All plugs of a node, those of compounds and of their children.
    static std::vector<MPlug> plugsOf(const MObject& node);

    static Color colorOf(const MPlug& plug);
    static void setColor(const MPlug& plug, const Color& color);
    static void connect(const MPlug& source, const MPlug& destination);

    /// Whether the value of a plug is to be computed before it is given.
    bool isDirty(const MPlug& plug);

    /// Asks the node's own code for a plug, as an evaluation does.
    static MStatus compute(const MObject& node, const MPlug& plug);
    /// Asks it for all plugs but "output" and its children; the names of those that it does not leave to
    /// others.
    static Lines computedBeside(const MObject& node, const char* output);

    PluginSession session;
};

} // namespace tarvox::crowd::test
