// The files that nodes need: the two tables, and the members of nodes that fill and apply them.
#include "../../support/temporaryFolder.h"
#include "../nodeFixture.h"

#include <maya/MExternalContentInfoTable.h>
#include <maya/MExternalContentLocationTable.h>
#include <maya/MFnTypedAttribute.h>
#include <maya/MPlug.h>
#include <maya/MStringArray.h>

using namespace tvxhost::api;
using namespace tvxhost::api::test;

namespace {

using ExternalContentTest = NodeFixture;

/// "location|resolved|context|roles" of a key.
std::string info(const MExternalContentInfoTable& table, const char* key)
{
    MString location, resolved, context;
    MStringArray roles;
    if (!table.getInfo(key, location, resolved, context, roles))
        return "none";
    std::string all = text(location) + "|" + text(resolved) + "|" + text(context) + "|";
    for (unsigned int i = 0; i < roles.length(); ++i)
        all += (i ? " " : "") + text(roles[i]);
    return all;
}

/// The keys in their order.
std::string keys(const MExternalContentInfoTable& table)
{
    std::string all;
    for (unsigned int i = 0; i < table.length(); ++i) {
        MString key, location, resolved;
        MStringArray roles;
        EXPECT_EQ(MS::kSuccess, table.getEntry(i, key, location, resolved, roles));
        all += text(key) + ";";
    }
    return all;
}

/// A reader with one path of its own, and another that only Maya knows.
class Reader : public MPxNode
{
public:
    static void* create() { return new Reader; }
    static MStatus initialize()
    {
        MFnTypedAttribute typed;
        path = typed.create("cachePath", "cp", MFnData::kString);
        typed.setUsedAsFilename(true);
        return addAttribute(path);
    }
    void getExternalContent(MExternalContentInfoTable& table) const override
    {
        EXPECT_TRUE(addExternalContentForFileAttr(table, path));
        EXPECT_FALSE(addExternalContentForFileAttr(table, path)) << "the key is there already";
        EXPECT_FALSE(addExternalContentForFileAttr(table, caching)) << "no text";
        table.addResolvedEntry("generated", "a.tmp", "/caches/a.tmp", "", MStringArray());
    }
    void setExternalContent(const MExternalContentLocationTable& table) override
    {
        EXPECT_TRUE(setExternalContentForFileAttr(path, table));
    }
    static MObject path;
};
MObject Reader::path;

void setText(const MObject& node, const char* attribute, const char* value)
{
    EXPECT_EQ(MS::kSuccess, MFnDependencyNode(node, nullptr).findPlug(attribute, true).setString(value));
}

std::string textOf(const MObject& node, const char* attribute)
{
    return text(MFnDependencyNode(node, nullptr).findPlug(attribute, true).asString());
}

} // namespace

TEST_F(ExternalContentTest, ATableHoldsEachKeyOnceInTheirOrder)
{
    MExternalContentInfoTable table;
    MStringArray roles;
    roles.append("colour");
    roles.append("bump");
    EXPECT_EQ(MS::kSuccess, table.addResolvedEntry("b", "b.png", "/maps/b.png", "|wall", roles));
    EXPECT_EQ(MS::kSuccess, table.addResolvedEntry("a", "a.png", "", MStringArray()));
    EXPECT_EQ(MS::kInvalidParameter, table.addResolvedEntry("a", "other", "", MStringArray()));
    EXPECT_EQ("b.png|/maps/b.png||wall|colour bump", info(table, "b"));
    EXPECT_EQ("a.png|||", info(table, "a"));
    EXPECT_EQ("none", info(table, "c"));
    EXPECT_EQ(2u, table.length());
    EXPECT_EQ("a;b;", keys(table));
    MString key = "untouched", location, resolved;
    EXPECT_EQ(MS::kInvalidParameter, table.getEntry(2, key, location, resolved, roles));
    EXPECT_EQ("untouched", text(key));
}

TEST_F(ExternalContentTest, AFileIsLookedFor)
{
    const tvxhost::test::TemporaryFolder folder;
    folder.write("here.txt", "here");
    const std::string path = folder.path("here.txt");
    MExternalContentInfoTable table;
    EXPECT_EQ(MS::kSuccess, table.addUnresolvedEntry("there", path.c_str()));
    EXPECT_EQ(MS::kSuccess, table.addUnresolvedEntry("nowhere", "/no/such/file.txt"));
    EXPECT_EQ(path + "|" + path + "||", info(table, "there"));
    EXPECT_EQ("/no/such/file.txt|||", info(table, "nowhere"));
}

