// Points of a curve, for drawing only.
#pragma once

#include <vector>

#include "core/response/member_response.h"

namespace trabeon {

struct PolylinePoint {
    double x = 0, value = 0;
};

/// Points of a member's curve from its left to its right joint, at most `spacing` apart (a length
/// above 0). Straight pieces have their two ends only. Every corner is a point, and a jump is two
/// points with the same x, also at the joints: the shear begins and ends at the shear just outside
/// the member's point loads.
[[nodiscard]] std::vector<PolylinePoint> polylineOf(const MemberResponse& member, Quantity quantity,
                                                    double spacing);

}  // namespace trabeon
