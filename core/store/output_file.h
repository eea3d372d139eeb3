// Where outputs may go. A file with other content is never replaced.
#pragma once

#include <filesystem>
#include <span>
#include <string>

#include "core/outcome.h"

namespace trabeon {

/// Whether the document of a project may be written to a file. Refuses the project itself, also by
/// another path or a link. Refuses an existing file that is neither empty nor a document (.docx).
[[nodiscard]] Objection checkDocumentFile(const std::filesystem::path& file,
                                          const std::filesystem::path& project);

/// Whether a project may be written to a file. Refuses an existing file that is neither empty nor a
/// project. A damaged project that begins with "WARNNING!" counts as a project.
[[nodiscard]] Objection checkProjectFile(const std::filesystem::path& file);

/// Whether a table of results may be written to a file. Refuses a file with the name of a working
/// file, and an existing file that is neither empty nor a table. A table begins with one of
/// `starts`.
[[nodiscard]] Objection checkTableFile(const std::filesystem::path& file,
                                       std::span<const std::string> starts);

/// The folder for the result files of a project. It is next to the project and has its name without
/// the ending: "a/b.TB" gives "a/b". Where that is the whole name, "." or "..", " results" is added
/// to the whole name: "b" gives "b results", "..TB" gives "..TB results".
[[nodiscard]] std::filesystem::path resultFolder(const std::filesystem::path& project);

}  // namespace trabeon
