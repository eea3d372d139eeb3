// The report on paper.
#pragma once

namespace trabeon {

class RichTextBox;

enum class Printed { yes, userDrewBack, failed };

/// Prints the whole text. The margins are twips from the edge of the sheet.
[[nodiscard]] Printed PrintReport(RichTextBox& RTB, int leftMargin, int topMargin, int rightMargin,
                                  int bottomMargin);

}  // namespace trabeon
