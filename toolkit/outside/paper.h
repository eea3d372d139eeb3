// The sheet that the printer prints on.
#pragma once

namespace trabeon {

/// In twips.
struct Paper {
    int Width = 0;  // of the sheet
    int Height = 0;
    int ScaleWidth = 0;  // of the printable area
    int ScaleHeight = 0;
    int OffsetX = 0;  // from the corner of the sheet to the corner of the printable area
    int OffsetY = 0;
};

}  // namespace trabeon
