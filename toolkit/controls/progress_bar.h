// How far a step has come, 0 to 100.
#pragma once

#include <chrono>

#include "toolkit/controls/control.h"

namespace trabeon {

class ProgressBar : public Control {
  public:
    explicit ProgressBar(Container& parent);

    double Value() const;
    // Held within 0 and 100. The bar shows 0 and 100 before this returns, also while a handler
    // runs, and what is between at the screen's pace: a step a microsecond would spend it painting.
    void SetValue(double value);

  private:
    void ShowValue();

    double value_ = 0;
    bool waiting_ = false;  // to be shown when the handlers have come to their end
    std::chrono::steady_clock::time_point shownAt_;
};

}  // namespace trabeon
