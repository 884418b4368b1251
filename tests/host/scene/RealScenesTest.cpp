// Scenes that real Maya wrote: read to their end, counted as an independent scanner counts them, and saved
// without loss. They are not part of this repository: TVX_SCENES_DIR names a folder of scenes beside a table
// contents.tsv (columns: file, statements, commands, node types, …).
#include "../support/savedText.h"
#include "../support/sceneTable.h"
#include "damage.h"

#include "scene/reader.h"
#include "scene/sceneText.h"
#include "scene/writer.h"

#include "engine/scene.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

using namespace tvxhost;
using Counts = std::map<std::string, std::size_t>;

struct SceneRow
{
    std::string file;
    std::size_t statements = 0;
    Counts commands;
    Counts nodes;
};

/// "camera:4 mesh:1"
Counts parseCounts(const std::string& text)
{
    Counts counts;
    std::istringstream words(text);
    for (std::string word; words >> word;) {
        const std::size_t colon = word.rfind(':');
        counts[word.substr(0, colon)] = std::stoul(word.substr(colon + 1));
    }
    return counts;
}

std::vector<SceneRow> readTable()
{
    std::vector<SceneRow> rows;
    for (const std::vector<std::string>& fields : test::tableRows("contents.tsv"))
        rows.push_back(
            {fields.at(0), std::stoul(fields.at(1)), parseCounts(fields.at(2)), parseCounts(fields.at(3))});
    return rows;
}

std::string differences(const Counts& actual, const Counts& expected)
{
    std::string text;
    Counts all = actual;
    all.insert(expected.begin(), expected.end());
    for (const auto& entry : all) {
        const std::string& name = entry.first;
        const auto count = [&](const Counts& counts) {
            const auto found = counts.find(name);
            return found == counts.end() ? std::size_t{0} : found->second;
        };
        if (count(actual) != count(expected))
            text += " " + name + ":" + std::to_string(count(actual)) + "/" + std::to_string(count(expected));
    }
    return text;
}

/// What the table meshes.tsv says of the meshes whose faces stand in the files: name without path, vertices,
/// edges, faces and border edges, by file.
using MeshCounts = std::multiset<std::string>;

std::string meshLine(std::string name, std::size_t vertices, std::size_t edges, std::size_t faces,
                     std::size_t borderEdges)
{
    name.erase(0, name.rfind('|') + 1);
    std::ostringstream line;
    line << name << ' ' << vertices << ' ' << edges << ' ' << faces << ' ' << borderEdges;
    return line.str();
}

std::map<std::string, MeshCounts> readMeshTable()
{
    std::map<std::string, MeshCounts> meshes;
    for (const std::vector<std::string>& columns : test::tableRows("meshes.tsv")) {
        const auto number = [&](std::size_t i) { return std::stoul(columns.at(i)); };
        // A mesh that only its history makes has no faces in the file.
        if (number(6) > 0)
            meshes[columns[0]].insert(meshLine(columns[1], number(4), number(5), number(6), number(7)));
    }
    return meshes;
}

class RealScenes : public testing::Test
{
protected:
    void SetUp() override
    {
        m_rows = readTable();
        ASSERT_FALSE(m_rows.empty()) << "no contents.tsv in " << m_folder;
    }

    const std::string m_folder = TVX_SCENES_DIR;
    std::vector<SceneRow> m_rows;
};

TEST_F(RealScenes, agreeWithTheTableInStatementsCommandsAndNodesByType)
{
    for (const SceneRow& row : m_rows) {
        engine::Scene scene;
        const scene::ReadResult result = scene::openScene(scene, m_folder + "/" + row.file);
        EXPECT_TRUE(result.outcome) << row.file << ": " << result.outcome.text;
        EXPECT_EQ(result.summary.statements, row.statements) << row.file;
        EXPECT_EQ(differences(result.summary.commands, row.commands), "") << row.file;
        EXPECT_EQ(differences(result.summary.nodes, row.nodes), "") << row.file;
        EXPECT_EQ(result.summary.errors, 0u) << row.file;
    }
}

