#include "core/analysis/diagram_curve.h"

#include <algorithm>
#include <cmath>

#include "core/store/maximum_rows.h"
#include "core/text/number_text.h"

namespace trabeon {
namespace {

/// Puts the start or the end of a member at x. A start joins the end of the member before it.
void addJoint(std::vector<CurveJoint>& joints, double x, std::size_t left, std::size_t right) {
    if (left == 0 && !joints.empty())
        joints.back().right = right;
    else
        joints.push_back({x, left, right});
}

/// Of the points that have this value, the one to label.
std::size_t labelledPoint(const std::vector<CurvePoint>& points, std::size_t rowsPerMember,
                          double value) {
    const auto has = [value](const CurvePoint& point) { return point.value == value; };
    const auto isMaximum = [&](const CurvePoint& point) { return has(point) && point.isMaximum; };
    const auto isEnd = [&](const CurvePoint& point) {
        return has(point) && (point.row == 1 || point.row == rowsPerMember);
    };
    auto found = std::find_if(points.begin(), points.end(), isMaximum);
    if (found == points.end())
        found = std::find_if(points.begin(), points.end(), isEnd);
    if (found == points.end()) {
        found = std::find_if(points.begin(), points.end(), has);
        found += (std::find_if_not(found, points.end(), has) - found - 1) / 2;
    }
    return static_cast<std::size_t>(found - points.begin());
}

void findExtremes(DiagramCurve& curve, std::size_t rowsPerMember) {
    const auto lower = [](const CurvePoint& a, const CurvePoint& b) { return a.value < b.value; };
    const auto [least, greatest] =
        std::minmax_element(curve.points.begin(), curve.points.end(), lower);
    if (least == curve.points.end() || !std::isfinite(least->value) ||
        !std::isfinite(greatest->value))
        return;
    curve.least = labelledPoint(curve.points, rowsPerMember, least->value);
    curve.greatest = labelledPoint(curve.points, rowsPerMember, greatest->value);
}

/// Adds the rows of the station file to a curve.
class CurveWriter {
  public:
    CurveWriter(DiagramCurve& curve, StationField field, std::string_view maxima)
        : curve_(curve), field_(field), maxima_(MaximumRows::read(maxima)) {}

    /// The row that the reader has reached, at this place of the axis.
    void add(const StationReader& reader, double x, double distance) {
        const bool isMaximum =
            maximumOf_ != reader.member() && maxima_.contain(reader.member(), reader.row());
        if (isMaximum)
            maximumOf_ = reader.member();
        curve_.points.push_back({x, leadingNumber(reader.row().*field_), reader.member(),
                                 reader.section(), distance, isMaximum});
    }

  private:
    DiagramCurve& curve_;
    StationField field_;
    MaximumRows maxima_;
    std::size_t maximumOf_ = 0;  // the member whose maximum was found last
};

}  // namespace

DiagramCurve spanCurve(const ResultTexts& results, std::size_t rowsPerMember, StationField field,
                       std::size_t member) {
    DiagramCurve curve;
    CurveWriter writer(curve, field, results.maxima);
    StationReader reader(results.stations, rowsPerMember);
    while (!curve.whole && reader.next() && reader.member() <= member) {
        if (reader.member() != member)
            continue;
        const double x = leadingNumber(reader.row().x);
        writer.add(reader, x, x);
        curve.whole = reader.endsMember();
    }
    findExtremes(curve, rowsPerMember);
    return curve;
}

DiagramCurve beamCurve(const ResultTexts& results, std::size_t rowsPerMember, StationField field,
                       const std::vector<std::size_t>& members) {
    DiagramCurve curve;
    CurveWriter writer(curve, field, results.maxima);
    StationReader reader(results.stations, rowsPerMember);
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
        writer.add(reader, distance, x);
        if (reader.endsMember())
            addJoint(curve.joints, distance, *wanted++ + 1, 0);
    }
    curve.whole = wanted == members.end();
    findExtremes(curve, rowsPerMember);
    return curve;
}

}  // namespace trabeon
