// Writes a document as an Office Open XML file (.docx).
#pragma once

#include <string>

#include "core/outcome.h"
#include "output/document.h"

namespace trabeon {

[[nodiscard]] Outcome<std::string> docxBytes(const Document& document);

}  // namespace trabeon
