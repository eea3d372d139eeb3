// How far up and down the lines of a picture reach, pixel by pixel, so that labels keep clear of
// them.
#pragma once

#include <cstddef>
#include <vector>

#include "toolkit/drawing/shapes.h"

namespace trabeon {

class Skyline {
  public:
    /// For a picture of this width, with a line along the height y.
    Skyline(double width, double y);

    void addLine(const DrawnPoint& from, const DrawnPoint& to);

    /// The least y from a place to another, the upper end of what was added.
    [[nodiscard]] double topBetween(double from, double to) const;
    /// The greatest y, the lower end.
    [[nodiscard]] double bottomBetween(double from, double to) const;

  private:
    struct Column {
        double top, bottom;
    };
    [[nodiscard]] std::size_t columnAt(double x) const;

    std::vector<Column> columns_;
};

}  // namespace trabeon
