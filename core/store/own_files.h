// The files that the program keeps in a folder of working files.
#pragma once

#include <filesystem>

#include "core/outcome.h"

namespace trabeon {

/// Whether a path leads to a working file of the folder, a scratch file, or a file that the program
/// keeps there for itself. Capital and small letters, other spellings of the path and links make no
/// difference. The file need not exist.
[[nodiscard]] bool isOwnFile(const std::filesystem::path& file,
                             const std::filesystem::path& folder);

/// Refuses such a file as a project file: the rows would overwrite the project, or the project the
/// rows.
[[nodiscard]] Objection checkProjectName(const std::filesystem::path& file,
                                         const std::filesystem::path& folder);

}  // namespace trabeon
