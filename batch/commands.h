// The commands of trabeon-batch.
#pragma once

#include "batch/command_line.h"

namespace trabeon {

/// All commands, each with its form and its function.
[[nodiscard]] const std::vector<CommandForm>& commands();

/// Carries a command out. Reasons go to standard error, one on each line.
[[nodiscard]] Exit execute(const CommandLine& line);

}  // namespace trabeon
