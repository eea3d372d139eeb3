// Shear links: sets of two legs of 6, 8, 10 or 12 mm at whole spacings from 100 mm up.
#pragma once

#include <string>

namespace trabeon {

/// The area of one leg in mm2. Its pi is 3.1415936512, as in the reference tables.
[[nodiscard]] double legArea(double size);

/// Asv / sv in mm2/mm of sets of links with two legs each.
[[nodiscard]] double linksProvided(double sets, double size, double spacing);

/// The links of a section: their Asv / sv, and their text, " 1Y 8- 250". A section without links
/// has 0 and an empty text.
struct ShearLinks {
    double AsvOsvprov = 0;
    std::string ShearRein;
};

/// The first links whose Asv / sv is above AsvOsvreq (equal is not enough), d in mm. The search
/// goes from the widest spacing, the whole part of 0.75 d (clause 3.4.5.5 of BS 8110: Part 1), down
/// to 100 mm; then to the next size; then to one more set. A section where 0.75 d is below 100, or
/// where 20 sets are too few, has no links.
[[nodiscard]] ShearLinks ProvideShearLinks(double fyv, double d, double AsvOsvreq);

}  // namespace trabeon
