// The commands of trabeon-batch.
#pragma once

#include "batch/command_line.h"

namespace trabeon {

/// All commands: each name stands here once, with its form and its function.
[[nodiscard]] const std::vector<CommandForm>& commands();

/// Carries a command out; reasons go to standard error, one a line.
[[nodiscard]] Exit carryOut(const CommandLine& line);

/// One line on standard error.
void complain(std::string_view sentence);

}  // namespace trabeon
