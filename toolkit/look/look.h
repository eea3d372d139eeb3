// The one look of the program: style, palette, fonts.
#pragma once

#include <cstdint>
#include <string>

class QFont;

namespace trabeon {

// Style, palette and font for all windows; call it once, after the application is made.
void ApplyLook();

// What marks a selection, 0xRRGGBB.
inline constexpr std::uint32_t HighlightColour = 0x0a64ad;

// The font of that name, or where the system lacks it one with the same widths.
QFont FontNamed(const std::string& name, double points, bool bold);

}  // namespace trabeon
