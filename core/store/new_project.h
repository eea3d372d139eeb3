// The working files of a project that has nothing in it yet.
#pragma once

#include <filesystem>

#include "core/outcome.h"

namespace trabeon {

/// Makes the seven project files of the folder exist and be empty, all of them or none, and drops
/// the title and the record that belonged to them. Refuses if one of them cannot be emptied.
[[nodiscard]] Failure CreateNFile(const std::filesystem::path& folder);

}  // namespace trabeon
