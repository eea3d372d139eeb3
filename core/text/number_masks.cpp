#include "core/text/number_masks.h"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>

#include "core/text/decimal.h"

namespace trabeon {
namespace {

/// "1.00" to "9.99", four characters each, by three digits from 100 on.
constexpr auto mantissas = [] {
    std::array<std::array<char, 4>, 900> table{};
    for (std::size_t i = 0; i < table.size(); ++i) {
        const auto n = static_cast<int>(i) + 100;
        table[i] = {static_cast<char>('0' + n / 100), '.', static_cast<char>('0' + n / 10 % 10),
                    static_cast<char>('0' + n % 10)};
    }
    return table;
}();

char* putMantissaAndExponent(char* at, ThreeFigures figures) {
    if (figures.digits == 0) {
        std::memcpy(at, "0.00E+00", 8);
        return at + 8;
    }
    std::memcpy(at, mantissas[static_cast<std::size_t>(figures.digits - 100)].data(), 4);
    at[4] = 'E';
    at[5] = figures.exponent < 0 ? '-' : '+';
    const int size = std::abs(figures.exponent);
    at += 6;
    if (size >= 100)
        *at++ = static_cast<char>('0' + size / 100);
    *at++ = static_cast<char>('0' + size / 10 % 10);
    *at++ = static_cast<char>('0' + size % 10);
    return at;
}

/// The powers of ten for which the fast way is sure of its last bit but one.
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

/// The value scaled to 100 ... 1000 is off by less than 2.3e-13 (half a unit in the last place of
/// the power and of the product), and rounding at 15 significant digits turns up what is within
/// 5e-13 below a tie. Between these two margins the plain way decides.
ThreeFigures threeFiguresFast(double value) {
    const double size = std::fabs(value);
    const int power2 = static_cast<int>(std::bit_cast<std::uint64_t>(size) >> 52) - 1023;
    if (size == 0)
        return {};
    if (power2 < -300 || power2 > 300)
        return threeFiguresOf(decimalOf(value));
    int exponent = (power2 * 1233) >> 12;  // floor(log10(2^power2)), the value's own or one below
    double scaled = size * powerOfTen(2 - exponent);
    if (scaled >= 1000)
        scaled = size * powerOfTen(2 - ++exponent);
    int digits = static_cast<int>(scaled);
    const double rest = scaled - digits;
    if (rest >= 0.5 - 2e-13)
        ++digits;
    else if (rest >= 0.5 - 1e-12)
        return threeFiguresOf(decimalOf(value));
    if (digits >= 1000)
        return {100, exponent + 1};
    return {digits, exponent};
}

}  // namespace

char* putThreeFigures(char* at, double value) {
    const auto figures = threeFiguresFast(value);
    if (value < 0)
        *at++ = '-';
    return putMantissaAndExponent(at, figures);
}

char* putSignedThreeFigures(char* at, double value) {
    const auto figures = threeFiguresFast(value);
    *at++ = value < 0 ? '-' : '+';
    return putMantissaAndExponent(at, figures);
}

char* putThreeFiguresPlainly(char* at, double value) {
    const auto decimal = decimalOf(value);
    if (decimal.negative)
        *at++ = '-';
    return putMantissaAndExponent(at, threeFiguresOf(decimal));
}

char* putPercent(char* at, double factor) {
    auto hundredThousandths = scaledWhole(decimalOf(factor), 7);
    const auto whole = hundredThousandths / 100'000;
    if (whole >= 100)
        *at++ = static_cast<char>('0' + whole / 100);
    *at++ = static_cast<char>('0' + whole / 10 % 10);
    *at++ = static_cast<char>('0' + whole % 10);
    *at++ = '.';
    for (int i = 4; i >= 0; --i) {
        at[i] = static_cast<char>('0' + hundredThousandths % 10);
        hundredThousandths /= 10;
    }
    at[5] = '%';
    return at + 6;
}

char* putNineDigits(char* at, double whole) {
    std::array<char, longestMask> digits{};
    const auto end =
        std::to_chars(digits.data(), digits.data() + digits.size(), static_cast<long long>(whole))
            .ptr;
    const auto count = end - digits.data();
    for (auto i = count; i < 9; ++i)
        *at++ = '0';
    std::memcpy(at, digits.data(), static_cast<std::size_t>(count));
    return at + count;
}

std::string threePlaces(double value) {
    std::string text = std::to_string(scaledWhole(decimalOf(value), 3));
    text.insert(0, text.size() < 4 ? 4 - text.size() : 0, '0');
    return text.insert(text.size() - 3, ".");
}

std::string threeFigures(double value) {
    std::array<char, longestMask> text{};
    return {text.data(), putThreeFigures(text.data(), value)};
}

}  // namespace trabeon