TEST_F(RealScenes, areTheSameTextWhenSavedReadAndSavedAgain)
{
    for (const SceneRow& row : m_rows) {
        engine::Scene scene;
        ASSERT_TRUE(scene::openScene(scene, m_folder + "/" + row.file).outcome) << row.file;
        const std::string first = test::savedText(scene);
        ASSERT_TRUE(scene::openSceneText(scene, first, "test.ma").outcome) << row.file;
        const std::string second = test::savedText(scene);
        EXPECT_TRUE(first == second) << row.file;
    }
}

TEST_F(RealScenes, haveMeshesAsAnIndependentScannerCountsThem)
{
    const std::map<std::string, MeshCounts> table = readMeshTable();
    ASSERT_FALSE(table.empty()) << "no meshes.tsv in " << m_folder;
    for (const auto& [file, expected] : table) {
        engine::Scene scene;
        ASSERT_TRUE(scene::openScene(scene, m_folder + "/" + file).outcome) << file;
        MeshCounts actual;
        for (const scene::MeshSummary& mesh : scene::summarizeMeshes(scene))
            actual.insert(meshLine(mesh.name, mesh.vertices, mesh.edges, mesh.faces, mesh.borderEdges));
        for (const std::string& line : expected) {
            const auto found = actual.find(line);
            EXPECT_NE(found, actual.end()) << file << ": " << line;
            if (found != actual.end())
                actual.erase(found);
        }
    }
}

/// Ten of the smaller scenes, each of other contents.
constexpr const char* kDamaged[] = {
    "Autodesk+maya-usd/test/lib/usd/translators/UsdExportSkeletonTest/"
    "UsdExportSkeletonBindPoseMissingJoints.ma",
    "Autodesk+maya-usd/test/lib/mayaUsd/render/pxrUsdMayaGL/ProxyShapeRendererSceneMessagesTest/"
    "EmptyScene.ma",
    "Autodesk+maya-usd/plugin/pxr/maya/lib/pxrUsdMayaGL/testenv/RefAssemblyDrawRepresentationsTest/"
    "RefAssemblyDrawRepresentationsTest.ma",
    "Autodesk+maya-usd/test/lib/usd/translators/UsdExportUVSetMappingsTest/multi_uv_simple.ma",
    "Autodesk+maya-usd/plugin/pxr/maya/lib/pxrUsdMayaGL/testenv/InstancerDrawTest/InstancerDrawTest.ma",
    "Autodesk+maya-usd/test/lib/usd/translators/UsdExportSkeletonTest/"
    "UsdExportSkeletonWithIdentityBindPose.ma",
    "Autodesk+maya-usd/test/lib/usd/translators/UsdExportStrokeTest/UsdExportStrokeTest.ma",
    "ImageEngine+cortex/test/IECore/data/pdcFiles/scene.ma",
    "Autodesk+maya-usd/test/testSamples/parentCmd/simpleHierarchy.ma",
    "Autodesk+maya-usd/test/lib/usd/translators/UsdExportShadingInstancedTest/NestedInstancedShading.ma",
};

class DamagedScene : public testing::TestWithParam<const char*>
{
protected:
    void SetUp() override
    {
        const auto read = scene::readFile(std::string(TVX_SCENES_DIR) + "/" + GetParam());
        ASSERT_TRUE(read) << read.outcome.text;
        m_text = read.value;
    }

    engine::Scene m_scene;
    std::string m_text;
};

TEST_P(DamagedScene, isToldToBeCutOffAtAnyPlace)
{
    scene::damage::expectTruncationsAreTold(m_scene, m_text, 1);
}

TEST_P(DamagedScene, takesNoHarmFromChangedBytes)
{
    scene::damage::expectChangedBytesAreHarmless(m_scene, m_text, 1);
}

INSTANTIATE_TEST_SUITE_P(RealScenes, DamagedScene, testing::ValuesIn(kDamaged));

} // namespace
