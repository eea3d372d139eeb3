// Prints the report.
#pragma once

#include <string>

namespace trabeon {

class RichTextBox;

struct PrintEnd {
    bool printed = false;      // false without a trouble: the user drew back
    std::string trouble = {};  // a sentence for the user
};

/// Prints the whole report. The margins are in twips from the edge of the sheet.
[[nodiscard]] PrintEnd PrintReport(RichTextBox& RTB, int leftMargin, int topMargin, int rightMargin,
                                   int bottomMargin);

}  // namespace trabeon
