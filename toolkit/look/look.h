// The one look of the program: style, palette, fonts.
#pragma once

#include <string>

#include "toolkit/look/colour.h"

class QFont;

namespace trabeon {

// Style, palette and font for all windows; call it once, after the application is made.
void ApplyLook();

// The font of that name, or where the system lacks it one with the same widths.
QFont FontNamed(const std::string& name, double points, bool bold);

}  // namespace trabeon
