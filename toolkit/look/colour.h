// Colours, and what they mean in all windows that draw.
#pragma once

#include <cstdint>

namespace trabeon {

/// 0xRRGGBB.
using Colour = std::uint32_t;

/// What marks a selection.
inline constexpr Colour HighlightColour = 0x0a64ad;
/// What is drawn for comparison, or behind something else.
inline constexpr Colour BehindColour = 0x9aa4ae;

}  // namespace trabeon
