#include "core/text/number_masks.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>

#include "core/text/decimal.h"
#include "core/text/number_text.h"

namespace trabeon {
namespace {

/// Hundred-thousandths of a per cent of a factor from 0 to 1. The scaled factor is off by less than
/// 1e-9, and rounding at 15 significant digits moves it by at most 5e-9. So near a tie the decimal
/// digits decide.
std::uint64_t hundredThousandthsOf(double factor) {
    const double scaled = factor * 1e7;
    const double rounded = std::floor(scaled + 0.5);
    if (factor <= 1 && std::fabs(std::fabs(scaled - rounded) - 0.5) > 1e-8)
        return static_cast<std::uint64_t>(rounded);
    return scaledWhole(decimalOf(factor), 7);
}

}  // namespace

char* putPercent(char* at, double factor) {
    auto hundredThousandths = hundredThousandthsOf(factor);
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

double threeFiguresNumber(double value) {
    return leadingNumber(threeFigures(value));
}

}  // namespace trabeon
