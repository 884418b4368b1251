// The commands that work on a scene; see sceneCommands.h.
#include "sceneCommands.h"

#include <initializer_list>

namespace tvxhost::mel {

void registerSceneCommands(CommandTable& table)
{
    for (const auto& registerFamily : {registerNodeCommands,
                                       registerListCommands,
                                       registerSelectionCommands,
                                       registerDagCommands,
                                       registerDagEditCommands,
                                       registerAttributeValueCommands,
                                       registerAttributeCommands,
                                       registerClassificationCommands,
                                       registerConnectionCommands,
                                       registerSetCommands,
                                       registerTransformCommands,
                                       registerXformCommands,
                                       registerParticleCommands,
                                       registerPolygonCommands,
                                       registerTimeCommands,
                                       registerPreferenceCommands,
                                       registerWindowPreferenceCommands,
                                       registerFileCommands,
                                       registerWorkspaceCommands,
                                       registerDialogCommands,
                                       registerPluginCommands,
                                       registerInterfaceCommands,
                                       registerNamespaceCommands,
                                       registerUndoCommands})
        registerFamily(table);
}

} // namespace tvxhost::mel
