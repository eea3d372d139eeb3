// A drawing as numbers: lines, areas, arcs and texts. Any surface can show it, and code that makes
// one needs no surface. Measures are pixels of 1/96 inch, x to the right and y downward.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "toolkit/look/colour.h"

namespace trabeon {

struct DrawnPoint {
    double x = 0, y = 0;
};

struct Pen {
    Colour colour = 0;
    double width = 1;
    bool dashed = false;
};

/// A line through points. One with a fill is an area: its last point is joined to its first.
struct PathShape {
    std::vector<DrawnPoint> points;
    std::optional<Pen> pen;
    std::optional<Colour> fill{};
};

/// A part of a circle, in degrees against the clock from three o'clock. A sweep of 360 is a circle.
struct ArcShape {
    DrawnPoint centre;
    double radius = 0;
    double start = 0, sweep = 360;
    std::optional<Pen> pen;
    std::optional<Colour> fill{};
};

struct TextShape {
    DrawnPoint corner;  // top left
    std::string text;
    Colour colour = 0;
    bool bold = false;
};

using Shape = std::variant<PathShape, ArcShape, TextShape>;
using Drawing = std::vector<Shape>;  // the first one at the back

struct TextSize {
    double width = 0, height = 0;
};

/// How much room a text takes in the font of the surface.
using TextMeasure = std::function<TextSize(const std::string& text, bool bold)>;

}  // namespace trabeon
