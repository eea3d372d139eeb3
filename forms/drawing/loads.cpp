// The loads above the beam. Point loads are on top of the bands.
#include <algorithm>
#include <cmath>

#include "forms/drawing/picture_parts.h"
#include "forms/drawing/skyline.h"
#include "forms/drawing/symbols.h"

namespace trabeon {
namespace {

constexpr double leastHeight = 6, leastArrow = 14;  // of what is to be seen at all
constexpr double bandShare = 0.45;                  // of the height, where there are both kinds
constexpr double arrowsFrom = 8;                    // width and height of a band with arrows
constexpr double beamHalf = 2;
constexpr double outlinedFrom = 3, arrowRoom = 1.5;
constexpr double gap = 2, besideArrow = 6;
constexpr double sameValue = 1e-9;

double largestOf(const SketchBand& band) {
    return std::max(std::fabs(band.w1), std::fabs(band.w2));
}

class Loads {
  public:
    Loads(const Stage& stage, const BeamSketch& sketch)
        : stage_(stage),
          sketch_(sketch),
          base_(stage.rows.beam - beamHalf),
          tops_(stage.width, base_) {
        double band = 0, force = 0;
        for (const auto& each : sketch.bands)
            band = std::max(band, largestOf(each));
        for (const auto& each : sketch.forces)
            force = std::max(force, std::fabs(each.P));
        const double room = base_ - stage.rows.loads;
        const double share = force == 0 ? 1 : bandShare;
        bandScale_ = band > 0 ? share * room / band : 0;
        forceScale_ = force > 0 ? (band > 0 ? 1 - share : 1) * room / force : 0;
    }

    /// Returns how many arrows had no room.
    std::size_t draw() {
        for (const auto& band : sketch_.bands)
            drawBand(band);
        std::size_t leftOut = 0;
        for (const auto& force : sketch_.forces)
            leftOut += drawForce(force) ? 0 : 1;
        labelAll();
        return leftOut;
    }

  private:
    [[nodiscard]] bool isSelected(std::size_t member) const {
        return stage_.selected.isMember(member);
    }
    [[nodiscard]] Colour colourOf(std::size_t member) const {
        return isSelected(member) ? HighlightColour : ink::load;
    }

    /// A low band is drawn high enough to be seen.
    [[nodiscard]] double heightOf(const SketchBand& band, double w) const {
        const double scale = std::max(bandScale_, leastHeight / largestOf(band));
        return std::fabs(w) * scale;
    }
    [[nodiscard]] double topAt(const SketchBand& band, double x) const {
        const double part = (x - band.x1) / (band.x2 - band.x1);
        return base_ - heightOf(band, band.w1 + (band.w2 - band.w1) * part);
    }

    void drawBand(const SketchBand& band) {
        const double left = stage_.place(band.x1), right = stage_.place(band.x2);
        std::vector<DrawnPoint> tops{{left, topAt(band, band.x1)}, {right, topAt(band, band.x2)}};
        if (band.w1 * band.w2 < 0) {
            const double zero = band.w1 / (band.w1 - band.w2);
            tops.insert(tops.begin() + 1, {left + zero * (right - left), base_});
        }
        for (std::size_t k = 1; k < tops.size(); ++k)
            tops_.addLine(tops[k - 1], tops[k]);
        const Pen pen{colourOf(band.member), 1};
        const bool outlined = right - left >= outlinedFrom;
        PathShape area{{{left, base_}},
                       outlined ? std::optional(pen) : std::nullopt,
                       isSelected(band.member) ? ink::selectedFill : ink::loadFill};
        area.points.insert(area.points.end(), tops.begin(), tops.end());
        area.points.push_back({right, base_});
        stage_.drawing.push_back(std::move(area));
        if (right - left >= arrowsFrom)
            for (const auto& [x, w] : {std::pair{left, band.w1}, {right, band.w2}})
                if (heightOf(band, w) >= arrowsFrom)
                    addLoadArrow(x, base_, heightOf(band, w), w, pen);
    }

    /// An arrow down to y, or up from y if the load is upward.
    void addLoadArrow(double x, double y, double height, double load, const Pen& pen) const {
        addArrow(stage_.drawing, {x, load > 0 ? y - height : y}, {x, load > 0 ? y : y - height},
                 pen);
    }

    [[nodiscard]] double heightOf(const SketchForce& force) const {
        return std::max(leastArrow, std::fabs(force.P) * forceScale_);
    }
    /// The place on top of the bands where the arrow of a point load ends.
    [[nodiscard]] DrawnPoint footOf(const SketchForce& force) const {
        const double x = stage_.place(force.x);
        return {x, tops_.topBetween(x, x) - 1};
    }
    bool drawForce(const SketchForce& force) const {
        const auto [x, y] = footOf(force);
        const double height = heightOf(force);
        const Box room{x - arrowRoom, y - height, x + arrowRoom, y};
        if (!stage_.labels.isFree(room))
            return false;
        stage_.labels.take(room);
        addLoadArrow(x, y, height, force.P, {colourOf(force.member), 2});
        return true;
    }

    void labelForce(const SketchForce& force) const {
        const auto [x, y] = footOf(force);
        putLabel(stage_, shownInPicture(std::fabs(force.P)),
                 {x, y - heightOf(force) - stage_.textHeight()},
                 styleOf(force.member, Align::middle));
    }
    [[nodiscard]] LabelStyle styleOf(std::size_t member, Align align) const {
        return {colourOf(member), isSelected(member), align};
    }

    /// The value w of a band on top of it, beside or over the place x. Not where another band is in
    /// the way.
    bool labelBand(const SketchBand& band, double x, double w, Align align) const {
        if (w == 0)
            return false;
        const auto text = shownInPicture(std::fabs(w));
        const auto style = styleOf(band.member, align);
        const double aside = align == Align::left    ? besideArrow
                             : align == Align::right ? -besideArrow
                                                     : 0;
        const double place = stage_.place(x) + aside;
        const auto [left, right] = spanOf(stage_, text, place, style);
        const double top = tops_.topBetween(left, right);
        const double own = base_ - heightOf(band, largestOf(band));
        return top >= own - 1 &&
               putLabel(stage_, text, {place, top - gap - stage_.textHeight()}, style);
    }
    void labelBand(const SketchBand& band) const {
        if (std::fabs(band.w1 - band.w2) > sameValue * largestOf(band)) {
            labelBand(band, band.x1, band.w1, Align::left);
            labelBand(band, band.x2, band.w2, Align::right);
            return;
        }
        for (const double part : {0.5, 0.25, 0.75})  // an arrow may be in the middle
            if (labelBand(band, band.x1 + part * (band.x2 - band.x1), band.w1, Align::middle))
                return;
    }

    /// Those of the selected member first.
    void labelAll() const {
        for (const bool selected : {true, false}) {
            for (const auto& force : sketch_.forces)
                if (isSelected(force.member) == selected)
                    labelForce(force);
            for (const auto& band : sketch_.bands)
                if (isSelected(band.member) == selected)
                    labelBand(band);
        }
    }

    const Stage& stage_;
    const BeamSketch& sketch_;
    const double base_;                      // y on top of the beam's line
    Skyline tops_;                           // of the bands
    double bandScale_ = 0, forceScale_ = 0;  // pixels for one unit
};

}  // namespace

std::size_t drawLoads(const Stage& stage, const BeamSketch& sketch) {
    return Loads(stage, sketch).draw();
}

}  // namespace trabeon
