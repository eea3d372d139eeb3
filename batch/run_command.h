// The command that analyses and designs projects and shows the results.
#pragma once

#include "batch/command_line.h"

namespace trabeon {

Exit runCommand(const CommandLine& line);

}  // namespace trabeon
