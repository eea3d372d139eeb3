// Numbers that must agree to nine figures.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace trabeon::test {

inline testing::AssertionResult close(double actual, double expected) {
    if (std::fabs(actual - expected) <= 1e-9 * std::fabs(expected))
        return testing::AssertionSuccess();
    return testing::AssertionFailure()
           << std::setprecision(std::numeric_limits<double>::max_digits10) << actual << " where "
           << expected << " was expected";
}

}  // namespace trabeon::test
