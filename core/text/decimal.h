// The decimal value of a number at 15 significant digits. Every number text is made from it.
#pragma once

#include <cstdint>

namespace trabeon {

/// value = ±digits × 10^(exponent - 14); digits has 15 digits, or is 0 for zero (never negative).
struct Decimal {
    bool negative = false;
    std::uint64_t digits = 0;
    int exponent = 0;
};

/// The value rounded to 15 significant digits, a tie away from zero. The value must be finite.
[[nodiscard]] Decimal decimalOf(double value);

/// The whole number nearest to the decimal's size × 10^places, a tie away from zero. That product
/// must be below 10^18.
[[nodiscard]] std::uint64_t scaledWhole(const Decimal& decimal, int places);

/// The decimal's first three digits, 100 to 999, a tie away from zero; 0 for zero.
/// `exponent` may rise by one, as 9.995 becomes 1.00E+01.
struct ThreeFigures {
    int digits = 0;
    int exponent = 0;
};
[[nodiscard]] ThreeFigures threeFiguresOf(const Decimal& decimal);

}  // namespace trabeon
