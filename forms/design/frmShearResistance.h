// Reference table: area of links with two legs per unit length, for each bar size and spacing.
#pragma once

#include "forms/design/table_form.h"

namespace trabeon {

class frmShearResistance : public TableForm {
  public:
    static constexpr const char* Name = "frmShearResistance";

    explicit frmShearResistance(Context& context);

  protected:
    void Form_Load() override;

  private:
    void AsvOSvCal();
};

}  // namespace trabeon
