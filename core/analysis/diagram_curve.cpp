#include "core/analysis/diagram_curve.h"

#include <cmath>

#include "core/text/number_text.h"

namespace trabeon {
namespace {

/// Puts the end of a member at x: a joint of its own, or the other side of the former member's.
void addJoint(std::vector<CurveJoint>& joints, double x, std::size_t left, std::size_t right) {
    if (left == 0 && !joints.empty())
        joints.back().right = right;
    else
        joints.push_back({x, left, right});
}

}  // namespace

DiagramCurve spanCurve(std::string_view stations, std::size_t rowsPerMember, StationField field,
                       std::size_t member) {
    DiagramCurve curve;
    for (const auto& row : stationRows(stations, rowsPerMember, member))
        curve.points.push_back({leadingNumber(row.x), leadingNumber(row.*field)});
    curve.whole = curve.points.size() == rowsPerMember;
    return curve;
}

DiagramCurve beamCurve(std::string_view stations, std::size_t rowsPerMember, StationField field,
                       const std::vector<std::size_t>& members) {
    DiagramCurve curve;
    StationReader reader(stations, rowsPerMember);
    auto wanted = members.begin();
    double distance = 0;
    double previous = 0;
    while (wanted != members.end() && reader.next()) {
        if (reader.member() != *wanted)
            continue;
        if (reader.section() == 1) {
            previous = 0;
            addJoint(curve.joints, distance, 0, *wanted);
        }
        const double x = leadingNumber(reader.row().x);
        distance += std::fabs(x - previous);
        previous = x;
        curve.points.push_back({distance, leadingNumber(reader.row().*field)});
        if (reader.section() == rowsPerMember)
            addJoint(curve.joints, distance, *wanted++ + 1, 0);
    }
    curve.whole = wanted == members.end();
    return curve;
}

}  // namespace trabeon
