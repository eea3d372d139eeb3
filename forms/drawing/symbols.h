// The signs of an engineer's drawing: supports and arrows, as shapes in pixels.
#pragma once

#include "core/rules/joint_types.h"
#include "toolkit/drawing/shapes.h"

namespace trabeon {

/// Below the beam's line, at scale 1.
inline constexpr double symbolDepth = 16;
inline constexpr double symbolWidth = 20;

/// How a support is drawn. outward: -1 for the left end of the beam, 1 for the right one, 0 inside;
/// the wall of a fixed end is on that side.
struct SymbolStyle {
    double scale = 1;
    int outward = 0;
    Colour colour = 0;
};

/// The symbol of a joint whose place on the beam's line is given; a free end has none.
void addSupport(Drawing& drawing, Joint type, const DrawnPoint& at, const SymbolStyle& style);

/// A straight arrow that points to its second end. A short one has a small head.
void addArrow(Drawing& drawing, const DrawnPoint& from, const DrawnPoint& to, const Pen& pen);

/// The arrow of the moment that a wall gives to the beam, around the beam's end. outward as above.
/// moment: sagging positive.
void addMomentArrow(Drawing& drawing, const DrawnPoint& at, int outward, double moment,
                    const Pen& pen);

}  // namespace trabeon
