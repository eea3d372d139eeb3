// The sheet that the printer prints on. Twips.
#pragma once

namespace trabeon {

struct Paper {
    int Width = 0;  // of the sheet
    int Height = 0;
    int ScaleWidth = 0;  // of the area that can be printed on
    int ScaleHeight = 0;
    int OffsetX = 0;  // from the sheet's corner to that area's
    int OffsetY = 0;
};

}  // namespace trabeon
