// MObject, MObjectHandle and MObjectArray: handles on things of the scene.
#include "../nodeFixture.h"

#include <maya/MObjectArray.h>
#include <maya/MObjectHandle.h>

using namespace tvxhost::api::test;

namespace {

class Handles : public NodeFixture
{
};

} // namespace

TEST_F(Handles, ADefaultHandleIsNull)
{
    const MObject none;
    EXPECT_TRUE(none.isNull());
    EXPECT_EQ(MObject::kNullObj, none);
    EXPECT_EQ(MFn::kInvalid, none.apiType());
    EXPECT_STREQ("kInvalid", none.apiTypeStr());
    EXPECT_FALSE(none.hasFn(MFn::kBase));
}

TEST_F(Handles, HandlesOnOneNodeAreEqual)
{
    const MObject a = make("transform", "a");
    const MObject again = tvxAccess::handle(scene.findNode("a").value);
    const MObject b = make("transform", "b");
    EXPECT_TRUE(a == again);
    EXPECT_FALSE(a != again);
    EXPECT_TRUE(a != b);
}

TEST_F(Handles, CopiesOutliveTheirOriginal)
{
    MObject copy;
    {
        const MObject node = make("transform", "a");
        copy = node;
    }
    MObject& self = copy;
    copy = self;
    EXPECT_EQ(MFn::kTransform, copy.apiType());
}

TEST_F(Handles, AHandleTellsThatItsNodeIsGone)
{
    const MObjectHandle handle(make("transform", "a"));
    EXPECT_TRUE(handle.isValid());
    EXPECT_TRUE(handle.isAlive());
    const unsigned int hash = handle.hashCode();
    ASSERT_TRUE(scene.deleteNode(*scene.findNode("a").value));
    EXPECT_FALSE(handle.isValid());
    EXPECT_FALSE(handle.isAlive());
    EXPECT_TRUE(handle.object().isNull());
    EXPECT_TRUE(handle.objectRef().isNull());
    EXPECT_EQ(hash, handle.hashCode());
}

TEST_F(Handles, ADefaultMObjectHandleIsNotValid)
{
    const MObjectHandle none;
    EXPECT_FALSE(none.isValid());
    EXPECT_TRUE(none == MObject::kNullObj);
}

TEST_F(Handles, ArraysOfHandlesKeepOrderAndReportBadIndices)
{
    const MObject a = make("transform", "a");
    const MObject b = make("transform", "b");
    MObjectArray array(2, a);
    EXPECT_TRUE(array.append(b));
    EXPECT_TRUE(array.insert(b, 0));
    EXPECT_EQ(4u, array.length());
    EXPECT_EQ(b, array[0]);
    EXPECT_EQ(a, array[1]);
    EXPECT_EQ("(kInvalidParameter): No element at given index", text(array.remove(4)));
    EXPECT_TRUE(array.remove(0));
    EXPECT_EQ(a, array[0]);
    MObject plain[3];
    EXPECT_TRUE(array.get(plain));
    EXPECT_EQ(b, plain[2]);
}
