// Shows one still picture, as large as fits.
#pragma once

#include <string>

#include "toolkit/controls/control.h"

namespace trabeon {

class WebBrowser : public Control {
  public:
    explicit WebBrowser(Container& parent);

    // Shows the picture of that path, nothing if it cannot be read. A click into it takes the
    // focus (GotFocus); the Tab key passes it by.
    void Navigate(const std::string& path);
    // False while there is no picture to show.
    bool HasPicture() const;
};

}  // namespace trabeon
