// A sum that knows rounding dust from a result.
#pragma once

#include <algorithm>
#include <cmath>

namespace trabeon {

/// Adds terms; what is left below 1e-12 of the largest of them is rounding dust, and 0 on paper.
class SettledSum {
  public:
    void add(double term) {
        value_ += term;
        largest_ = std::max(largest_, std::fabs(term));
    }
    [[nodiscard]] double value() const { return std::fabs(value_) < dust * largest_ ? 0 : value_; }

  private:
    static constexpr double dust = 1e-12;
    double value_ = 0, largest_ = 0;
};

}  // namespace trabeon
