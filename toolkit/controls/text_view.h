// Shows a large text to read, select and copy, in a font of fixed width. Only what is in sight is
// painted, so lines may be tens of thousands of characters long.
#pragma once

#include <string>

#include "toolkit/controls/control.h"

namespace trabeon {

class TextView : public Control {
  public:
    explicit TextView(Container& parent);

    std::string Text() const;  // as it was set
    // Lines end in LF or CR LF. Shows the text from its beginning.
    void SetText(const std::string& text);

    void SetBackColor(Colour colour);

    // The selection goes to the clipboard with Ctrl+C; Ctrl+A selects all, the mouse a part.
    std::string SelectedText() const;

  private:
    class View;
    View& Inner() const;
};

}  // namespace trabeon
