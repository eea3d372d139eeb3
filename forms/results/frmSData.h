// The value table of shear forces of one member.
#pragma once

#include "forms/results/frmShear1.h"
#include "forms/results/value_table.h"

namespace trabeon {

class frmSData : public ValueTable {
  public:
    static constexpr const char* Name = "frmSData";

    explicit frmSData(Context& context)
        : ValueTable(context, "Shear Force Values", "Shear Force", &StationRow::shear) {}

  protected:
    SingleSpanDiagram& diagram() const override { return context().forms.Get<frmShear1>(); }
};

}  // namespace trabeon
