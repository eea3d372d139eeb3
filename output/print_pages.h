// The print of a project as pages of text: which line stands where on which page.
#pragma once

#include <string>
#include <vector>

#include "core/store/rows.h"
#include "output/output_kinds.h"

namespace trabeon {

/// A fixed-width face of 8 points. 55 of its lines reach from 20 mm to 196 mm, so that a page holds
/// them in landscape too, on A4 and on Letter.
inline constexpr double printLineHeight = 3.2;  // mm
inline constexpr double printCorner = 20;       // mm: left and top of the text

/// Text on a page; x and y of its top left corner in mm.
struct PrintedLine {
    double x, y;
    std::string text;

    friend bool operator==(const PrintedLine&, const PrintedLine&) = default;
};

struct PrintedPage {
    bool landscape = false;
    std::vector<PrintedLine> lines;
};

/// What a print is made from. Of the kinds it knows joints, members, loads and the balance table.
struct PrintSource {
    std::string headingLine;
    std::vector<JointRow> joints;
    std::vector<MemberRow> members;
    std::vector<PointRow> points;
    std::vector<UdlRow> udls;
    std::string balanceTable;   // the file's text
    std::string tableRemark{};  // above it, if it is not the table of this beam
};

/// project, "Designer:" and designer, date and time in one line, five blanks between them.
[[nodiscard]] std::string printHeadingLine(const std::string& project, const std::string& designer,
                                           const std::string& date, const std::string& time);

/// Strips of `width` characters, each beside the row labels, that hold a table line of this length:
/// at least 1.
[[nodiscard]] std::size_t stripCount(std::size_t lineLength, std::size_t width);

/// landscape is the shape of the pages of the balance table; all others are upright. A page that
/// was begun last and holds nothing is not printed, unless it is the only one.
[[nodiscard]] std::vector<PrintedPage> printedPages(const PrintSource& source,
                                                    const OutputKinds& kinds, bool landscape);

}  // namespace trabeon
