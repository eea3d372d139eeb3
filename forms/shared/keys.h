// The keys that a text box accepts.
#pragma once

#include <string_view>

namespace trabeon {

class Control;

inline constexpr int backspaceKey = 8;
inline constexpr int enterKey = 13;

inline constexpr std::string_view plainNumber = "0123456789.";
inline constexpr std::string_view signedNumber = "0123456789.-";

/// Sets `keyAscii` to 0 if the key is neither Backspace nor one of the characters in `accepted`.
void filterKeys(int& keyAscii, std::string_view accepted);

/// The same, but Enter first moves the focus to `next`. Enter is then dropped as well.
void filterKeys(int& keyAscii, std::string_view accepted, Control& next);

}  // namespace trabeon
