// The commands that work on a scene, family by family.
#pragma once

namespace tvxhost::mel {

class CommandTable;

void registerNodeCommands(CommandTable& table);
void registerObjectNameCommands(CommandTable& table);
void registerDeleteCommands(CommandTable& table);
void registerHistoryCommands(CommandTable& table);
void registerListCommands(CommandTable& table);
void registerLocatorCommands(CommandTable& table);
void registerScriptJobCommands(CommandTable& table);
void registerScriptNodeCommands(CommandTable& table);
void registerShadingCommands(CommandTable& table);
void registerSelectionCommands(CommandTable& table);
void registerDagCommands(CommandTable& table);
void registerDagEditCommands(CommandTable& table);
void registerAttributeValueCommands(CommandTable& table);
void registerAttributeCommands(CommandTable& table);
void registerAttributeNameCommands(CommandTable& table);
void registerAttributeQueryCommands(CommandTable& table);
void registerCameraCommands(CommandTable& table);
void registerClassificationCommands(CommandTable& table);
void registerComponentCommands(CommandTable& table);
void registerConditionCommands(CommandTable& table);
void registerConnectionCommands(CommandTable& table);
void registerSetCommands(CommandTable& table);
void registerListSetsCommands(CommandTable& table);
void registerElementCommands(CommandTable& table);
void registerPointCommands(CommandTable& table);
void registerReorderCommands(CommandTable& table);
void registerToggleCommands(CommandTable& table);
void registerVisibilityCommands(CommandTable& table);
void registerTransformCommands(CommandTable& table);
void registerMakeIdentityCommands(CommandTable& table);
void registerXformCommands(CommandTable& table);
void registerParticleCommands(CommandTable& table);
void registerPolyEvaluateCommands(CommandTable& table);
void registerPolygonCommands(CommandTable& table);
void registerTimeCommands(CommandTable& table);
void registerKeyframeCommands(CommandTable& table);
void registerPreferenceCommands(CommandTable& table);
void registerWindowPreferenceCommands(CommandTable& table);
void registerFileCommands(CommandTable& table);
void registerReferenceCommands(CommandTable& table);
void registerWorkspaceCommands(CommandTable& table);
void registerDialogCommands(CommandTable& table);
void registerPluginCommands(CommandTable& table);
void registerInterfaceCommands(CommandTable& table);
void registerInterfaceTreeCommands(CommandTable& table);
void registerNamespaceCommands(CommandTable& table);
void registerUndoCommands(CommandTable& table);

/// All of them. The interpreter that runs them needs a SceneSession.
void registerSceneCommands(CommandTable& table);

} // namespace tvxhost::mel
