// The value table of bending moments of one member.
#pragma once

#include "forms/results/frmMoment1.h"
#include "forms/results/value_table.h"

namespace trabeon {

class frmBMData : public ValueTable {
  public:
    static constexpr const char* Name = "frmBMData";

    explicit frmBMData(Context& context)
        : ValueTable(context, "Bending Moment Values", "Bending Moment", &StationRow::moment) {}

  protected:
    SingleSpanDiagram& diagram() const override { return context().forms.Get<frmMoment1>(); }
};

}  // namespace trabeon
