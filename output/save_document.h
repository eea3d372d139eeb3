// What becomes of a document that is done.
#pragma once

#include <filesystem>

#include "core/outcome.h"
#include "output/document.h"

namespace trabeon {

/// Writes the document as an Office Open XML file; if that fails the old file stays as it was.
[[nodiscard]] Status writeDocument(const Document& document, const std::filesystem::path& file);

/// Saves it under a name that is asked for, again if that fails, and opens it with the desktop's
/// program for it; where there is none the user is told where it is. Nothing is left of it if the
/// user draws back.
void saveAndOpen(const Document& document);

}  // namespace trabeon
