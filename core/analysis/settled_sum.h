// A sum that is exactly 0 where only rounding errors are left.
#pragma once

#include <algorithm>
#include <cmath>

namespace trabeon {

/// Adds terms. A sum below 1e-12 of its largest term is a rounding error, and counts as 0.
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
