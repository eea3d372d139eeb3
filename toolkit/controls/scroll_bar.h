// A separate scroll bar.
#pragma once

#include <functional>

#include "toolkit/controls/control.h"

namespace trabeon {

enum class Direction { Horizontal, Vertical };

class ScrollBar : public Control {
  public:
    ScrollBar(Container& parent, Direction direction);

    /// The user or the code changed the value.
    std::function<void()> Change;

    void SetRange(int min, int max);
    void SetSteps(int smallChange, int largeChange);
    [[nodiscard]] int Value() const;
    /// Fires Change if the value differs.
    void SetValue(int value);
};

}  // namespace trabeon
