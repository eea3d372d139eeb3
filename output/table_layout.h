// Fits a table to the page: with column widths, then with smaller type, then in strips.
#pragma once

#include <functional>
#include <vector>

#include "output/document.h"

namespace trabeon {

/// Space on each side of a cell's text, in points.
inline constexpr double cellMargin = 2.5;
/// Extra width that a word processor may need for rounding and the border, in points.
inline constexpr double cellSlack = 2;
inline constexpr double smallestType = 7;

struct TableStrip {
    std::vector<std::size_t> columns;  // columns of the table, from 0
    std::vector<double> widths;        // of each column, in points
};

struct TableLayout {
    double points;                   // type size
    std::vector<TableStrip> strips;  // from top to bottom; each begins with the first column
};

/// Returns the width of a text in type of 1 point, in points.
using TextMeasure = std::function<double(const std::string& text, const TextStyle& style)>;

/// `pageWidth` is in points. No column is narrower than its longest word, except that no column
/// needs more than half the page.
[[nodiscard]] TableLayout layOut(const DocumentTable& table, double pageWidth,
                                 const TextMeasure& measure);

}  // namespace trabeon
