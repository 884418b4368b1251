// SceneReader: reads the statements of one scene file into a scene.
#pragma once

#include "nodeSet.h"
#include "pendingCompounds.h"
#include "reader.h"
#include "references.h"

#include "engine/scene.h"
#include "mel/parser.h"

#include <string>
#include <string_view>
#include <unordered_set>

namespace tvxhost::scene {

/// One statement as the handlers see it.
struct SceneStatement
{
    std::string_view name;
    const mel::ArgumentList& arguments;
    std::string_view source; ///< as it stands in the file, semicolon included
    int line = 0;
};

/// Reads a text statement by statement. Lives for one file.
class SceneReader
{
public:
    /// `reference`: what is read belongs to it and not to the scene; `states` are those of the whole scene.
    /// Null for the scene's own file.
    SceneReader(engine::Scene& scene, const ReadOptions& options, std::string file,
                engine::Reference* reference = nullptr, ReferenceStates* states = nullptr);

    /// Reads all; the summary then tells what there was.
    void read(std::string_view text);
    const SceneSummary& summary() const { return m_summary; }

private:
    using Handler = void (SceneReader::*)(const SceneStatement&);
    struct HandlerRow
    {
        std::string_view name;
        Handler handler;
    };
    static const HandlerRow kHandlers[];
    static Handler handlerOf(std::string_view name);

    /// What the relative statements that follow belong to.
    struct Section
    {
        engine::Node* node = nullptr;  ///< null: no node, or one that could not be made
        bool isUnknown = false;        ///< a node of an unknown type, all of whose lines are kept
        bool isMissingDefault = false; ///< a default node that this host lacks, its lines kept
    };

    // The flow, in sceneReader.cpp
    bool nextStatement(mel::StatementReader& reader);
    void readStatement(mel::StatementReader& reader);
    void runOther(mel::StatementReader& reader);
    void dispatch(const SceneStatement& statement);
    void finish();

    // Nodes, in readNodes.cpp
    void createNode(const SceneStatement& statement);
    void rename(const SceneStatement& statement);
    void select(const SceneStatement& statement);
    void lockNode(const SceneStatement& statement);
    void parent(const SceneStatement& statement);
    engine::Node* existingNode(const std::string& type, const std::string& name, bool isShared);
    engine::DagNode* parentNamed(const std::string& name, int line);
    engine::DagNode* turnIntoTransform(engine::Node& node);

    // Attributes, in readAttributes.cpp
    void addAttr(const SceneStatement& statement);
    void setAttr(const SceneStatement& statement);
    bool keepForSection(const SceneStatement& statement);

    // Connections and what is kept, in readConnections.cpp
    void connectAttr(const SceneStatement& statement);
    void disconnectAttr(const SceneStatement& statement);
    void relationship(const SceneStatement& statement);
    void keepStatement(const SceneStatement& statement);

    // The file's frame, in readHeader.cpp
    void requires_(const SceneStatement& statement);
    void currentUnit(const SceneStatement& statement);
    void fileInfo(const SceneStatement& statement);
    void file(const SceneStatement& statement);
    std::string absoluteName(const std::string& name) const;
    void loadReferences();
    void loadReference(engine::Reference& reference, bool isWanted);
    ReferenceDepth referenceDepth() const;

    void error(const std::string& text, int line);
    void warning(const std::string& text, int line);
    engine::ScriptPlace place(int line) const { return {m_file, line}; }
    void keep(std::vector<std::string>& lines, const SceneStatement& statement);

    engine::Scene& m_scene;
    const ReadOptions& m_options;
    std::string m_file;
    engine::Reference* m_reference; ///< what is read belongs to; null: to the scene
    ReferenceStates m_ownStates;
    ReferenceStates& m_states;
    std::vector<engine::Reference*> m_references; ///< that this file makes
    SceneSummary m_summary;
    Section m_section;
    PendingCompounds m_compounds;
    int m_lastDeclaration = 0; ///< the line of the last addAttr
    std::size_t m_textSize = 0;
    bool m_isCutOff = false; ///< the end of the file came within a statement, and that has been told
    mel::CommandSpec m_addAttr;
    NodeSet m_created;                           ///< by this file, or described in it
    std::unordered_set<std::string> m_toldTypes; ///< unknown types that were warned of
    std::unordered_set<std::string> m_triedPlugins;
};

/// The text of a statement with LF line ends and no blanks around it.
std::string keptText(std::string_view source);

} // namespace tvxhost::scene
