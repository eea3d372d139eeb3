// The margins of a page of the report.
#pragma once

namespace trabeon {

inline constexpr int twipsPerInch = 1440;

// Inches; the preview's and the paper's.
inline constexpr int gLeftMargin = 1;
inline constexpr int gRightMargin = 1;
inline constexpr int gTopMargin = 1;
inline constexpr int gBottomMargin = 1;

inline constexpr int marginTwips = 1440;  // of what is printed and saved, on all four sides

}  // namespace trabeon
