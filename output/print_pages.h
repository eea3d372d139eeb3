// The pages of a project's print: the lines of each page and their places.
#pragma once

#include <string>
#include <vector>

#include "core/store/rows.h"
#include "output/output_kinds.h"

namespace trabeon {

/// For a fixed-width typeface of 8 points. 55 lines reach from 20 mm to 196 mm. They also fit on a
/// page in landscape, on A4 and on Letter.
inline constexpr double printLineHeight = 3.2;  // mm
inline constexpr double printCorner = 20;       // mm: left and top of the text

/// A line on a page. x and y of its top left corner are in mm.
struct PrintedLine {
    double x, y;
    std::string text;

    friend bool operator==(const PrintedLine&, const PrintedLine&) = default;
};

struct PrintedPage {
    bool landscape = false;
    std::vector<PrintedLine> lines;
};

/// The input of a print: joints, members, loads and the balance table.
struct PrintSource {
    std::string headingLine;
    std::vector<JointRow> joints;
    std::vector<MemberRow> members;
    std::vector<PointRow> points;
    std::vector<UdlRow> udls;
    std::string balanceTable;   // the text of the file
    std::string tableRemark{};  // above it, if it is outdated
};

/// Project, "Designer:" and designer, date and time in one line, with five blanks between them.
[[nodiscard]] std::string printHeadingLine(const std::string& project, const std::string& designer,
                                           const std::string& date, const std::string& time);

/// The number of strips of `width` characters that a table line of this length needs, at least 1.
/// Each strip repeats the row labels.
[[nodiscard]] std::size_t stripCount(std::size_t lineLength, std::size_t width);

/// `landscape` applies to the pages of the balance table. All other pages are in portrait. Drops an
/// empty last page unless it is the only one.
[[nodiscard]] std::vector<PrintedPage> printedPages(const PrintSource& source,
                                                    const OutputKinds& kinds, bool landscape);

}  // namespace trabeon
