// What the engine's tests share: a scene, short ways to nodes and plugs, and types whose computes are
// counted.
#pragma once

#include "engine/scene.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace tvxhost::engine {

class SceneTest : public testing::Test
{
protected:
    Node& make(const std::string& type, const std::string& name = {}, DagNode* parent = nullptr)
    {
        Expected<Node*> made = scene.createNode(type, name, parent);
        EXPECT_TRUE(made) << made.outcome.text;
        return *made.value;
    }
    DagNode& makeTransform(const std::string& name, DagNode* parent = nullptr)
    {
        return *make("transform", name, parent).asDag();
    }
    Plug plug(const std::string& name)
    {
        Expected<Plug> found = scene.findPlug(name);
        EXPECT_TRUE(found) << found.outcome.text;
        return found.value;
    }
    double number(const std::string& name) { return readNumber(plug(name)).value.asReal(); }
    void set(const std::string& name, double value)
    {
        const Outcome outcome = writeNumber(plug(name), Number(value));
        EXPECT_TRUE(outcome) << outcome.text;
    }
    /// The numbers of a group.
    std::vector<double> group(const std::string& name) { return readNumbers(plug(name)).value; }
    void setGroup(const std::string& name, const std::vector<double>& values)
    {
        const Outcome outcome = writeNumbers(plug(name), values);
        EXPECT_TRUE(outcome) << outcome.text;
    }
    Outcome connect(const std::string& source, const std::string& destination, bool force = false)
    {
        return scene.connect(plug(source), plug(destination), force);
    }

    /// Adds a dynamic number to a node.
    Plug addNumber(Node& node, const std::string& name, NumberKind kind = NumberKind::real,
                   const std::function<void(Attribute&)>& adjust = {})
    {
        Ref<Attribute> attribute = makeNumber(name, name, kind, 0.0);
        if (adjust)
            adjust(*attribute);
        const Outcome outcome = node.addDynamicAttribute(attribute);
        EXPECT_TRUE(outcome) << outcome.text;
        return Plug(node, *attribute);
    }

    Scene scene;
};

} // namespace tvxhost::engine
