// The bending moment diagram of the beam.
#pragma once

#include "forms/results/continuous_diagram.h"

namespace trabeon {

class frmContinuousTB : public ContinuousDiagram {
  public:
    static constexpr const char* Name = "frmContinuousTB";

    explicit frmContinuousTB(Context& context)
        : ContinuousDiagram(context, "Continuous Bending Moment Diagram", momentDiagram,
                            "&Add To Report") {}

    Graph& GraphCMoment = chart;
    ProgressBar& PBCBTB = progress;
};

}  // namespace trabeon
