// Where outputs may go: a file that holds something else is never replaced.
#pragma once

#include <filesystem>

#include "core/outcome.h"

namespace trabeon {

/// Refuses a file for the document of a project: the project itself, by whatever path or link, and
/// whatever is there and is neither empty nor a document (.docx).
[[nodiscard]] Failure unfitDocumentFile(const std::filesystem::path& file,
                                        const std::filesystem::path& project);

/// Refuses a file for a project: whatever is there and is neither empty nor a project. A damaged
/// project that begins with "WARNNING!" counts as one.
[[nodiscard]] Failure unfitProjectFile(const std::filesystem::path& file);

/// The folder beside a project that takes its result files: named after the project without its
/// ending. Where that leaves the whole name, "." or "..", " results" follows the whole name:
/// "a/b.TB" gives "a/b", "b" gives "b results", "..TB" gives "..TB results".
[[nodiscard]] std::filesystem::path resultFolder(const std::filesystem::path& project);

}  // namespace trabeon
