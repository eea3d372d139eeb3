// A number as the sum of two doubles, about 32 significant digits. What is added and taken away
// again leaves no rounding error: the boundaries of narrow loads, and steep intensities.
#pragma once

#include <cmath>

namespace trabeon {

/// The value is high + low; high is the double nearest to it.
struct TwoDoubles {
    double high = 0, low = 0;

    [[nodiscard]] double value() const { return high + low; }
    [[nodiscard]] bool operator<(const TwoDoubles& other) const {
        return high != other.high ? high < other.high : low < other.low;
    }
};

/// a + b without a rounding error, by Knuth's algorithm.
inline TwoDoubles exactSum(double a, double b) {
    const double sum = a + b;
    const double shareOfB = sum - a;
    return {sum, (a - (sum - shareOfB)) + (b - shareOfB)};
}

/// a × b without a rounding error.
inline TwoDoubles exactProduct(double a, double b) {
    const double product = a * b;
    return {product, std::fma(a, b, -product)};
}

inline TwoDoubles operator+(const TwoDoubles& a, const TwoDoubles& b) {
    const auto [sum, rest] = exactSum(a.high, b.high);
    return exactSum(sum, rest + (a.low + b.low));
}

inline TwoDoubles operator-(const TwoDoubles& a, const TwoDoubles& b) {
    return a + TwoDoubles{-b.high, -b.low};
}

inline TwoDoubles operator*(const TwoDoubles& a, const TwoDoubles& b) {
    const auto [product, rest] = exactProduct(a.high, b.high);
    return exactSum(product, rest + (a.high * b.low + a.low * b.high));
}

inline TwoDoubles operator/(const TwoDoubles& a, double b) {
    const double quotient = a.high / b;
    return exactSum(quotient, (std::fma(-quotient, b, a.high) + a.low) / b);
}

inline TwoDoubles& operator+=(TwoDoubles& a, const TwoDoubles& b) {
    return a = a + b;
}

inline TwoDoubles& operator+=(TwoDoubles& a, double b) {
    return a = a + TwoDoubles{b, 0};
}

}  // namespace trabeon
