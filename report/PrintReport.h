// The report on paper.
#pragma once

#include <string>

namespace trabeon {

class RichTextBox;

struct PrintEnd {
    bool printed = false;      // false without a trouble: the user drew back
    std::string trouble = {};  // a sentence for the user
};

/// Prints the whole text. The margins are twips from the edge of the sheet.
[[nodiscard]] PrintEnd PrintReport(RichTextBox& RTB, int leftMargin, int topMargin, int rightMargin,
                                   int bottomMargin);

}  // namespace trabeon
