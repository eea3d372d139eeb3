// Saves a finished document and opens it.
#pragma once

#include <filesystem>

#include "core/outcome.h"
#include "output/document.h"

namespace trabeon {

/// Writes the document as an Office Open XML file. After a failure the old file is unchanged.
[[nodiscard]] Status writeDocument(const Document& document, const std::filesystem::path& file);

/// Asks for a name, saves the document and opens it with the desktop's program for it. Asks again
/// after a failure. Without such a program, a message names the saved file. Saves nothing if the
/// user cancels.
void saveAndOpen(const Document& document);

}  // namespace trabeon
