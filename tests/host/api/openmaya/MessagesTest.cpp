// MMessage and its kinds: functions that are called when something happens in the scene.
#include "../nodeFixture.h"

#include "engine/observers.h"

#include <maya/MDGMessage.h>
#include <maya/MDGModifier.h>
#include <maya/MEventMessage.h>
#include <maya/MFileObject.h>
#include <maya/MFnDependencyNode.h>
#include <maya/MFnNumericAttribute.h>
#include <maya/MIntArray.h>
#include <maya/MMessage.h>
#include <maya/MNodeMessage.h>
#include <maya/MPlug.h>
#include <maya/MSceneMessage.h>
#include <maya/MStringArray.h>
#include <maya/MTime.h>
#include <maya/MUuid.h>

#include <gmock/gmock.h>

using namespace tvxhost::api;
using namespace tvxhost::api::test;
using testing::ElementsAre;
using testing::IsEmpty;
using tvxhost::engine::Happening;

namespace {

using Heard = std::vector<std::string>;

/// What a callback is given last: where it writes down what it hears.
Heard& heardBy(void* clientData)
{
    return *static_cast<Heard*>(clientData);
}

std::string nameOf(const MObject& node)
{
    return text(MFnDependencyNode(node, nullptr).name());
}

void hear(void* clientData)
{
    heardBy(clientData).push_back("called");
}

void hearNode(MObject& node, void* clientData)
{
    heardBy(clientData).push_back(nameOf(node));
}

void hearNodeAndName(MObject& node, const MString& former, void* clientData)
{
    heardBy(clientData).push_back(text(former) + " -> " + nameOf(node));
}

void hearPlug(MObject&, MPlug& plug, void* clientData)
{
    heardBy(clientData).push_back(text(plug.name()));
}

void hearAttribute(MNodeMessage::AttributeMessage message, MPlug& plug, MPlug& other, void* clientData)
{
    heardBy(clientData)
        .push_back(std::to_string(message) + " " + text(plug.name()) +
                   (other.isNull() ? "" : " " + text(other.name())));
}

void hearConnection(MPlug& source, MPlug& destination, bool made, void* clientData)
{
    heardBy(clientData).push_back(text(source.name()) + (made ? " > " : " x ") + text(destination.name()));
}

class MessagesTest : public NodeFixture
{
protected:
    void rename(MObject& node, const char* name) { MFnDependencyNode(node, nullptr).setName(name); }

    void remove(MObject& node)
    {
        MDGModifier modifier;
        EXPECT_TRUE(modifier.deleteNode(node));
        EXPECT_TRUE(modifier.doIt());
    }

    void connect(const char* source, const char* destination)
    {
        MDGModifier modifier;
        EXPECT_TRUE(modifier.connect(plug(source), plug(destination)));
        EXPECT_TRUE(modifier.doIt());
    }

    void disconnect(const char* source, const char* destination)
    {
        MDGModifier modifier;
        EXPECT_TRUE(modifier.disconnect(plug(source), plug(destination)));
        EXPECT_TRUE(modifier.doIt());
    }

    Heard takeHeard() { return std::exchange(heard, {}); }

    Heard heard;
    MStatus status;
};

} // namespace

TEST_F(MessagesTest, ACallbackIsCalledUntilItIsRemoved)
{
    MObject node = make("transform", "a");
    const MCallbackId id = MNodeMessage::addNameChangedCallback(node, hearNodeAndName, &heard, &status);
    EXPECT_TRUE(status);
    EXPECT_NE(0u, id);
    rename(node, "b");
    EXPECT_THAT(takeHeard(), ElementsAre("a -> b"));
    EXPECT_TRUE(MMessage::removeCallback(id));
    EXPECT_EQ("(kInvalidParameter): Cannot find item of required type", text(MMessage::removeCallback(id)));
    rename(node, "c");
    EXPECT_THAT(takeHeard(), IsEmpty());
}

TEST_F(MessagesTest, WithoutAFunctionOrANodeThereIsNoCallback)
{
    MObject node = make("transform", "a");
    EXPECT_EQ(0u, MNodeMessage::addNodeDirtyCallback(node, static_cast<MMessage::MNodeFunction>(nullptr),
                                                     nullptr, &status));
    EXPECT_EQ("(kInvalidParameter): Argument is a NULL pointer", text(status));
    MObject none;
    EXPECT_EQ(0u, MNodeMessage::addNodeDestroyedCallback(none, hear, &heard, &status));
    EXPECT_FALSE(status);
    MPlug nowhere;
    EXPECT_EQ(0u, MNodeMessage::addKeyableChangeOverride(nowhere, nullptr, nullptr, &status));
    EXPECT_FALSE(status);
}

