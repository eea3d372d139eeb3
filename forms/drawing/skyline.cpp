#include "forms/drawing/skyline.h"

#include <algorithm>

namespace trabeon {

Skyline::Skyline(double width, double y)
    : columns_(static_cast<std::size_t>(std::max(0.0, width)) + 1, Column{y, y}) {}

std::size_t Skyline::columnAt(double x) const {
    return static_cast<std::size_t>(std::clamp(x, 0.0, static_cast<double>(columns_.size() - 1)));
}

void Skyline::addLine(const DrawnPoint& from, const DrawnPoint& to) {
    const auto& [left, right] =
        std::minmax(from, to, [](const DrawnPoint& a, const DrawnPoint& b) { return a.x < b.x; });
    const double slope = right.x > left.x ? (right.y - left.y) / (right.x - left.x) : 0;
    const auto last = columnAt(right.x);
    for (auto k = columnAt(left.x); k <= last; ++k) {
        const auto column = static_cast<double>(k);
        const double start = std::max(left.x, column), end = std::min(right.x, column + 1);
        double a = left.y + slope * (start - left.x), b = left.y + slope * (end - left.x);
        if (slope == 0) {
            a = left.y;
            b = right.y;
        }
        columns_[k].top = std::min({columns_[k].top, a, b});
        columns_[k].bottom = std::max({columns_[k].bottom, a, b});
    }
}

double Skyline::topBetween(double from, double to) const {
    double top = columns_[columnAt(from)].top;
    for (auto k = columnAt(from); k <= columnAt(to); ++k)
        top = std::min(top, columns_[k].top);
    return top;
}

double Skyline::bottomBetween(double from, double to) const {
    double bottom = columns_[columnAt(from)].bottom;
    for (auto k = columnAt(from); k <= columnAt(to); ++k)
        bottom = std::max(bottom, columns_[k].bottom);
    return bottom;
}

}  // namespace trabeon
