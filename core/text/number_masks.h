// The fixed number masks of tables and station files, written straight into a buffer: nearly the
// whole cost of an analysis is this text, so the three-figure mask has a fast way of its own.
#pragma once

#include <string>

namespace trabeon {

/// The most characters that one mask writes.
inline constexpr int longestMask = 24;

/// Each writes from `at` on, and returns the end of what it wrote. Values must be finite; a value
/// is rounded on its decimal value at 15 significant digits, a tie away from zero.

/// "0.00E+00": 1.23E+01, -4.50E-02, 0.00E+00.
char* putThreeFigures(char* at, double value);

/// "+0.00E+00;-0.00E+00": always a sign, +0.00E+00 for zero.
char* putSignedThreeFigures(char* at, double value);

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

/// The same by way of the decimal digits alone: slow, plain, and what the fast way is checked
/// against.
char* putThreeFiguresPlainly(char* at, double value);

}  // namespace trabeon
