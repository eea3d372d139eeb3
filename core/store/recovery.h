// Saves the rows that a run without Exit left in the working folder, before the folder is emptied.
#pragma once

#include <filesystem>
#include <string_view>

#include "core/outcome.h"

namespace trabeon {

inline constexpr std::string_view recoveredProject = "Recovered.TB";

/// Packs the rows and the title of a run that ended without Exit into "Recovered.TB" in the same
/// folder. Does nothing after an Exit, which deletes the files. Does nothing if the rows are empty,
/// or are in a "Recovered.TB" or "Recovered N.TB" already. Lines that are not rows are packed as
/// they are, so that the user can correct them. An older "Recovered.TB" gets the first free name of
/// "Recovered 2.TB", "Recovered 3.TB" ...
///
/// Returns whether it packed rows. Refuses files that cannot be read or written; the caller must
/// not empty them then.
[[nodiscard]] Outcome<bool> recoverRows(const std::filesystem::path& folder);

}  // namespace trabeon
