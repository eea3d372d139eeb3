// Two reference tables for the user. The design does not use them.
#pragma once

#include <filesystem>
#include <string>

#include "core/outcome.h"

namespace trabeon {

/// The text of "AreaofS.txt": a line for each bar size from 8 to 40 mm, with the size and the areas
/// of 1 to 10 bars in mm2, cut to whole numbers.
[[nodiscard]] std::string steelAreas();

/// The text of "Asvosv.txt": a line for each spacing from 50 to 400 mm, with the spacing and the
/// Asv / sv in mm2/mm, in the mask "0.000", of links with two legs of 6 to 16 mm.
[[nodiscard]] std::string linkResistances();

/// Each replaces its file in a working folder.
[[nodiscard]] Status writeSteelAreas(const std::filesystem::path& folder);
[[nodiscard]] Status writeLinkResistances(const std::filesystem::path& folder);

}  // namespace trabeon
