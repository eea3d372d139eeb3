// A text of lines and pictures as a rich text file, which word processors open. Toolkit inside.
#pragma once

#include <string>

#include "toolkit/outside/paper.h"

class QTextDocument;

namespace trabeon {

// Pictures stand in it as PNG with all their dots, at the size they have on paper of this kind with
// this margin, in twips, on all four sides.
std::string RichTextOf(const QTextDocument& text, const Paper& paper, int margin);

}  // namespace trabeon
