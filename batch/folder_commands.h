// The commands that work in a folder of working files.
#pragma once

#include "batch/command_line.h"

namespace trabeon {

Exit analyseCommand(const CommandLine& line);
Exit designCommand(const CommandLine& line);
Exit tablesCommand(const CommandLine& line);
Exit unpackCommand(const CommandLine& line);
Exit packCommand(const CommandLine& line);

}  // namespace trabeon
