// A bar that shows the progress of a step, 0 to 100.
#pragma once

#include <chrono>

#include "toolkit/controls/control.h"

namespace trabeon {

class ProgressBar : public Control {
  public:
    explicit ProgressBar(Container& parent);

    [[nodiscard]] double Value() const;
    /// Limits the value to 0 to 100. The bar shows 0 and 100 at once, even while a handler runs. It
    /// shows values between them at most 30 times a second, so that painting takes little time.
    void SetValue(double value);

  private:
    void ShowValue();

    double value_ = 0;
    bool waiting_ = false;  // to be shown after the handlers have ended
    std::chrono::steady_clock::time_point shownAt_;
};

}  // namespace trabeon
