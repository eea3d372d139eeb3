// Shows a large text as a table: each line is a row, and blanks separate its cells. The first line
// becomes the column titles and the first word of each line its row title, so both stay in sight.
#pragma once

#include <string>

#include "toolkit/controls/control.h"

namespace trabeon {

class TextTable : public Control {
  public:
    explicit TextTable(Container& parent);

    /// The text as it was set.
    [[nodiscard]] std::string Text() const;
    /// Shows the text from its beginning. Its lines end in LF or CR LF.
    void SetText(const std::string& text);

    void SetBackColor(Colour colour);

    /// The selected part of the text, with lines that end in LF; Ctrl+C puts it on the clipboard.
    /// A row that is selected as a whole includes its title, and so does a column.
    [[nodiscard]] std::string SelectedText() const;

  private:
    class Cells;
    class View;
    View& Inner() const;
};

}  // namespace trabeon
