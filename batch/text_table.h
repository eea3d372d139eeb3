// Lines of a table for a terminal: a label on the left, then cells that are aligned to the right.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace trabeon {

inline constexpr std::size_t columnWidth = 12;
inline constexpr std::size_t labelWidth = 8;

/// The text after as many blanks as make it as wide as its column, at least one.
[[nodiscard]] std::string padded(std::string_view text, std::size_t width);

/// The text and the blanks up to the first column, at least one.
[[nodiscard]] std::string labelled(std::string_view text);

[[nodiscard]] std::string tableLine(std::string_view label,
                                    std::initializer_list<std::string_view> cells,
                                    std::size_t width = columnWidth);

}  // namespace trabeon
