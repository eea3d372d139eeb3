// What `run` shows of an analysed beam on a terminal.
#pragma once

#include <string>
#include <string_view>

#include "core/analysis/analysis.h"
#include "core/store/project_file.h"

namespace trabeon {

/// The balance table ("TB.txt") in strips of at most `width` characters, with a column for each
/// member end.
[[nodiscard]] std::string balanceTableStrips(std::string_view table, std::size_t width);

/// End moments and maximum of each span; its exact extremes and its greatest deflection; the
/// reaction of each joint, and the sum of the reactions against the sum of the loads. A beam
/// without a response has a sentence in place of all but the first.
[[nodiscard]] std::string resultTables(const Analysis& analysis);

}  // namespace trabeon
