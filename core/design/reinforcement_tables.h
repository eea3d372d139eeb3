// Two reference tables for the desk. They depend on nothing, and the design does not use them.
#pragma once

#include <filesystem>
#include <string>

#include "core/outcome.h"

namespace trabeon {

/// The text of "AreaofS.txt": a line for each bar size of 8 to 40 mm, the size and the area in
/// whole mm2, cut, of 1 to 10 bars.
[[nodiscard]] std::string steelAreas();

/// The text of "Asvosv.txt": a line for each spacing of 50 to 400 mm, the spacing and Asv / sv in
/// mm2/mm, in the mask "0.000", of links with two legs of 6 to 16 mm.
[[nodiscard]] std::string linkResistances();

/// Each writes its file into a working folder anew.
[[nodiscard]] Failure writeSteelAreas(const std::filesystem::path& folder);
[[nodiscard]] Failure writeLinkResistances(const std::filesystem::path& folder);

}  // namespace trabeon
