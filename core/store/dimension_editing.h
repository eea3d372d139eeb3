// How the sections of a member come into "BeamDim.txt".
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>

#include "core/outcome.h"
#include "core/store/rows.h"

namespace trabeon {

/// Sections in a row, the first and the last counting.
struct SectionRange {
    std::size_t first, last;
};

/// How many members a beam has, and how many sections each of them.
struct BeamExtent {
    std::size_t members, sections;
};

/// Adds a row for each section of the range, alike but for the section number: the first behind
/// `position` rows, the others one by one at the end. The outcome is that of a rewrite for each
/// row, so only the newest keeps the blanks around its fields; the file is written once.
///
/// With `order` the file is then put in order by member and section; rows of one section stay in
/// the order they had. A row whose member or section is no whole number within the extent is lost.
[[nodiscard]] Failure addDimensions(const std::filesystem::path& folder, std::size_t position,
                                    BeamDimensionRow row, SectionRange sections,
                                    std::optional<BeamExtent> order);

}  // namespace trabeon
