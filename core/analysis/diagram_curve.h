// The points of a moment or shear diagram, taken from the station file.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "core/store/station_reader.h"

namespace trabeon {

/// Which result a diagram or a table shows: &StationRow::moment or &StationRow::shear.
using StationField = std::string_view StationRow::*;

struct CurvePoint {
    double x, value;
};

/// The end of a member on the axis: joint `left` to the left of it, joint `right` to the right.
/// Both are the same but where the members that meet are no neighbours on the beam, and 0 where
/// there is no member on that side.
struct CurveJoint {
    double x;
    std::size_t left, right;
};

/// The points with the signs of the file, as far as the file goes.
struct DiagramCurve {
    std::vector<CurvePoint> points;
    std::vector<CurveJoint> joints;  // none for a single span
    bool whole = false;              // the file had every row of every member asked for
};

/// One member, from 1, over the distance from its left joint.
[[nodiscard]] DiagramCurve spanCurve(std::string_view stations, std::size_t rowsPerMember,
                                     StationField field, std::size_t member);

/// Members, by rising number, laid end to end, one behind the other whatever stands between them
/// on the beam. At the end of each but the last two points share an x.
[[nodiscard]] DiagramCurve beamCurve(std::string_view stations, std::size_t rowsPerMember,
                                     StationField field, const std::vector<std::size_t>& members);

}  // namespace trabeon
