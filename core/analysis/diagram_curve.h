// The points of a moment or shear diagram, taken from the station file.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "core/store/station_reader.h"

namespace trabeon {

/// Which result a diagram or a table shows: &StationRow::moment or &StationRow::shear.
using StationField = std::string_view StationRow::*;

/// A row of the station file on a diagram.
struct CurvePoint {
    double x;                 // on the diagram's axis
    double value;             // with the sign of the file
    std::size_t member, row;  // the row's member, and its place among that member's rows, from 1
    double distance;          // from the member's left joint
    bool isMaximum;           // the row of the member's greatest moment
};

/// Where a member ends or begins on the axis. `left` is the joint at the end of the member on the
/// left, `right` the joint at the start of the member on the right; 0 if there is no such member.
/// They differ where the two members are not neighbours on the beam.
struct CurveJoint {
    double x;
    std::size_t left, right;
};

/// The points of a diagram, up to the end of the file.
struct DiagramCurve {
    std::vector<CurvePoint> points;
    std::vector<CurveJoint> joints;  // joints with results; empty for a single span
    bool whole = false;  // the file has exactly the expected rows of all selected members
    /// The points to label with the greatest and the least value, from 0; 0 without points. If
    /// several points have the value, the label is at the maximum of a member, otherwise at the end
    /// of a member, otherwise at the middle one.
    std::size_t greatest = 0, least = 0;
};

/// The result files of an analysis.
struct ResultTexts {
    std::string_view stations;  // "BM.txt"
    std::string_view maxima;    // "BMMax.txt"; without it no point is a maximum
};

/// One member, from 1, over the distance from its left joint.
[[nodiscard]] DiagramCurve spanCurve(const ResultTexts& results, std::size_t rowsPerMember,
                                     StationField field, std::size_t member);

/// Several members in rising order, laid end to end even if they are not neighbours on the beam.
/// Where two members meet, two points have the same x.
[[nodiscard]] DiagramCurve beamCurve(const ResultTexts& results, std::size_t rowsPerMember,
                                     StationField field, const std::vector<std::size_t>& members);

}  // namespace trabeon
