// What tests of drawn scenes share: a new scene, made current, and short ways to its objects.
#pragma once

#include "engine/scene.h"

#include <gtest/gtest.h>

namespace tvxhost::viewport::test {

class SceneFixture : public testing::Test
{
protected:
    SceneFixture()
    {
        m_scene.newScene();
        engine::Scene::makeCurrent(&m_scene);
    }
    ~SceneFixture() override { engine::Scene::makeCurrent(nullptr); }

    engine::DagNode& create(const char* type, const char* name, engine::DagNode* parent = nullptr)
    {
        const auto node = m_scene.createNode(type, name, parent);
        EXPECT_TRUE(node) << node.outcome.text;
        return *node.value->asDag();
    }
    void set(engine::DagNode& node, const char* plug, double value)
    {
        const auto outcome = engine::writeNumber(node.findPlug(plug).value, engine::Number(value));
        ASSERT_TRUE(outcome) << plug << ": " << outcome.text;
    }

    engine::Scene m_scene;
};

} // namespace tvxhost::viewport::test
