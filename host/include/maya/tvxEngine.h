// Forward declarations of what the API's classes hold in their private storage. No plug-in includes this.
#pragma once

namespace tvxhost {

/// The scene itself. The API's objects hold pointers to these and nothing of their insides.
namespace engine {
class Object;
class Node;
class Plug;
class DagPath;
class SelectionList;
} // namespace engine

/// What an API class keeps for itself, where that is more than one engine object. Defined beside its members.
namespace api {
struct Arguments;      ///< MArgList
struct CommandState;   ///< MPxCommand
struct DagIteration;   ///< MItDag
struct DataBlock;      ///< MDataBlock
struct DGContext;      ///< MDGContext
struct MeshIteration;  ///< MItMeshEdge, MItMeshVertex, MItMeshPolygon
struct Modifier;       ///< MDGModifier, MDagModifier
struct NodeIteration;  ///< MItDependencyNodes
struct CommandValue;   ///< MCommandResult
struct SyntaxTable;    ///< MSyntax
struct Transformation; ///< MTransformationMatrix
struct View;           ///< M3dView

struct ContentTable;       ///< MExternalContentInfoTable, MExternalContentLocationTable
struct FileObject;         ///< MFileObject
struct GraphIteration;     ///< MItDependencyGraph
struct ParsedArguments;    ///< MArgParser, MArgDatabase
struct SelectionIteration; ///< MItSelectionList
struct Tesselation;        ///< MTesselationParams
} // namespace api

} // namespace tvxhost
