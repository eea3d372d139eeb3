// One of several choices on a form or a frame. Only one of them is chosen at a time.
#pragma once

#include <functional>
#include <string>

#include "toolkit/controls/control.h"

namespace trabeon {

class OptionButton : public Control {
  public:
    OptionButton(Container& parent, const std::string& caption, bool chosen = false);

    /// The user or the code chose this option.
    std::function<void()> Click;

    [[nodiscard]] bool Value() const;
    /// Fires Click if another option was chosen before.
    void Choose();
};

}  // namespace trabeon
