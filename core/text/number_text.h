// Numbers read from text, and text made from numbers. Nothing here follows a locale.
#pragma once

#include <concepts>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace trabeon {

/// The longest leading decimal number of a text, 0 if there is none: "1.2.3" reads 1.2, "-" reads
/// 0. Blanks in front are skipped; sign and exponent count ("1.50E+00"); "inf", "nan" and
/// hexadecimal read 0. A number too large for a double reads as infinity, for the caller to refuse.
[[nodiscard]] double leadingNumber(std::string_view text);

/// The number that a whole text stands for, blanks around it allowed; nothing if it is no number.
[[nodiscard]] std::optional<double> numberOfWholeText(std::string_view text);

/// The leading number of a text if it is a whole one from 1 to `most`; otherwise 0.
[[nodiscard]] std::size_t wholeNumberUpTo(std::size_t most, std::string_view text);

/// Plain decimal text of at most 15 significant digits, one blank in front of a value of 0 or more:
/// " 3", " 0.386", "-1.5", " 1E+15", " 1E-05". The value must be finite.
[[nodiscard]] std::string generatedText(double value);

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
