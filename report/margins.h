// The page margins of the report.
#pragma once

namespace trabeon {

inline constexpr int twipsPerInch = 1440;

// In inches, of the preview.
inline constexpr int gLeftMargin = 1;
inline constexpr int gRightMargin = 1;
inline constexpr int gTopMargin = 1;
inline constexpr int gBottomMargin = 1;

inline constexpr int marginTwips = 1440;  // of the print and the file, all four sides

}  // namespace trabeon