TEST_F(MessagesTest, TheCallbacksOfANodeAreListedAndGoWithIt)
{
    MObject node = make("transform", "a");
    const MCallbackId first = MNodeMessage::addNodeDirtyPlugCallback(node, hearPlug, &heard);
    const MCallbackId second = MNodeMessage::addNodePreRemovalCallback(node, hearNode, &heard);
    MCallbackIdArray ids;
    EXPECT_TRUE(MMessage::nodeCallbacks(node, ids));
    ASSERT_EQ(2u, ids.length());
    EXPECT_EQ(first, ids[0]);
    EXPECT_EQ(second, ids[1]);
    EXPECT_TRUE(MMessage::removeCallbacks(ids));
    EXPECT_FALSE(MMessage::removeCallbacks(ids));
    MIntArray small;
    EXPECT_TRUE(MMessage::nodeCallbacks(node, small));
    EXPECT_EQ(0u, small.length());
    const MCallbackId last = MNodeMessage::addNodeDestroyedCallback(node, hear, &heard);
    remove(node);
    scene.journal().flush();
    EXPECT_THAT(takeHeard(), ElementsAre("called"));
    EXPECT_FALSE(MMessage::removeCallback(last)) << "it went with its node";
}

TEST_F(MessagesTest, ACallbackKnowsItsIdAndMayRemoveItself)
{
    EXPECT_EQ(0u, MMessage::currentCallbackId(&status));
    EXPECT_FALSE(status);
    const auto once = [](void* clientData) {
        heardBy(clientData).push_back("once");
        EXPECT_TRUE(MMessage::removeCallback(MMessage::currentCallbackId()));
    };
    MEventMessage::addEventCallback("idle", once, &heard);
    scene.observers().tell({Happening::idle});
    scene.observers().tell({Happening::idle});
    EXPECT_THAT(takeHeard(), ElementsAre("once"));
}

TEST_F(MessagesTest, ChangesOfAttributesHaveTheirBits)
{
    MObject a = make("transform", "a");
    make("transform", "b");
    MNodeMessage::addAttributeChangedCallback(a, hearAttribute, &heard);
    plug("a.tx").setDouble(2.0);
    EXPECT_THAT(takeHeard(), ElementsAre("2056 a.translateX"));
    connect("b.ty", "a.ty");
    EXPECT_THAT(takeHeard(), ElementsAre("18433 a.translateY b.translateY"));
    disconnect("b.ty", "a.ty");
    EXPECT_THAT(takeHeard(), ElementsAre("18434 a.translateY b.translateY"));
    connect("a.tz", "b.tz");
    EXPECT_THAT(takeHeard(), ElementsAre("16385 a.translateZ b.translateZ"));
    plug("a.sx").setLocked(true);
    plug("a.sx").setLocked(true);
    plug("a.sx").setLocked(false);
    EXPECT_THAT(takeHeard(), ElementsAre("2064 a.scaleX", "2080 a.scaleX"));
    plug("a.sy").setKeyable(false);
    plug("a.sy").setKeyable(true);
    EXPECT_THAT(takeHeard(), ElementsAre("3072 a.scaleY", "2560 a.scaleY"));
}

TEST_F(MessagesTest, ComputedPlugsAreToldWhenTheyAreEvaluated)
{
    MObject a = make("transform", "a");
    (void)plug("a.worldMatrix[0]").asMObject();
    MNodeMessage::addAttributeChangedCallback(a, hearAttribute, &heard);
    plug("a.tx").setDouble(1.0);
    takeHeard();
    (void)plug("a.worldMatrix[0]").asMObject();
    EXPECT_THAT(takeHeard(), testing::Contains("2052 a.worldMatrix[0]"));
}

TEST_F(MessagesTest, AttributesComeAndGo)
{
    MObject node = make("transform", "a");
    const auto hearDynamic = [](MNodeMessage::AttributeMessage message, MPlug& plug, void* clientData) {
        heardBy(clientData).push_back(std::to_string(message) + " " + text(plug.name()));
    };
    MNodeMessage::addAttributeAddedOrRemovedCallback(node, hearDynamic, &heard);
    MFnNumericAttribute attribute;
    const MObject size = attribute.create("size", "siz", MFnNumericData::kDouble);
    MFnDependencyNode set(node, nullptr);
    EXPECT_TRUE(set.addAttribute(size));
    EXPECT_THAT(takeHeard(), ElementsAre("64 a.size"));
    EXPECT_TRUE(set.removeAttribute(size));
    EXPECT_THAT(takeHeard(), ElementsAre("128 a.size"));
}

TEST_F(MessagesTest, WhatIsOutdatedIsTold)
{
    MObject a = make("transform", "a");
    (void)plug("a.worldMatrix[0]").asMObject();
    MNodeMessage::addNodeDirtyPlugCallback(a, hearPlug, &heard);
    plug("a.tx").setDouble(1.0);
    EXPECT_THAT(takeHeard(), testing::IsSupersetOf({"a.translateX", "a.worldMatrix"}));
}

