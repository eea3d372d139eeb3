// The bending moment diagram of one member.
#pragma once

#include "forms/results/single_span_diagram.h"

namespace trabeon {

class frmMoment1 : public SingleSpanDiagram {
  public:
    static constexpr const char* Name = "frmMoment1";

    explicit frmMoment1(Context& context)
        : SingleSpanDiagram(context, "Bending Moment Diagram", momentDiagram, "frmBMData") {}

    Graph& GraphMoment1 = chart;
};

}  // namespace trabeon
