// The files that the program keeps in a folder of working files.
#pragma once

#include <filesystem>

#include "core/outcome.h"

namespace trabeon {

/// Whether a path leads to a working file of the folder, a scratch file, or a record that the
/// program keeps there: by its name in capital or small letters, another spelling of the path, or a
/// link. The file need not be there yet.
[[nodiscard]] bool isOwnFile(const std::filesystem::path& file,
                             const std::filesystem::path& folder);

/// Refuses such a file as a project file: the program would write its rows over the project, or the
/// project over its rows.
[[nodiscard]] Failure unfitForProject(const std::filesystem::path& file,
                                      const std::filesystem::path& folder);

}  // namespace trabeon
