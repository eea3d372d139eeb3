// A text of lines and pictures as a rich text file, for word processors. Only for the toolkit's own
// sources.
#pragma once

#include <string>

#include "toolkit/outside/paper.h"

class QTextDocument;

namespace trabeon {

/// The content of the file. `margin` is in twips, on all four sides of the paper. The pictures are
/// PNG files with all their dots, and have the size that they have on this paper.
[[nodiscard]] std::string RichTextOf(const QTextDocument& text, const Paper& paper, int margin);

}  // namespace trabeon
