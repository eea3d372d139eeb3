// The report on paper.
#pragma once

#include "core/outcome.h"

namespace trabeon {

class RichTextBox;

enum class PrintEnd { printed, cancelled };

/// Prints the whole text. The margins are twips from the edge of the sheet. Refuses if the printer
/// does not take it, or if the text can be laid out only in part; that part is printed then.
[[nodiscard]] Outcome<PrintEnd> PrintReport(RichTextBox& RTB, int leftMargin, int topMargin,
                                            int rightMargin, int bottomMargin);

}  // namespace trabeon
