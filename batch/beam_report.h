// What `run` shows of an analysed beam on a terminal.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/analysis/analysis.h"
#include "core/store/project_file.h"

namespace trabeon {

/// The upward reaction of each joint, the first joint at index 0. In each span the left reaction
/// follows from the shear and the right one from the moments, so that their sum is a check on the
/// loads.
[[nodiscard]] std::vector<double> reactionsOf(const Analysis& analysis);

/// The sum of all loads, downward positive.
[[nodiscard]] double totalLoad(const Analysis& analysis);

/// The balance table ("TB.txt") in strips of at most `width` characters, with a column for each
/// member end.
[[nodiscard]] std::string balanceTableStrips(std::string_view table, std::size_t width);

/// One line that compares the sum of the reactions with the sum of the loads.
[[nodiscard]] std::string reactionCheck(const Analysis& analysis);

/// End moments and maximum of each span, the reaction of each joint, and the check of the
/// reactions.
[[nodiscard]] std::string resultTables(const Analysis& analysis);

}  // namespace trabeon
