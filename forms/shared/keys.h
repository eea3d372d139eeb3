// Which keys a text box takes.
#pragma once

#include <string_view>

namespace trabeon {

class Control;

inline constexpr int backspaceKey = 8;
inline constexpr int enterKey = 13;

inline constexpr std::string_view plainNumber = "0123456789.";
inline constexpr std::string_view signedNumber = "0123456789.-";

/// Drops a key that is neither Backspace nor one of these characters.
void keepKeys(int& keyAscii, std::string_view passing);

/// The same for a box that hands the focus on: Enter moves it first, and is then dropped.
void keepKeys(int& keyAscii, std::string_view passing, Control& next);

}  // namespace trabeon
