// The sketches of a load on its member: the member is always the same length on the screen.
#pragma once

#include <cstddef>
#include <string>

#include "toolkit/controls/picture_box.h"

namespace trabeon {

/// The member under a load: its number from 1, and its length.
struct SketchedMember {
    std::size_t number;
    double L;
};

/// A load as it is typed.
struct PointTexts {
    std::string a, P;
};
struct UdlTexts {
    std::string a, b, w1, w2;
};

/// Makes the picture one of an arrow at the distance a, pointing down whatever the sign of P.
/// Without a length to scale by, or with a place that cannot be drawn, the picture is left empty.
void sketchPointLoad(PictureBox& picture, const SketchedMember& member, const PointTexts& load);

/// Makes the picture one of a hatched trapezoid from a to a + b whose greater intensity is always
/// 600 twips high; it shows sizes, not signs. Left empty as above.
void sketchUdl(PictureBox& picture, const SketchedMember& member, const UdlTexts& load);

}  // namespace trabeon
