// The deflected shape.
#include <algorithm>
#include <cmath>

#include "forms/drawing/picture_parts.h"
#include "forms/drawing/skyline.h"

namespace trabeon {
namespace {

constexpr double lineWidth = 1.5, selectedWidth = 2.5;
constexpr double dotRadius = 2.2, besideDot = 3, farFromDot = 8;
constexpr double narrow = 3;  // pixels: three points show all that there is to see

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

class Deflections {
  public:
    Deflections(const Stage& stage, const BeamSketch& sketch) : stage_(stage), sketch_(sketch) {
        double lowest = 0, highest = 0;
        for (const auto& member : sketch.deflections) {
            lowest = std::max(lowest, member.greatest.value);
            for (const auto& point : member.points)
                highest = std::min(highest, point.value);
        }
        const double room = stage.rows.deflectionsEnd - stage.rows.deflections;
        scale_ = lowest > highest ? room / (lowest - highest) : 0;
        zero_ = stage.rows.deflections - highest * scale_;
        line_ = Skyline(stage.width, zero_);
    }

    void draw() {
        stage_.drawing.push_back(
            PathShape{{at(sketch_.joints.front().x, 0), at(sketch_.joints.back().x, 0)},
                      Pen{BehindColour, 1}});
        for (std::size_t member = 1; member <= sketch_.deflections.size(); ++member)
            drawMember(member);
        for (const auto member : byImportance(stage_, sketch_))
            labelMember(member);
    }

  private:
    [[nodiscard]] DrawnPoint at(double x, double value) const {
        return {stage_.place(x), zero_ + scale_ * value};
    }
    /// Where the greatest deflection of a member is.
    [[nodiscard]] DrawnPoint greatestAt(std::size_t member) const {
        const auto& greatest = sketch_.deflections[member - 1].greatest;
        return at(sketch_.joints[member - 1].x + greatest.x, greatest.value);
    }
    [[nodiscard]] Colour colourOf(std::size_t member) const {
        return stage_.selected.isMember(member) ? HighlightColour : ink::deflection;
    }

    void drawMember(std::size_t member) {
        const auto& points = sketch_.deflections[member - 1].points;
        const auto& first = points.front();
        const auto& last = points.back();
        const double width = stage_.selected.isMember(member) ? selectedWidth : lineWidth;
        PathShape path{{}, Pen{colourOf(member), width}};
        if ((last.x - first.x) * stage_.scale < narrow)
            path.points = {at(first.x, first.value), greatestAt(member), at(last.x, last.value)};
        else
            for (const auto& point : points)
                path.points.push_back(at(point.x, point.value));
        for (std::size_t k = 1; k < path.points.size(); ++k)
            line_.addLine(path.points[k - 1], path.points[k]);
        stage_.drawing.push_back(std::move(path));
    }

    /// A label is beyond the curve, close to its place; where the curve is in the way there is
    /// none, but for the selected member.
    void labelMember(std::size_t member) const {
        const auto& greatest = sketch_.deflections[member - 1].greatest;
        if (greatest.value == 0)
            return;
        const bool selected = stage_.selected.isMember(member);
        const LabelStyle style{colourOf(member), selected, Align::middle};
        const auto text = shownInPicture(greatest.value) + " at " + shownInPicture(greatest.x);
        const auto dot = greatestAt(member);
        const auto [left, right] = spanOf(stage_, text, dot.x, style);
        const double free =
            greatest.value > 0 ? line_.bottomBetween(left, right) : line_.topBetween(left, right);
        if (std::fabs(free - dot.y) > farFromDot && !selected)
            return;
        const double top =
            greatest.value > 0 ? free + besideDot : free - besideDot - stage_.textHeight();
        if (putLabel(stage_, text, {dot.x, top}, style))
            stage_.drawing.push_back(ArcShape{dot, dotRadius, 0, 360, std::nullopt, style.colour});
    }

    const Stage& stage_;
    const BeamSketch& sketch_;
    double zero_ = 0, scale_ = 0;  // y of the beam without loads; pixels for one unit
    Skyline line_{0, 0};
};

}  // namespace

void drawDeflections(const Stage& stage, const BeamSketch& sketch) {
    if (sketch.deflections.empty())
        return;
    Deflections(stage, sketch).draw();
}

}  // namespace trabeon
