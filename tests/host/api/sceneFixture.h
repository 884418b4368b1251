// A scene of its own, made current, and short ways to its nodes.
#pragma once

#include "texts.h"

#include "api/support/access.h"
#include "api/support/faults.h"
#include "engine/scene.h"

#include <maya/MDagPath.h>
#include <maya/MObject.h>
#include <maya/MPlug.h>
#include <maya/MSelectionList.h>
#include <maya/MStringArray.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tvxhost::api::test {

class SceneFixture : public testing::Test
{
protected:
    SceneFixture() { engine::Scene::makeCurrent(&scene); }
    ~SceneFixture() override
    {
        faults::clear();
        engine::Scene::makeCurrent(nullptr);
    }

    engine::Node& make(const std::string& type, const std::string& name, const std::string& parent = {})
    {
        engine::DagNode* above = parent.empty() ? nullptr : scene.findNode(parent).value->asDag();
        const auto made = scene.createNode(type, name, above);
        EXPECT_TRUE(made) << made.outcome.text;
        return *made.value;
    }
    engine::Node& node(const std::string& name)
    {
        const auto found = scene.findNode(name);
        EXPECT_TRUE(found) << found.outcome.text;
        return *found.value;
    }
    MObject object(const std::string& name) { return tvxAccess::handle(&node(name)); }
    MDagPath path(const std::string& name)
    {
        const auto item = scene.findItem(name);
        EXPECT_TRUE(item) << item.outcome.text;
        return tvxAccess::dagPath(item.value.path);
    }
    MPlug plug(const std::string& name)
    {
        const auto found = scene.findPlug(name);
        EXPECT_TRUE(found) << found.outcome.text;
        return tvxAccess::plug(found.value);
    }
    void set(const std::string& name, const std::vector<double>& numbers)
    {
        const auto outcome = engine::writeNumbers(scene.findPlug(name).value, numbers);
        EXPECT_TRUE(outcome) << outcome.text;
    }
    void instance(const std::string& child, const std::string& parent)
    {
        const auto outcome = scene.addParent(*node(child).asDag(), *node(parent).asDag());
        EXPECT_TRUE(outcome) << outcome.text;
    }
    /// Selects by names, in this order.
    void select(const Texts& names)
    {
        engine::SelectionList list;
        for (const std::string& name : names)
            list.add(scene.findItem(name).value);
        scene.setSelection(list);
    }
    static Texts names(const MSelectionList& list)
    {
        MStringArray array;
        EXPECT_EQ(list.getSelectionStrings(array), MS::kSuccess);
        return texts(array);
    }
    Texts messages(engine::MessageKind kind) const { return shown(scene, kind); }

    mutable engine::Scene scene;
};

} // namespace tvxhost::api::test
