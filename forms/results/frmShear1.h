// The shear force diagram of one member.
#pragma once

#include "forms/results/single_span_diagram.h"

namespace trabeon {

class frmShear1 : public SingleSpanDiagram {
  public:
    static constexpr const char* Name = "frmShear1";

    explicit frmShear1(Context& context)
        : SingleSpanDiagram(context, "Shear Force Diagram", shearDiagram, "frmSData") {}

    Graph& GraphShear1 = chart;
};

}  // namespace trabeon
