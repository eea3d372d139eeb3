// Bars for the two faces of a section: sizes 10, 12, 16, 20 and 25 mm.
#pragma once

#include "core/design/misc_properties.h"
#include "core/design/reinforcement.h"

namespace trabeon {

/// "R" for steel of up to 250 N/mm2, "Y" for stronger steel.
[[nodiscard]] char gradeLetter(double strength);

/// Equal bars in one face.
struct Bars {
    double count = 0, size = 0;
};

/// The fewest bars of a size, in mm, whose area reaches `area`, in mm2; equal is enough. At least
/// two; none for an area of 0 or less.
[[nodiscard]] double barsNeeded(double area, double size);

/// The breadth in mm that a row of bars takes, with links and covers. Departs from clause 3.12.11.1
/// of BS 8110: Part 1: the clear gap is 2 hagg + 5, not hagg + 5.
[[nodiscard]] double breadthNeeded(const Bars& bars, const MiscProperties& misc);

/// The bars for an area in mm2 in a beam of breadth b in mm. Tries the sizes in rising order, and
/// takes the last one that fits (strictly narrower than b). Stops at the first that fits with two
/// bars. 25 mm is accepted even if it does not fit.
[[nodiscard]] Bars barsFor(double area, double b, const MiscProperties& misc);

/// Chooses the bars for Asreq and for Aspreq, which are finite, and sets Asprov, Aspprov and
/// MomentRein. b in mm, fy in N/mm2.
void ProvideReinforcement(double b, double fy, Reinforcement& steel, const MiscProperties& misc);

}  // namespace trabeon
