#include "core/text/number_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>

#include "core/text/decimal.h"

namespace trabeon {
namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

std::size_t digitsFrom(std::string_view text, std::size_t at) {
    std::size_t end = at;
    while (end < text.size() && isDigit(text[end]))
        ++end;
    return end;
}

/// Where the decimal number without its sign at the start of the text ends; 0 if there is none.
std::size_t numberEnd(std::string_view text) {
    std::size_t end = digitsFrom(text, 0);
    std::size_t digits = end;
    if (end < text.size() && text[end] == '.') {
        const auto fraction = digitsFrom(text, end + 1);
        digits += fraction - end - 1;
        end = fraction;
    }
    if (digits == 0)
        return 0;
    if (end < text.size() && (text[end] == 'E' || text[end] == 'e')) {
        std::size_t power = end + 1;
        if (power < text.size() && (text[power] == '+' || text[power] == '-'))
            ++power;
        if (const auto powerEnd = digitsFrom(text, power); powerEnd > power)
            end = powerEnd;
    }
    return end;
}

/// The value of a number that from_chars calls out of range: infinity, or 0 if it is too small.
double outOfRange(std::string_view number) {
    const auto mark = number.find_first_of("Ee");
    const auto mantissa = number.substr(0, mark);
    const auto point = std::min(mantissa.find('.'), mantissa.size());
    const auto first = mantissa.find_first_of("123456789");
    double power = 0;
    if (mark != std::string_view::npos) {
        auto digits = number.substr(mark + 1);
        const bool negative = digits.front() == '-';
        if (negative || digits.front() == '+')
            digits.remove_prefix(1);
        for (char c : digits)
            power = power * 10 + (c - '0');
        if (negative)
            power = -power;
    }
    const double lead = static_cast<double>(point) - static_cast<double>(first) + power;
    return lead > 0 ? std::numeric_limits<double>::infinity() : 0;
}

struct Leading {
    double value = 0;
    std::size_t end = 0;  // 0 when the text does not begin with a number
};

Leading leading(std::string_view text) {
    const auto start = text.find_first_not_of(' ');
    if (start == std::string_view::npos)
        return {};
    text.remove_prefix(start);
    const bool negative = text.front() == '-';
    const std::size_t sign = negative || text.front() == '+' ? 1 : 0;
    const auto number = text.substr(sign, numberEnd(text.substr(sign)));
    if (number.empty())
        return {};
    double size = 0;
    const auto read = std::from_chars(number.data(), number.data() + number.size(), size);
    if (read.ec == std::errc::result_out_of_range)
        size = outOfRange(number);
    return {negative ? -size : size, start + sign + number.size()};
}

std::string exponentText(int exponent) {
    std::string text = exponent < 0 ? "E-" : "E+";
    const int size = std::abs(exponent);
    if (size < 10)
        text += '0';
    return text + std::to_string(size);
}

/// Member, joint and span numbers are short whole numbers, and so are most numbers here.
bool isShortWhole(double value) {
    return value >= 0 && value < 1e15 && value == std::floor(value);
}

std::string wholeText(double value) {
    std::array<char, 24> text{' '};
    const auto end =
        std::to_chars(text.data() + 1, text.data() + text.size(), static_cast<std::int64_t>(value))
            .ptr;
    return {text.data(), end};
}

}  // namespace

double leadingNumber(std::string_view text) {
    return leading(text).value;
}

std::optional<double> numberOfWholeText(std::string_view text) {
    const auto [value, end] = leading(text);
    if (end == 0 || text.find_first_not_of(' ', end) != std::string_view::npos)
        return std::nullopt;
    return value;
}

std::size_t wholeNumberUpTo(std::size_t most, std::string_view text) {
    const double number = leadingNumber(text);
    const bool within = number >= 1 && number <= static_cast<double>(most);
    return within && number == std::floor(number) ? static_cast<std::size_t>(number) : 0;
}

std::string generatedText(double value) {
    if (isShortWhole(value))
        return wholeText(value);
    const Decimal decimal = decimalOf(value);
    const char sign = decimal.negative ? '-' : ' ';
    std::string digits = std::to_string(decimal.digits);
    digits.erase(digits.find_last_not_of('0') + 1);
    if (digits.empty())
        return " 0";
    const int exponent = decimal.exponent;
    const auto count = static_cast<int>(digits.size());
    if (exponent >= 15 || exponent < -4) {
        if (count > 1)
            digits.insert(1, ".");
        return sign + digits + exponentText(exponent);
    }
    if (exponent < 0)
        return sign + ("0." + std::string(static_cast<std::size_t>(-exponent - 1), '0')) + digits;
    if (count <= exponent + 1)
        return sign + digits.append(static_cast<std::size_t>(exponent + 1 - count), '0');
    return sign + digits.insert(static_cast<std::size_t>(exponent + 1), ".");
}

std::string bareNumber(double value) {
    const auto text = generatedText(value);
    return text.substr(text.front() == ' ' ? 1 : 0);
}

std::string significantText(double value, int figures) {
    std::array<char, 32> text{};
    std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::scientific,
                  figures - 1);
    return bareNumber(leadingNumber(text.data()));
}

std::string printForm(double value) {
    return generatedText(value) + ' ';
}

}  // namespace trabeon
