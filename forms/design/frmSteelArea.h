// Reference table: area of 1 to 10 bars of each size.
#pragma once

#include "forms/design/table_form.h"
#include "toolkit/controls/label.h"

namespace trabeon {

class frmSteelArea : public TableForm {
  public:
    static constexpr const char* Name = "frmSteelArea";

    explicit frmSteelArea(Context& context);

    Label Label1{*this, "Number of Bars"};

  protected:
    void Form_Load() override;
};

}  // namespace trabeon
