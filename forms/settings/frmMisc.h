// The properties that are common to all sections of the beam. Only its controls keep them.
#pragma once

#include "core/design/misc_properties.h"
#include "forms/shared/context.h"
#include "toolkit/controls/button.h"
#include "toolkit/controls/check_box.h"
#include "toolkit/controls/label.h"
#include "toolkit/controls/text_box.h"
#include "toolkit/windows/form.h"

namespace trabeon {

class frmMisc : public Form {
  public:
    static constexpr const char* Name = "frmMisc";

    explicit frmMisc(Context& context);

    /// The values of the boxes, lengths in mm. A text that is not a number counts as 0.
    [[nodiscard]] MiscProperties Properties() const;

    Label lblCover{*this, "Cover"};
    TextBox txtCover{*this, "25"};
    Label Label3{*this, "Assumed Link Size"};
    TextBox txtLinks{*this, "10"};
    Label Label1{*this, "h"};
    Label Label2{*this, "agg"};
    TextBox txthagg{*this, "0"};
    CheckBox chkrestrict{*this, "restrict the deflection to avoid damage to finishes/partition",
                         true};
    Button cmdOK{*this, "&OK"};

  protected:
    void Form_Load() override;

  private:
    void cmdOK_Click();
    void placeControls();
};

}  // namespace trabeon
