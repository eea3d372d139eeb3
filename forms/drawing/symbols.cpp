#include "forms/drawing/symbols.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace trabeon {
namespace {

constexpr double halfBeam = 1.5;  // of the beam's line
constexpr double headLength = 7, headHalfWidth = 3;
constexpr double momentRadius = 24;

void addLine(Drawing& drawing, const DrawnPoint& from, const DrawnPoint& to, const Pen& pen) {
    drawing.push_back(PathShape{{from, to}, pen});
}

void addWall(Drawing& drawing, const DrawnPoint& at, double outward, const SymbolStyle& style) {
    const double half = symbolDepth * style.scale, reach = outward * 7 * style.scale;
    const int strokes = 6;
    addLine(drawing, {at.x, at.y - half}, {at.x, at.y + half}, {style.colour, 2});
    for (int k = 0; k < strokes; ++k) {
        const double y = at.y - half + 2 * half * k / strokes;
        addLine(drawing, {at.x, y}, {at.x + reach, y + 2 * half / strokes}, {style.colour, 1});
    }
}

/// A triangle below the beam's line. Its base is at this depth.
void addTriangle(Drawing& drawing, const DrawnPoint& at, double depth, const SymbolStyle& style) {
    const double half = 7 * style.scale, top = at.y + halfBeam;
    drawing.push_back(
        PathShape{{{at.x, top}, {at.x - half, at.y + depth}, {at.x + half, at.y + depth}},
                  Pen{style.colour, 1.2},
                  0xffffff});
}

void addGround(Drawing& drawing, const DrawnPoint& at, double depth, const SymbolStyle& style) {
    const double half = symbolWidth / 2 * style.scale;
    addLine(drawing, {at.x - half, at.y + depth}, {at.x + half, at.y + depth}, {style.colour, 1.2});
}

void addPin(Drawing& drawing, const DrawnPoint& at, const SymbolStyle& style) {
    const double depth = symbolDepth * style.scale;
    addTriangle(drawing, at, depth, style);
    addGround(drawing, at, depth, style);
}

void addRollers(Drawing& drawing, const DrawnPoint& at, const SymbolStyle& style) {
    const double radius = 2 * style.scale, depth = symbolDepth * style.scale;
    addTriangle(drawing, at, depth - 2 * radius, style);
    for (const double aside : {-4.0, 4.0})
        drawing.push_back(ArcShape{{at.x + aside * style.scale, at.y + depth - radius},
                                   radius,
                                   0,
                                   360,
                                   Pen{style.colour, 1},
                                   0xffffff});
    addGround(drawing, at, depth, style);
}

/// The head of an arrow whose direction is (along.x, along.y), of length 1.
void addHead(Drawing& drawing, const DrawnPoint& tip, const DrawnPoint& along, double length,
             Colour colour) {
    const double half = headHalfWidth * length / headLength;
    const DrawnPoint base{tip.x - along.x * length, tip.y - along.y * length};
    drawing.push_back(PathShape{{tip,
                                 {base.x - along.y * half, base.y + along.x * half},
                                 {base.x + along.y * half, base.y - along.x * half}},
                                std::nullopt,
                                colour});
}

}  // namespace

void addSupport(Drawing& drawing, Joint type, const DrawnPoint& at, const SymbolStyle& style) {
    switch (type) {
        case Joint::fixed:
            for (const int side : {-1, 1})
                if (style.outward == side || style.outward == 0)
                    addWall(drawing, at, side, style);
            break;
        case Joint::pin:
            addPin(drawing, at, style);
            break;
        case Joint::continuous:
            addRollers(drawing, at, style);
            break;
        case Joint::cantilever:
        case Joint::unknown:
            break;
    }
}

void addArrow(Drawing& drawing, const DrawnPoint& from, const DrawnPoint& to, const Pen& pen) {
    const double length = std::hypot(to.x - from.x, to.y - from.y);
    if (length == 0)
        return;
    const DrawnPoint along{(to.x - from.x) / length, (to.y - from.y) / length};
    const double head = std::min(headLength, length);
    addLine(drawing, from, {to.x - along.x * head / 2, to.y - along.y * head / 2}, pen);
    addHead(drawing, to, along, head, pen.colour);
}

void addMomentArrow(Drawing& drawing, const DrawnPoint& at, int outward, double moment,
                    const Pen& pen) {
    const double middle = outward < 0 ? 180 : 0, half = 55;
    drawing.push_back(ArcShape{at, momentRadius, middle - half, 2 * half, pen});
    // A hogging moment turns the end of the beam up, so the arrow comes round to the lower end.
    const double turn = (moment < 0) == (outward < 0) ? half : -half;
    const double angle = (middle + turn) * std::numbers::pi / 180;
    const DrawnPoint tip{at.x + momentRadius * std::cos(angle),
                         at.y - momentRadius * std::sin(angle)};
    const double ahead = turn > 0 ? 1 : -1;  // against the clock or with it
    addHead(drawing, tip, {-ahead * std::sin(angle), -ahead * std::cos(angle)}, headLength,
            pen.colour);
}

}  // namespace trabeon