TEST_F(MessagesTest, KeyableChangesCanBeForbidden)
{
    make("transform", "a");
    MPlug held = plug("a.tx");
    const auto forbid = [](MPlug& plug, void* clientData, MNodeMessage::KeyableChangeMsg message,
                           bool& isAllowed) {
        heardBy(clientData).push_back(text(plug.name()) + " " + std::to_string(message));
        isAllowed = false;
    };
    MNodeMessage::addKeyableChangeOverride(held, forbid, &heard, &status);
    EXPECT_TRUE(status);
    held.setKeyable(false);
    EXPECT_TRUE(held.isKeyable());
    plug("a.ty").setKeyable(false);
    EXPECT_FALSE(plug("a.ty").isKeyable());
    EXPECT_THAT(takeHeard(), ElementsAre("a.translateX 2"));
}

TEST_F(MessagesTest, TheNullObjectStandsForAllNodes)
{
    MObject a = make("transform", "a");
    MObject all;
    MNodeMessage::addNameChangedCallback(all, hearNodeAndName, &heard);
    const auto hearUuid = [](MObject& node, const MUuid& former, void* clientData) {
        heardBy(clientData).push_back(nameOf(node) + " " + text(former.asString()));
    };
    MNodeMessage::addUuidChangedCallback(all, hearUuid, &heard);
    rename(a, "c");
    const std::string former = scene.findNode("c").value->uuid();
    MFnDependencyNode(a, nullptr).setUuid(MUuid("01234567-89AB-CDEF-0123-456789ABCDEF"));
    EXPECT_THAT(takeHeard(), ElementsAre("a -> c", "c " + former));
}

TEST_F(MessagesTest, ANodeIsToldBeforeItGoesAndWhatIsQueuedIsDone)
{
    MObject a = make("transform", "a");
    make("transform", "b");
    const auto rescue = [](MObject& node, MDGModifier& modifier, void* clientData) {
        heardBy(clientData).push_back("about to delete " + nameOf(node));
        modifier.renameNode(tvxAccess::handle(tvxhost::engine::Scene::current().findNode("b").value), "heir");
    };
    MNodeMessage::addNodeAboutToDeleteCallback(a, rescue, &heard);
    MNodeMessage::addNodePreRemovalCallback(a, hearNode, &heard);
    MDGMessage::addNodeRemovedCallback(hearNode, "transform", &heard);
    remove(a);
    EXPECT_THAT(takeHeard(), ElementsAre("about to delete a", "a", "a"));
    EXPECT_TRUE(scene.findNode("heir"));
}

TEST_F(MessagesTest, NodesAreToldByTheirType)
{
    MDGMessage::addNodeAddedCallback(hearNode, "shape", &heard, &status);
    EXPECT_TRUE(status);
    make("locator");
    make("multiplyDivide", "md");
    EXPECT_THAT(takeHeard(), ElementsAre("locatorShape1"));
    const MCallbackId all = MDGMessage::addNodeAddedCallback(hearNode, kDefaultNodeType, &heard);
    make("multiplyDivide", "md");
    EXPECT_THAT(takeHeard(), ElementsAre("md1"));
    EXPECT_TRUE(MMessage::removeCallback(all));
    EXPECT_EQ(0u, MDGMessage::addNodeAddedCallback(hearNode, "noSuchType", &heard, &status));
    EXPECT_EQ(MS::kInvalidParameter, status.statusCode());
}

TEST_F(MessagesTest, ConnectionsAreToldBeforeAndAfter)
{
    make("transform", "a");
    make("transform", "b");
    MDGMessage::addPreConnectionCallback(hearConnection, &heard);
    MDGMessage::addConnectionCallback(hearConnection, &heard);
    connect("a.tx", "b.tx");
    EXPECT_THAT(takeHeard(), ElementsAre("a.translateX > b.translateX", "a.translateX > b.translateX"));
    disconnect("a.tx", "b.tx");
    EXPECT_THAT(takeHeard(), ElementsAre("a.translateX x b.translateX", "a.translateX x b.translateX"));
}

TEST_F(MessagesTest, TheNewTimeIsGivenInTheUsersUnit)
{
    const auto hearTime = [](MTime& time, void* clientData) {
        heardBy(clientData).push_back(std::to_string(time.value()));
    };
    MDGMessage::addTimeChangeCallback(hearTime, &heard);
    MDGMessage::addForceUpdateCallback(hearTime, &heard);
    MDGMessage::addDelayedTimeChangeRunupCallback(hearTime, &heard);
    scene.setTime(2.0);
    EXPECT_THAT(takeHeard(), ElementsAre("48.000000", "48.000000"));
}

