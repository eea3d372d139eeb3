// The deflected shape.
#include <algorithm>
#include <cmath>

#include "forms/drawing/picture_parts.h"

namespace trabeon {
namespace {

constexpr double lineWidth = 1.5, selectedWidth = 2.5;
constexpr double dotRadius = 2.2, besideDot = 3;
constexpr double narrow = 3;  // pixels: three points show all that there is to see

struct Curve {
    double zero = 0;   // y of the beam without loads
    double scale = 0;  // pixels for one unit of deflection
};

/// The shape fills its rows.
Curve curveOf(const Stage& stage, const BeamSketch& sketch) {
    double lowest = 0, highest = 0;
    for (const auto& member : sketch.deflections) {
        lowest = std::max(lowest, member.greatest.value);
        for (const auto& point : member.points)
            highest = std::min(highest, point.value);
    }
    const double room = stage.rows.deflectionsEnd - stage.rows.deflections;
    const double scale = lowest > highest ? room / (lowest - highest) : 0;
    return {stage.rows.deflections - highest * scale, scale};
}

void drawMember(const Stage& stage, const BeamSketch& sketch, const Curve& curve,
                std::size_t member) {
    const auto& shape = sketch.deflections[member - 1];
    const auto at = [&](double x, double value) {
        return DrawnPoint{stage.place(x), curve.zero + curve.scale * value};
    };
    const auto& first = shape.points.front();
    const auto& last = shape.points.back();
    const bool selected = stage.selected.isMember(member);
    PathShape path{
        {},
        Pen{selected ? HighlightColour : ink::deflection, selected ? selectedWidth : lineWidth}};
    if ((last.x - first.x) * stage.scale < narrow)
        path.points = {at(first.x, first.value),
                       at(sketch.joints[member - 1].x + shape.greatest.x, shape.greatest.value),
                       at(last.x, last.value)};
    else
        for (const auto& point : shape.points)
            path.points.push_back(at(point.x, point.value));
    stage.drawing.push_back(std::move(path));
}

void labelMember(const Stage& stage, const BeamSketch& sketch, const Curve& curve,
                 std::size_t member) {
    const auto& greatest = sketch.deflections[member - 1].greatest;
    if (greatest.value == 0)
        return;
    const bool selected = stage.selected.isMember(member);
    const Colour colour = selected ? HighlightColour : ink::deflection;
    const DrawnPoint dot{stage.place(sketch.joints[member - 1].x + greatest.x),
                         curve.zero + curve.scale * greatest.value};
    const double beside =
        greatest.value > 0 ? dot.y + besideDot : dot.y - besideDot - stage.textHeight();
    const auto text = shownInPicture(greatest.value) + " at " + shownInPicture(greatest.x);
    if (putLabel(stage, text, {dot.x, beside}, {colour, selected, Align::middle}))
        stage.drawing.push_back(ArcShape{dot, dotRadius, 0, 360, std::nullopt, colour});
}

/// The selected member first, then by the size of the deflection.
std::vector<std::size_t> byImportance(const Stage& stage, const BeamSketch& sketch) {
    std::vector<std::size_t> members(sketch.deflections.size());
    for (std::size_t k = 0; k < members.size(); ++k)
        members[k] = k + 1;
    const auto rank = [&](std::size_t member) {
        return std::pair(!stage.selected.isMember(member),
                         -std::fabs(sketch.deflections[member - 1].greatest.value));
    };
    std::stable_sort(members.begin(), members.end(),
                     [&](std::size_t a, std::size_t b) { return rank(a) < rank(b); });
    return members;
}

}  // namespace

void drawDeflections(const Stage& stage, const BeamSketch& sketch) {
    if (sketch.deflections.empty())
        return;
    const auto curve = curveOf(stage, sketch);
    stage.drawing.push_back(PathShape{{{stage.place(sketch.joints.front().x), curve.zero},
                                       {stage.place(sketch.joints.back().x), curve.zero}},
                                      Pen{BehindColour, 1}});
    for (std::size_t member = 1; member <= sketch.deflections.size(); ++member)
        drawMember(stage, sketch, curve, member);
    for (const auto member : byImportance(stage, sketch))
        labelMember(stage, sketch, curve, member);
}

}  // namespace trabeon
