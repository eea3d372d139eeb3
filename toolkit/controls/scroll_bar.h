// A scroll bar that stands on its own.
#pragma once

#include <functional>

#include "toolkit/controls/control.h"

namespace trabeon {

enum class Direction { Horizontal, Vertical };

class ScrollBar : public Control {
  public:
    ScrollBar(Container& parent, Direction direction);

    // The value became another one, by the user or by code.
    std::function<void()> Change;

    void SetRange(int min, int max);
    void SetSteps(int smallChange, int largeChange);
    int Value() const;
    void SetValue(int value);  // fires Change if the value is another one
};

}  // namespace trabeon
