// Sketches of a load on its member. The member has the same length on the screen for any L.
#pragma once

#include <cstddef>
#include <string>

#include "toolkit/controls/picture_box.h"

namespace trabeon {

/// The loaded member: its number from 1 and its length in the user's unit.
struct SketchedMember {
    std::size_t number;
    double L;
};

/// The texts of the boxes of a point load.
struct PointTexts {
    std::string a, P;
};
struct UdlTexts {
    std::string a, b, w1, w2;
};

/// Draws an arrow at the distance a. It points down for any sign of P. The picture stays empty if
/// the length is not above 0 or if the arrow is too far outside.
void sketchPointLoad(PictureBox& picture, const SketchedMember& member, const PointTexts& load);

/// Draws a hatched trapezoid from a to a + b. The greater intensity is 600 twips high. The sketch
/// ignores signs. The picture stays empty in the same cases.
void sketchUdl(PictureBox& picture, const SketchedMember& member, const UdlTexts& load);

}  // namespace trabeon
