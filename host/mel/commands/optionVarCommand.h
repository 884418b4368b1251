// optionVar, which has a file of its own.
#pragma once

#include "../commandTable.h"

namespace tvxhost::mel {

CommandSpec optionVarCommand();

} // namespace tvxhost::mel
