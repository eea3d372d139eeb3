// Makes a table fit the page: by the widths of its columns, then by smaller type, then in strips.
#pragma once

#include <functional>
#include <vector>

#include "output/document.h"

namespace trabeon {

/// Room at either side of a cell's text, in points.
inline constexpr double cellMargin = 2.5;
/// What a word processor may need beyond a word's own width: its rounding, and the border.
inline constexpr double cellSlack = 2;
inline constexpr double smallestType = 7;

struct TableStrip {
    std::vector<std::size_t> columns;  // which columns of the table, from 0
    std::vector<double> widths;        // of each, in points
};

struct TableLayout {
    double points;                   // size of the type
    std::vector<TableStrip> strips;  // one below the other; each begins with the first column
};

/// The width of a text in type of 1 point.
using TextMeasure = std::function<double(const std::string& text, const TextStyle& style)>;

/// No column is narrower than its longest word, unless that takes half the page.
[[nodiscard]] TableLayout layOut(const DocumentTable& table, double pageWidth,
                                 const TextMeasure& measure);

}  // namespace trabeon
