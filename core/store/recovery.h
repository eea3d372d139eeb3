// What a run that ended without Exit left in the working folder, saved before it is emptied.
#pragma once

#include <filesystem>
#include <string_view>

#include "core/outcome.h"

namespace trabeon {

inline constexpr std::string_view recoveredProject = "Recovered.TB";

/// Packs the rows and the title of a run that did not come to Exit into "Recovered.TB" beside them.
/// Nothing is done if there was an Exit, which leaves none of the files that it deletes, or if
/// everything that would be packed is empty or is in a "Recovered.TB" or "Recovered N.TB" already.
/// Lines that are no rows are packed as they are, so that they can be mended by hand. An older
/// "Recovered.TB" is kept under the first free name of "Recovered 2.TB", "Recovered 3.TB" ...
///
/// Returns whether rows were packed now. Refuses files that cannot be read or written: they must
/// not be emptied then.
[[nodiscard]] Outcome<bool> recoverRows(const std::filesystem::path& folder);

}  // namespace trabeon
