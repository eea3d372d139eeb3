// Forces and rotations at the two ends of a member, in closed form.
#pragma once

#include <cstddef>

#include "core/analysis/span_results.h"

namespace trabeon {

/// Where the member is held. Only the first member can be free at its left end, only the last one
/// at its right end.
enum class Held { atBothEnds, atRightEnd, atLeftEnd };

/// reaction: what the joint gives to the member, upward positive, point loads at the joint
/// included; exactly 0 at a free end. moment: sagging positive. rotation: positive if the member
/// goes down to the right; at a free end it is not set, because it follows from the curve.
struct MemberEnd {
    double reaction = 0, moment = 0, rotation = 0;
};

struct MemberEnds {
    Held held = Held::atBothEnds;
    MemberEnd left, right;
    /// The greatest reaction, point load or distributed load, as a magnitude: rounding errors of
    /// shears are small against it.
    double largestForce = 0;
};

/// The ends of a member, from 1. Each reaction follows from the moments about the other end, so
/// that their sum is a check on the loads. The rotations of a member that is held at both ends are
/// those of the slope deflection equations: with the fixed-end moments mA and mB as magnitudes,
/// L (2 (MA + mA) + MB + mB) / (6 E I) at the left end. A cantilever turns at its support as the
/// neighbouring member does there, or not at all at a fixed end. Sums below 1e-12 of their largest
/// term are 0.
[[nodiscard]] MemberEnds memberEnds(const LoadedBeam& loaded, std::size_t member);

}  // namespace trabeon
