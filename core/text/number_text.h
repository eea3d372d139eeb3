// Numbers read from text, and text made from numbers. They do not depend on the locale.
#pragma once

#include <concepts>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace trabeon {

/// The longest leading decimal number of a text, 0 if there is none: "1.2.3" gives 1.2, "-" gives
/// 0. Leading blanks are skipped. The number may have a sign and an exponent ("1.50E+00"). "inf",
/// "nan" and hexadecimal numbers give 0. A number too large for a double gives infinity; the caller
/// refuses it.
[[nodiscard]] double leadingNumber(std::string_view text);

/// The number that is the whole text, with blanks around it or not; nothing if it is not a number.
[[nodiscard]] std::optional<double> numberOfWholeText(std::string_view text);

/// The leading number of a text if it is a whole one from 1 to `most`; otherwise 0.
[[nodiscard]] std::size_t wholeNumberUpTo(std::size_t most, std::string_view text);

/// Plain decimal text of at most 15 significant digits, one blank in front of a value of 0 or more:
/// " 3", " 0.386", "-1.5", " 1E+15", " 1E-05". The value must be finite.
[[nodiscard]] std::string generatedText(double value);

/// Generated number text without its blank: "3", "-1.5". The value must be finite.
[[nodiscard]] std::string bareNumber(double value);

/// The same of a value rounded to this many significant figures, from 1 to 15: 55.966 with four of
/// them gives "55.97". The value must be finite.
[[nodiscard]] std::string significantText(double value, int figures);

/// Generated number text and one blank after it: " 3 ".
[[nodiscard]] std::string printForm(double value);

/// The same for whole numbers.
template <std::integral Whole>
[[nodiscard]] std::string generatedText(Whole value) {
    return generatedText(static_cast<double>(value));
}
template <std::integral Whole>
[[nodiscard]] std::string printForm(Whole value) {
    return printForm(static_cast<double>(value));
}

}  // namespace trabeon
