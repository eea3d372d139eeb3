// The commands of trabeon-batch.
#pragma once

#include "batch/command_line.h"

namespace trabeon {

/// Exit codes: 0 done, 1 refused, 2 wrong usage.
enum class Exit { done = 0, refused = 1, usage = 2 };

/// Carries a command out; reasons go to standard error, one a line.
[[nodiscard]] Exit carryOut(const CommandLine& line);

/// One line on standard error.
void complain(std::string_view sentence);

}  // namespace trabeon
