// A beam as an engineer draws it: supports in their symbols, loads and reactions with values, the
// deflected shape. As shapes, for any surface.
#pragma once

#include <utility>
#include <vector>

#include "forms/drawing/beam_sketch.h"
#include "forms/drawing/stage.h"

namespace trabeon {

/// Where a picture goes, in pixels. The beam is `margin` away from the left and the right edge.
struct PictureSpace {
    double width = 0, height = 0;
    TextMeasure measure;
    double margin = 40;
};

class BeamPicture {
  public:
    /// Labels never come upon each other: those of loads give way to those of deflections, and
    /// these to those of supports. Only the selected part is in the highlight colour.
    BeamPicture(const BeamSketch& sketch, const PictureSpace& space, const BeamPart& selected = {});

    [[nodiscard]] const Drawing& drawing() const& { return drawing_; }
    [[nodiscard]] Drawing drawing() && { return std::move(drawing_); }

    /// The joint or the member at a place. A joint is below the beam's line, around its support.
    [[nodiscard]] BeamPart partAt(double x, double y) const;

  private:
    Drawing drawing_;
    std::vector<double> joints_;  // their places
    double beamLine_ = 0;
};

}  // namespace trabeon
