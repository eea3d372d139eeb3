// Texts of files as people read them. Files have bytes of any character set; people see UTF-8.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace trabeon {

/// The text in UTF-8, for screens and paper. A text that is not valid UTF-8 counts as Latin-1.
/// Tabs and line ends become blanks, other control characters "?".
[[nodiscard]] std::string readable(std::string_view text);

/// A field as a message quotes it: the readable text, at most 80 characters with the "..." at the
/// end of a longer one.
[[nodiscard]] std::string excerpt(std::string_view field);

/// How many UTF-16 units the readable text takes: this is how a text box counts characters.
[[nodiscard]] std::size_t unitsInBox(std::string_view text);

/// Whether a file was saved as UTF-16: it begins with a byte order mark (FF FE or FE FF), or every
/// second one of its first bytes is NUL.
[[nodiscard]] bool isUtf16(std::string_view file);

}  // namespace trabeon
