// The command that gives results to other programs as a table.
#pragma once

#include "batch/command_line.h"

namespace trabeon {

Exit exportCommand(const CommandLine& line);

}  // namespace trabeon
