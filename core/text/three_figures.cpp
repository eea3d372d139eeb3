#include "core/text/three_figures.h"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>

#include "core/text/decimal.h"

namespace trabeon {
namespace {

/// "1.00" to "9.99", four characters each, by three digits from 100 on, and "1.00" again for 1000.
constexpr auto mantissas = [] {
    std::array<std::array<char, 4>, 901> table{};
    for (int n = 100; n <= 1000; ++n) {
        const int digits = n == 1000 ? 100 : n;
        table[static_cast<std::size_t>(n - 100)] = {static_cast<char>('0' + digits / 100), '.',
                                                    static_cast<char>('0' + digits / 10 % 10),
                                                    static_cast<char>('0' + digits % 10)};
    }
    return table;
}();

/// "E-99" to "E+99".
constexpr auto exponents = [] {
    std::array<std::array<char, 4>, 199> table{};
    for (int k = -99; k <= 99; ++k) {
        const int size = k < 0 ? -k : k;
        table[static_cast<std::size_t>(k + 99)] = {'E', k < 0 ? '-' : '+',
                                                   static_cast<char>('0' + size / 10),
                                                   static_cast<char>('0' + size % 10)};
    }
    return table;
}();

/// digits from 100 to 1000, exponent from -99 to 99.
char* putMantissaAndShortExponent(char* at, int digits, int exponent) {
    std::memcpy(at, mantissas[static_cast<std::size_t>(digits - 100)].data(), 4);
    std::memcpy(at + 4, exponents[static_cast<std::size_t>(exponent + 99)].data(), 4);
    return at + 8;
}

char* putMantissaAndExponent(char* at, ThreeFigures figures) {
    if (figures.digits == 0) {
        std::memcpy(at, "0.00E+00", 8);
        return at + 8;
    }
    const int size = std::abs(figures.exponent);
    if (size < 100)
        return putMantissaAndShortExponent(at, figures.digits, figures.exponent);
    std::memcpy(at, mantissas[static_cast<std::size_t>(figures.digits - 100)].data(), 4);
    at[4] = 'E';
    at[5] = figures.exponent < 0 ? '-' : '+';
    at[6] = static_cast<char>('0' + size / 100);
    at[7] = static_cast<char>('0' + size / 10 % 10);
    at[8] = static_cast<char>('0' + size % 10);
    return at + 9;
}

/// The powers of ten for which the fast way is accurate enough.
constexpr int greatestPower = 100;
const auto powers = [] {
    std::array<double, 2 * greatestPower + 1> table{};
    for (int k = -greatestPower; k <= greatestPower; ++k) {
        std::array<char, 8> text{'1', 'e'};
        const auto end = std::to_chars(text.data() + 2, text.data() + text.size(), k).ptr;
        std::from_chars(text.data(), end, table[static_cast<std::size_t>(k + greatestPower)]);
    }
    return table;
}();

double powerOfTen(int k) {
    return powers[static_cast<std::size_t>(k + greatestPower)];
}

/// The value is scaled to 100 ... 1000. This is off by less than 2.3e-13: half a unit in the last
/// place of the power and of the product. Rounding at 15 significant digits turns up what is within
/// 5e-13 below a tie. Between these two margins, for 0 and for exponents of three digits, the plain
/// way decides.
///
/// Whether the next power of ten is reached and whether the digits are rounded up is as good as
/// random from cell to cell. Both are added as 0 or 1, because a branch would be predicted wrong
/// half the time and cost more than all the rest.
char* putFigures(char* at, double value) {
    const double size = std::fabs(value);
    const int power2 = static_cast<int>(std::bit_cast<std::uint64_t>(size) >> 52) - 1023;
    if (power2 < -300 || power2 > 300)
        return putThreeFiguresPlainly(at, size);
    int exponent = (power2 * 1233) >> 12;  // floor(log10(2^power2)), the value's own or one below
    exponent += size >= powerOfTen(exponent + 1);
    const double scaled = size * powerOfTen(2 - exponent);
    int digits = static_cast<int>(scaled);
    const double beyondTie = scaled - digits - (0.5 - 6e-13);
    if (std::fabs(beyondTie) < 4.1e-13)
        return putThreeFiguresPlainly(at, size);
    digits += beyondTie > 0;
    exponent += digits == 1000;
    return putMantissaAndShortExponent(at, digits, exponent);
}

}  // namespace

char* putThreeFigures(char* at, double value) {
    *at = '-';
    return putFigures(at + (value < 0), value);
}

char* putSignedThreeFigures(char* at, double value) {
    *at = value < 0 ? '-' : '+';
    return putFigures(at + 1, value);
}

[[gnu::noinline]] char* putThreeFiguresPlainly(char* at, double value) {
    const auto decimal = decimalOf(value);
    if (decimal.negative)
        *at++ = '-';
    return putMantissaAndExponent(at, threeFiguresOf(decimal));
}

}  // namespace trabeon
