// A scene of its own with a plug-in whose node types a test registers as it likes.
#pragma once

#include "texts.h"

#include "api/plugins/pluginLoader.h"
#include "api/support/access.h"
#include "api/support/builtInAttributes.h"
#include "api/support/faults.h"
#include "engine/scene.h"

#include <gtest/gtest.h>

#define MNoVersionString
#include <maya/MFnDependencyNode.h>
#include <maya/MFnPlugin.h>
#include <maya/MPlug.h>
#include <maya/MTypeId.h>

#include <string>
#include <vector>

namespace tvxhost::api::test {

class NodeFixture : public ::testing::Test
{
protected:
    NodeFixture() : loader(scene), plugin(new Plugin("testPlugin", "/plug-ins/testPlugin.so"))
    {
        engine::Scene::makeCurrent(&scene);
        PluginLoader::makeCurrent(&loader);
        pluginObject = tvxAccess::handle(plugin.get());
        BuiltInAttributes::bindAll(scene.types());
    }
    ~NodeFixture() override
    {
        faults::clear();
        PluginLoader::makeCurrent(nullptr);
        engine::Scene::makeCurrent(nullptr);
    }

    MStatus registerType(const char* name, unsigned int id, MCreatorFunction creator,
                         MInitializeFunction initialize, MPxNode::Type kind = MPxNode::kDependNode)
    {
        MFnPlugin set(pluginObject, "Vendor", "1.0");
        return set.registerNode(name, MTypeId(id), creator, initialize, kind);
    }

    /// A node of a type, by the API's own way.
    MObject make(const char* type, const char* name = "")
    {
        MStatus status;
        MFnDependencyNode set;
        MObject node = set.create(type, name, &status);
        EXPECT_TRUE(status) << text(status);
        return node;
    }

    static MPlug plug(const MObject& node, const char* name)
    {
        return MFnDependencyNode(node, nullptr).findPlug(name, true);
    }
    MPlug plug(const std::string& name)
    {
        const auto found = scene.findPlug(name);
        EXPECT_TRUE(found) << found.outcome.text;
        return tvxAccess::plug(found.value);
    }

    engine::Scene scene;
    PluginLoader loader;
    engine::Ref<Plugin> plugin;
    MObject pluginObject;
};

} // namespace tvxhost::api::test
