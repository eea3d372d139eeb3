// The masks of three significant figures. Making this text is most of the cost of an analysis, so
// there is a fast method.
#pragma once

namespace trabeon {

/// Each writes from `at` on, at most longestMask characters, and returns the end of what it wrote.
/// The value must be finite. It is rounded on its decimal value at 15 significant digits, a tie
/// away from zero.

/// "0.00E+00": 1.23E+01, -4.50E-02, 0.00E+00.
char* putThreeFigures(char* at, double value);

/// "+0.00E+00;-0.00E+00": always a sign, +0.00E+00 for zero.
char* putSignedThreeFigures(char* at, double value);

/// "0.00E+00" from the decimal digits: slow, and right for every value. The fast way leaves to it
/// what it is not sure of.
char* putThreeFiguresPlainly(char* at, double value);

}  // namespace trabeon
