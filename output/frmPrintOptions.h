// The printing options: what a document contains, and the buttons for the printer and both word
// processors.
#pragma once

#include "core/store/project_file.h"
#include "forms/shared/context.h"
#include "output/output_kinds.h"
#include "toolkit/controls/button.h"
#include "toolkit/controls/check_box.h"
#include "toolkit/controls/frame.h"
#include "toolkit/controls/option_button.h"
#include "toolkit/windows/form.h"

namespace trabeon {

class frmPrintOptions : public Form {
  public:
    static constexpr const char* Name = "frmPrintOptions";

    explicit frmPrintOptions(Context& context);

    [[nodiscard]] OutputKinds Kinds() const;

    CheckBox chkJoint{*this, "Joint Data (Text Format)", OutputKinds().joints};
    CheckBox chkMember{*this, "Member Data (Text Format)", OutputKinds().members};
    CheckBox chkLoad{*this, "Loading Data (Text Format)", OutputKinds().loads};
    CheckBox chkTB{*this, "Trabeon Results", OutputKinds().table};
    CheckBox chkBMSV{*this, "Bending Moment And Shear Force Values", OutputKinds().values};
    CheckBox chkBMSDBY{*this, "Bending Moment And Shear Force Diagram By Members",
                       OutputKinds().diagrams};
    CheckBox chkCBMS{*this, "Continuous Bending Moment And Shear Force Diagram",
                     OutputKinds().continuous};
    CheckBox chkBeamDim{*this, "Beam Dimensions and Properties", OutputKinds().dimensions};
    CheckBox chkDesign{*this, "Design Results", OutputKinds().design};
    Frame Frame1{*this};
    OptionButton optLand{Frame1, "Landscape", true};
    OptionButton optPot{Frame1, "Potrait"};
    Button cmdPrint{*this, "&Print"};
    Button cmdWord{*this, "Use &Word For Windows To Print"};
    Button cmdLotus{*this, "Lotus To Print"};

  protected:
    void Form_Load() override;

  private:
    void cmdPrint_Click();
    void cmdWord_Click();
    void cmdLotus_Click();
    template <class Output, class Processor>
    void output();
    [[nodiscard]] ProjectTitle title();
    [[nodiscard]] std::string tableRemark() const;

    Context& context_;
};

}  // namespace trabeon
