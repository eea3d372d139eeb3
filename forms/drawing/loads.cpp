// The loads above the beam. Point loads stand on the bands.
#include <algorithm>
#include <cmath>

#include "forms/drawing/picture_parts.h"
#include "forms/drawing/symbols.h"

namespace trabeon {
namespace {

constexpr double leastHeight = 6, leastArrow = 14;  // of what is to be seen at all
constexpr double bandShare = 0.45;                  // of the height, where there are both kinds
constexpr double arrowsFrom = 8;                    // width and height of a band with arrows
constexpr double beamHalf = 2;
constexpr double gap = 2, besideArrow = 6;
constexpr double sameValue = 1e-9;

double largestOf(const SketchBand& band) {
    return std::max(std::fabs(band.w1), std::fabs(band.w2));
}

class Loads {
  public:
    Loads(const Stage& stage, const BeamSketch& sketch)
        : stage_(stage), sketch_(sketch), base_(stage.rows.beam - beamHalf) {
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

    void draw() const {
        for (const auto& band : sketch_.bands)
            drawBand(band);
        for (const auto& force : sketch_.forces)
            drawForce(force);
        labelAll();
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

    /// The highest place of the bands that reach in between two x of the beam.
    [[nodiscard]] double topBetween(double from, double to) const {
        double top = base_;
        auto band = std::lower_bound(sketch_.bands.begin(), sketch_.bands.end(), from,
                                     [](const SketchBand& each, double x) { return each.x2 < x; });
        for (; band != sketch_.bands.end() && band->x1 <= to; ++band)
            for (const double x : {std::max(from, band->x1), std::min(to, band->x2)})
                top = std::min(top, topAt(*band, x));
        return top;
    }

    void drawBand(const SketchBand& band) const {
        const double left = stage_.place(band.x1), right = stage_.place(band.x2);
        const Pen pen{colourOf(band.member), 1};
        PathShape area{{{left, base_}, {left, topAt(band, band.x1)}},
                       pen,
                       isSelected(band.member) ? ink::selectedFill : ink::loadFill};
        if (band.w1 * band.w2 < 0) {
            const double zero = band.w1 / (band.w1 - band.w2);
            area.points.push_back({left + zero * (right - left), base_});
        }
        area.points.insert(area.points.end(), {{right, topAt(band, band.x2)}, {right, base_}});
        stage_.drawing.push_back(std::move(area));
        if (right - left < arrowsFrom)
            return;
        for (const auto& [x, w] : {std::pair{left, band.w1}, {right, band.w2}})
            if (heightOf(band, w) >= arrowsFrom)
                addLoadArrow(x, base_, heightOf(band, w), w, pen);
    }

    /// An arrow that stands at y, or hangs there if the load is upward.
    void addLoadArrow(double x, double y, double height, double load, const Pen& pen) const {
        addArrow(stage_.drawing, {x, load > 0 ? y - height : y}, {x, load > 0 ? y : y - height},
                 pen);
    }

    [[nodiscard]] double heightOf(const SketchForce& force) const {
        return std::max(leastArrow, std::fabs(force.P) * forceScale_);
    }
    void drawForce(const SketchForce& force) const {
        const double x = stage_.place(force.x), y = topBetween(force.x, force.x) - 1;
        const double height = heightOf(force);
        addLoadArrow(x, y, height, force.P, {colourOf(force.member), 2});
        stage_.labels.take({x - 3, y - height, x + 3, y});
    }

    void labelForce(const SketchForce& force) const {
        const double tail = topBetween(force.x, force.x) - 1 - heightOf(force);
        putLabel(stage_, shownInPicture(std::fabs(force.P)),
                 {stage_.place(force.x), tail - stage_.textHeight()}, styleOf(force.member));
    }
    [[nodiscard]] LabelStyle styleOf(std::size_t member, Align align = Align::middle) const {
        return {colourOf(member), isSelected(member), align};
    }

    /// A value on top of the bands, beside or over a place.
    void labelBand(const SketchBand& band, double x, double w, Align align) const {
        if (w == 0)
            return;
        const auto text = shownInPicture(std::fabs(w));
        const double aside = align == Align::left    ? besideArrow
                             : align == Align::right ? -besideArrow
                                                     : 0;
        const double wide = stage_.measure(text, true).width / stage_.scale;
        const double before = align == Align::left ? 0 : align == Align::right ? 1 : 0.5;
        const double inside = wide / 100;  // the next band only touches
        const double top = topBetween(x - before * wide + inside, x + (1 - before) * wide - inside);
        putLabel(stage_, text, {stage_.place(x) + aside, top - gap - stage_.textHeight()},
                 styleOf(band.member, align));
    }
    void labelBand(const SketchBand& band) const {
        if (std::fabs(band.w1 - band.w2) > sameValue * largestOf(band)) {
            labelBand(band, band.x1, band.w1, Align::left);
            labelBand(band, band.x2, band.w2, Align::right);
        } else {
            labelBand(band, (band.x1 + band.x2) / 2, band.w1, Align::middle);
        }
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
    double bandScale_ = 0, forceScale_ = 0;  // pixels for one unit
};

}  // namespace

void drawLoads(const Stage& stage, const BeamSketch& sketch) {
    Loads(stage, sketch).draw();
}

}  // namespace trabeon
