// How far a step has come, 0 to 100.
#pragma once

#include "toolkit/control.h"

namespace trabeon {

class ProgressBar : public Control {
  public:
    explicit ProgressBar(Container& parent);

    double Value() const;
    // Held within 0 and 100. The bar shows it before this returns, also while a handler runs.
    void SetValue(double value);

  private:
    double value_ = 0;
};

}  // namespace trabeon
