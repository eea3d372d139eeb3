// Prints the report.
#pragma once

#include "core/outcome.h"

namespace trabeon {

class RichTextBox;

enum class PrintEnd { printed, cancelled };

/// Prints the report. The margins are in twips from the edge of the sheet. Refuses if the print
/// fails, or if only a part of the text could be laid out. This part is then printed.
[[nodiscard]] Outcome<PrintEnd> PrintReport(RichTextBox& RTB, int leftMargin, int topMargin,
                                            int rightMargin, int bottomMargin);

}  // namespace trabeon