TEST_F(ExternalContentTest, LocationsAreFoundByKeyAndByPlace)
{
    MExternalContentLocationTable table;
    EXPECT_EQ(MS::kSuccess, table.addEntry("b", "/new/b"));
    EXPECT_EQ(MS::kSuccess, table.addEntry("a", "/new/a"));
    EXPECT_EQ(MS::kInvalidParameter, table.addEntry("a", "/other"));
    MString key, location;
    EXPECT_EQ(MS::kSuccess, table.getLocation("b", location));
    EXPECT_EQ("/new/b", text(location));
    EXPECT_EQ(MS::kSuccess, table.getEntry(0, key, location));
    EXPECT_EQ("a /new/a", text(key) + " " + text(location));
    EXPECT_EQ(MS::kInvalidParameter, table.getLocation("c", location));
    EXPECT_EQ(MS::kInvalidParameter, table.getEntry(2, key, location));
    EXPECT_EQ(2u, table.length());
}

TEST_F(ExternalContentTest, ABuiltInNodeTellsItsFileNames)
{
    const MObject texture = tvxAccess::handle(scene.createNode("file", "bricks").value);
    MFnDependencyNode node(texture, nullptr);
    MExternalContentInfoTable none;
    EXPECT_EQ(MS::kSuccess, node.getExternalContent(none));
    EXPECT_EQ("", keys(none));
    setText(texture, "fileTextureName", "maps/bricks.png");
    MExternalContentInfoTable table;
    EXPECT_EQ(MS::kSuccess, node.getExternalContent(table));
    EXPECT_EQ("fileTextureName;", keys(table));
    EXPECT_EQ("maps/bricks.png||bricks|", info(table, "fileTextureName"));
    EXPECT_EQ(MS::kInvalidParameter,
              node.addExternalContentForFileAttr(table, node.attribute("fileTextureName")));
}

TEST_F(ExternalContentTest, ANodeTakesItsFilesFromElsewhere)
{
    const MObject texture = tvxAccess::handle(scene.createNode("file", "bricks").value);
    MFnDependencyNode node(texture, nullptr);
    setText(texture, "fileTextureName", "maps/bricks.png");
    MExternalContentLocationTable table;
    table.addEntry("somethingElse", "/x");
    EXPECT_EQ(MS::kSuccess, node.setExternalContent(table));
    EXPECT_EQ("maps/bricks.png", textOf(texture, "fileTextureName"));
    EXPECT_EQ(MS::kInvalidParameter,
              node.setExternalContentForFileAttr(node.attribute("fileTextureName"), table));
    table.addEntry("fileTextureName", "/new/bricks.png");
    EXPECT_EQ(MS::kSuccess, node.setExternalContent(table));
    EXPECT_EQ("/new/bricks.png", textOf(texture, "fileTextureName"));
}

TEST_F(ExternalContentTest, APluginsNodeTellsWhatItsClassSays)
{
    EXPECT_EQ(MS::kSuccess, registerType("cacheReader", 0x80011, &Reader::create, &Reader::initialize));
    const MObject reader = tvxAccess::handle(scene.createNode("cacheReader", "reader1").value);
    MFnDependencyNode node(reader, nullptr);
    setText(reader, "cachePath", "crowd.cache");
    MExternalContentInfoTable table;
    EXPECT_EQ(MS::kSuccess, node.getExternalContent(table));
    EXPECT_EQ("cachePath;generated;", keys(table));
    EXPECT_EQ("crowd.cache||reader1|", info(table, "cachePath"));
    EXPECT_EQ("a.tmp|/caches/a.tmp||", info(table, "generated"));
    MExternalContentLocationTable elsewhere;
    elsewhere.addEntry("cachePath", "/caches/crowd.cache");
    EXPECT_EQ(MS::kSuccess, node.setExternalContent(elsewhere));
    EXPECT_EQ("/caches/crowd.cache", textOf(reader, "cachePath"));
}
