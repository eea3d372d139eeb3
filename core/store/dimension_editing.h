// Adds the sections of a member to "BeamDim.txt".
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>

#include "core/outcome.h"
#include "core/store/rows.h"

namespace trabeon {

/// Consecutive sections, with the first and the last.
struct SectionRange {
    std::size_t first, last;
};

/// How many members a beam has, and how many sections each of them.
struct BeamExtent {
    std::size_t members, sections;
};

/// Adds a row for each section of the range; the rows differ only in their section number. The
/// first row comes after `position` rows, the others at the end. The file is written once, with the
/// result of one rewrite for each row: only the newest row keeps the blanks around its fields.
///
/// With `order` the file is then sorted by member and section; rows of one section keep their
/// order. A row whose member or section is not a whole number within the extent is lost.
[[nodiscard]] Status addDimensions(const std::filesystem::path& folder, std::size_t position,
                                   BeamDimensionRow row, SectionRange sections,
                                   std::optional<BeamExtent> order);

}  // namespace trabeon