TEST_F(MessagesTest, EventsHaveNames)
{
    MStringArray names;
    EXPECT_TRUE(MEventMessage::getEventNames(names));
    EXPECT_GT(names.length(), 20u);
    MObject a = make("transform", "a");
    MEventMessage::addEventCallback("SelectionChanged", hear, &heard, &status);
    EXPECT_TRUE(status);
    tvxhost::engine::SelectionList selection;
    selection.add(scene.findItem("a").value);
    scene.setSelection(selection);
    scene.setSelection(selection);
    EXPECT_THAT(takeHeard(), ElementsAre("called")) << "the same selection is no change";
    remove(a);
    EXPECT_THAT(takeHeard(), ElementsAre("called")) << "what is deleted is not selected any more";
    EXPECT_NE(0u, MEventMessage::addEventCallback("ToolChanged", hear, &heard));
    EXPECT_EQ(0u, MEventMessage::addEventCallback("noSuchEvent", hear, &heard, &status));
    EXPECT_FALSE(status);
}

TEST_F(MessagesTest, FilesAreToldAndCanBeForbidden)
{
    MSceneMessage::addCallback(MSceneMessage::kBeforeSave, hear, &heard, &status);
    EXPECT_TRUE(status);
    const auto forbid = [](bool* isAllowed, MFileObject& file, void* clientData) {
        heardBy(clientData).push_back(text(file.rawFullName()));
        *isAllowed = text(file.rawName()) != "secret.ma";
    };
    MSceneMessage::addCheckFileCallback(MSceneMessage::kBeforeOpenCheck, forbid, &heard);
    scene.observers().tell({Happening::saveBegun});
    EXPECT_TRUE(scene.observers().allow(Happening::openChecked, "/a/open.ma"));
    EXPECT_FALSE(scene.observers().allow(Happening::openChecked, "/a/secret.ma"));
    EXPECT_THAT(takeHeard(), ElementsAre("called", "/a/open.ma", "/a/secret.ma"));
    EXPECT_EQ(0u, MSceneMessage::addCallback(MSceneMessage::kBeforeOpenCheck, hear, &heard, &status));
    EXPECT_EQ(MS::kInvalidParameter, status.statusCode()) << "a check needs a function that answers";
    EXPECT_EQ(0u, MSceneMessage::addCheckFileCallback(MSceneMessage::kBeforeSave, forbid, &heard, &status));
    EXPECT_FALSE(status);
    EXPECT_NE(0u, MSceneMessage::addCallback(MSceneMessage::kBeforeSoftwareRender, hear, &heard));
}

TEST_F(MessagesTest, PluginsAreToldByPathAndName)
{
    const auto hearTexts = [](const MStringArray& texts, void* clientData) {
        for (unsigned int i = 0; i < texts.length(); ++i)
            heardBy(clientData).push_back(text(texts[i]));
    };
    MSceneMessage::addStringArrayCallback(MSceneMessage::kAfterPluginLoad, hearTexts, &heard);
    MSceneMessage::addStringArrayCallback(MSceneMessage::kAfterPluginUnload, hearTexts, &heard);
    tvxhost::engine::Event event{Happening::pluginLoadDone};
    event.text = "/p/crowd.so";
    event.name = "crowd";
    scene.observers().tell(event);
    event.what = Happening::pluginUnloadDone;
    scene.observers().tell(event);
    EXPECT_THAT(takeHeard(), ElementsAre("/p/crowd.so", "crowd", "crowd", "/p/crowd.so"));
}

TEST_F(MessagesTest, WhatUndoBringsBackIsStillHeard)
{
    scene.journal().setOn(true);
    MObject a = make("transform", "a");
    MNodeMessage::addNameChangedCallback(a, hearNodeAndName, &heard);
    MDGMessage::addNodeAddedCallback(hearNode, "transform", &heard);
    scene.journal().openChunk("delete a");
    EXPECT_TRUE(scene.deleteNode(*scene.findNode("a").value));
    scene.journal().closeChunk();
    EXPECT_TRUE(scene.journal().undo());
    EXPECT_THAT(takeHeard(), ElementsAre("a"));
    rename(a, "b");
    EXPECT_THAT(takeHeard(), ElementsAre("a -> b"));
}

TEST(CallbackIds, AreKeptInAnArray)
{
    MCallbackIdArray ids(2, 7);
    ids.append(MCallbackId(1) << 40);
    const MCallbackIdArray copy(ids);
    ids.clear();
    ASSERT_EQ(3u, copy.length());
    EXPECT_EQ(7u, copy[1]);
    EXPECT_EQ(MCallbackId(1) << 40, copy[2]);
    EXPECT_FALSE(ids.remove(0));
    EXPECT_TRUE(ids.insert(5, 0));
    EXPECT_EQ(5u, ids[0]);
}
