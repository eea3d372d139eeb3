#include "core/text/decimal.h"

#include <array>
#include <cassert>
#include <charconv>
#include <cmath>
#include <string_view>

namespace trabeon {
namespace {

constexpr int significant = 15;
constexpr std::uint64_t limit = 1'000'000'000'000'000;  // 10^15

/// Enough for every digit that a double can have.
constexpr int allDigits = 800;
using DigitBuffer = std::array<char, allDigits + 16>;

/// Mantissa digits without the point, and the decimal exponent.
struct Scientific {
    std::string_view mantissa;
    int exponent = 0;
};

/// Of text like "1.25e-03" that ends at `end`; the mantissa stays in the buffer.
Scientific split(DigitBuffer& buffer, const char* end) {
    const std::string_view text(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
    const auto mark = text.find('e');
    Scientific parts;
    const char* power = text.data() + mark + 1;
    std::from_chars(*power == '+' ? power + 1 : power, end, parts.exponent);
    if (mark > 1)
        buffer[1] = buffer[0];  // the point goes, the first digit takes its place
    parts.mantissa = mark > 1 ? text.substr(1, mark - 1) : text.substr(0, 1);
    return parts;
}

/// The fewest digits that read back as the same number.
Scientific shortest(DigitBuffer& buffer, double size) {
    return split(buffer, std::to_chars(buffer.data(), buffer.data() + buffer.size(), size,
                                       std::chars_format::scientific)
                             .ptr);
}

Scientific withDigits(DigitBuffer& buffer, double size, int digits) {
    return split(buffer, std::to_chars(buffer.data(), buffer.data() + buffer.size(), size,
                                       std::chars_format::scientific, digits - 1)
                             .ptr);
}

std::uint64_t wholeOf(std::string_view digits) {
    std::uint64_t whole = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), whole);
    return whole;
}

Decimal carried(std::uint64_t digits, int exponent) {
    if (digits == limit)
        return {false, limit / 10, exponent + 1};
    return {false, digits, exponent};
}

std::uint64_t powerOfTen(int exponent) {
    std::uint64_t power = 1;
    for (; exponent > 0; --exponent)
        power *= 10;
    return power;
}

/// Two more digits decide which way to round. At a tie and next to one, all digits decide.
Decimal roundedDecimal(DigitBuffer& buffer, double size) {
    auto longer = withDigits(buffer, size, significant + 2);
    const auto tail = wholeOf(longer.mantissa.substr(significant));
    if (tail == 50)
        longer = withDigits(buffer, size, allDigits);
    const bool up = tail == 50 ? longer.mantissa[significant] >= '5' : tail > 50;
    return carried(wholeOf(longer.mantissa.substr(0, significant)) + (up ? 1 : 0), longer.exponent);
}

}  // namespace

Decimal decimalOf(double value) {
    assert(std::isfinite(value));
    if (value == 0)
        return {};
    const double size = std::fabs(value);
    DigitBuffer buffer;
    const auto few = shortest(buffer, size);
    // Below the least normal number a double holds fewer digits than it shows when rounded to 15.
    const bool exact = few.mantissa.size() <= significant && std::isnormal(size);
    Decimal decimal;
    if (exact) {
        const auto missing = significant - static_cast<int>(few.mantissa.size());
        decimal = {false, wholeOf(few.mantissa) * powerOfTen(missing), few.exponent};
    } else {
        decimal = roundedDecimal(buffer, size);
    }
    decimal.negative = value < 0;
    return decimal;
}

std::uint64_t scaledWhole(const Decimal& decimal, int places) {
    const int shift = decimal.exponent - (significant - 1) + places;
    if (decimal.digits == 0 || shift < -significant)
        return 0;
    if (shift >= 0)
        return decimal.digits * powerOfTen(shift);
    const auto divisor = powerOfTen(-shift);
    return (decimal.digits + divisor / 2) / divisor;
}

ThreeFigures threeFiguresOf(const Decimal& decimal) {
    if (decimal.digits == 0)
        return {};
    constexpr std::uint64_t unit = limit / 1000;
    const auto digits = static_cast<int>((decimal.digits + unit / 2) / unit);
    if (digits == 1000)
        return {100, decimal.exponent + 1};
    return {digits, decimal.exponent};
}

}  // namespace trabeon
