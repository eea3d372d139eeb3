// The shear force diagram of the beam.
#pragma once

#include "forms/results/continuous_diagram.h"

namespace trabeon {

class frmContinuousS : public ContinuousDiagram {
  public:
    static constexpr const char* Name = "frmContinuousS";

    explicit frmContinuousS(Context& context)
        : ContinuousDiagram(context, "Continuous Shear Force Diagram", shearDiagram,
                            "Add To Repor&t") {}

    Graph& GraphCshear = chart;
    ProgressBar& PBCS = progress;
};

}  // namespace trabeon
