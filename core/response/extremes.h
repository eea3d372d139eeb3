// The greatest and the least value of a member's curves, with their places.
#pragma once

#include "core/response/member_response.h"

namespace trabeon {

/// A value of a curve, and its distance from the left joint.
struct Extreme {
    double value = 0, x = 0;
};

struct Extremes {
    Extreme greatest, least;
};

/// Values that differ by less than this part of the curve's greatest magnitude count as equal. Of
/// equal extremes the leftmost counts.
inline constexpr double equalExtremes = 1e-9;

/// Of the whole member, both joints included. The places are the joints and the roots of the
/// curve's slope, and for moment and shear also the breakpoints.
[[nodiscard]] Extremes extremesOf(const MemberResponse& member, Quantity quantity);

/// The deflection of greatest magnitude, with its sign: at a root of the rotation, or at a joint.
[[nodiscard]] Extreme greatestDeflection(const MemberResponse& member);

}  // namespace trabeon
