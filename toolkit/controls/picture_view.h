// Shows one still picture, as large as fits. A click into it takes the focus; the Tab key does not
// stop here.
#pragma once

#include <string>

#include "toolkit/controls/control.h"

namespace trabeon {

class PictureView : public Control {
  public:
    explicit PictureView(Container& parent);

    /// Shows the picture file with this path, or nothing if it cannot be read.
    void Navigate(const std::string& path);
    [[nodiscard]] bool HasPicture() const;
};

}  // namespace trabeon
