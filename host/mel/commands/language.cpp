// All commands that need no scene.
#include "language.h"

#include "../interpreter.h"

namespace tvxhost::mel {

void registerLanguageCommands(CommandTable& table)
{
    addArrayCommands(table);
    addEvaluationCommands(table);
    addFileCommands(table);
    addFileHandleCommands(table);
    addMathCommands(table);
    addMessageCommands(table);
    addNameCommands(table);
    addRandomCommands(table);
    addStringCommands(table);
    addSystemCommands(table);
    addVectorCommands(table);
}

} // namespace tvxhost::mel
