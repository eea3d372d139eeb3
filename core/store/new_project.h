// The working files of an empty project.
#pragma once

#include <filesystem>

#include "core/outcome.h"

namespace trabeon {

/// Creates the seven project files of the folder, empty: all of them or none. Removes the title and
/// the record. Refuses if a file cannot be emptied.
[[nodiscard]] Status CreateNFile(const std::filesystem::path& folder);

}  // namespace trabeon
