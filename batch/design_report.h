// What `run` shows of a designed beam on a terminal.
#pragma once

#include <string>

#include "core/design/design.h"

namespace trabeon {

/// A line for each member: the greatest steel in its lower and in its upper face, with its place
/// and its bars; the links of the section that requires most; and what failed in any section.
[[nodiscard]] std::string designTable(const BeamDesign& design, std::size_t members);

/// One line for a beam with too many members to show.
[[nodiscard]] std::string designSummary(const BeamDesign& design);

/// A warning that names sections without dimensions; empty if all have some.
[[nodiscard]] std::string missingDimensionsWarning(const DesignData& data);

}  // namespace trabeon
