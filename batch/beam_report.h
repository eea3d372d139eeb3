// What `run` shows of an analysed beam on a terminal.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/analysis/analysis.h"
#include "core/store/project_file.h"

namespace trabeon {

/// The upward reaction of each joint, the first joint's at index 0: of each span the left one from
/// its shear, the right one from its moments, so that their sum can be held against the loads.
[[nodiscard]] std::vector<double> reactionsOf(const Analysis& analysis);

/// The sum of all loads, downward positive.
[[nodiscard]] double totalLoad(const Analysis& analysis);

/// The balance table ("TB.txt") in strips of at most `width` characters, a column for each member
/// end.
[[nodiscard]] std::string balanceTableStrips(std::string_view table, std::size_t width);

/// One line that holds the sum of the reactions against the sum of the loads.
[[nodiscard]] std::string reactionCheck(const Analysis& analysis);

/// End moments and maximum of each span, the reaction of each joint, and the check of the
/// reactions.
[[nodiscard]] std::string resultTables(const Analysis& analysis);

}  // namespace trabeon
