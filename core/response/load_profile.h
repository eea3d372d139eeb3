// The loads of a member, added up between the places where something begins or ends.
#pragma once

#include <span>
#include <vector>

#include "core/analysis/member_loads.h"

namespace trabeon {

/// A part of a member in which the sum of all distributed loads goes straight from w1 to w2,
/// positive downward. x is the distance of its left end from the member's left joint. The width is
/// more exact than the difference of two x.
struct LoadStretch {
    double x = 0, width = 0, w1 = 0, w2 = 0;
};

struct LoadProfile {
    /// At least one, from the left joint to the right one without gaps.
    std::vector<LoadStretch> stretches;
    /// The point load at the left end of each stretch, and last that at the right joint; 0 if there
    /// is none.
    std::vector<double> forces;
};

/// The loads must be on the member (see stray_loads.h). A point load within 1e-12 of the length L
/// of a joint is at the joint. A load that ends at most that far beyond the right joint ends there.
/// The cost is that of sorting the loads, however they overlap.
[[nodiscard]] LoadProfile loadProfile(std::span<const PointLoad> points,
                                      std::span<const UdlLoad> udls, double L);

}  // namespace trabeon
