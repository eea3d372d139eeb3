// How all windows look: style, palette, fonts.
#pragma once

#include <string>

#include "toolkit/look/colour.h"

class QFont;

namespace trabeon {

/// Sets style, palette and font for all windows. Call it once, after the application is made.
void ApplyLook();

/// The font with this name. If the system does not have it, a font with the same widths.
[[nodiscard]] QFont FontNamed(const std::string& name, double points, bool bold);

}  // namespace trabeon
