// The fixed number masks of tables and station files.
#pragma once

#include <string>

#include "core/text/three_figures.h"

namespace trabeon {

/// The most characters that one mask writes.
inline constexpr int longestMask = 24;

/// Each writes from `at` on, and returns the end of what it wrote. Values must be finite; a value
/// is rounded on its decimal value at 15 significant digits, a tie away from zero.

/// "00.00000%" of a factor from 0 to 1: 50.00000%, 00.00000%, 100.00000%.
char* putPercent(char* at, double factor);

/// "000000000" of a whole number from 0 to 999,999,999; a larger one takes the digits it needs.
char* putNineDigits(char* at, double whole);

/// "0.000" of a value from 0 up to 10^14: 1.005, 0.141.
[[nodiscard]] std::string threePlaces(double value);

/// Text of the mask "0.00E+00".
[[nodiscard]] std::string threeFigures(double value);

/// The number that the mask "0.00E+00" leaves of a value: 1.236 gives 1.24.
[[nodiscard]] double threeFiguresNumber(double value);

}  // namespace trabeon
