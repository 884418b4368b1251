// The commands that work on a scene; see sceneCommands.h.
#include "sceneCommands.h"

#include <initializer_list>

namespace tvxhost::mel {

void registerSceneCommands(CommandTable& table)
{
    for (const auto& registerFamily : {registerNodeCommands,
                                       registerObjectNameCommands,
                                       registerDeleteCommands,
                                       registerHistoryCommands,
                                       registerListCommands,
                                       registerLocatorCommands,
                                       registerScriptJobCommands,
                                       registerScriptNodeCommands,
                                       registerShadingCommands,
                                       registerSelectionCommands,
                                       registerDagCommands,
                                       registerDagEditCommands,
                                       registerAttributeValueCommands,
                                       registerAttributeCommands,
                                       registerAttributeNameCommands,
                                       registerAttributeQueryCommands,
                                       registerCameraCommands,
                                       registerClassificationCommands,
                                       registerComponentCommands,
                                       registerConditionCommands,
                                       registerConnectionCommands,
                                       registerSetCommands,
                                       registerListSetsCommands,
                                       registerElementCommands,
                                       registerPointCommands,
                                       registerReorderCommands,
                                       registerToggleCommands,
                                       registerVisibilityCommands,
                                       registerTransformCommands,
                                       registerMakeIdentityCommands,
                                       registerXformCommands,
                                       registerParticleCommands,
                                       registerPolyEvaluateCommands,
                                       registerPolygonCommands,
                                       registerTimeCommands,
                                       registerKeyframeCommands,
                                       registerPreferenceCommands,
                                       registerWindowPreferenceCommands,
                                       registerFileCommands,
                                       registerReferenceCommands,
                                       registerWorkspaceCommands,
                                       registerDialogCommands,
                                       registerPluginCommands,
                                       registerInterfaceCommands,
                                       registerInterfaceTreeCommands,
                                       registerNamespaceCommands,
                                       registerUndoCommands})
        registerFamily(table);
}

} // namespace tvxhost::mel
