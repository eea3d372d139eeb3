// The settings of the analysis and of the diagrams. Only its controls keep them.
#pragma once

#include "core/analysis/analysis.h"
#include "forms/shared/context.h"
#include "toolkit/controls/button.h"
#include "toolkit/controls/frame.h"
#include "toolkit/controls/label.h"
#include "toolkit/controls/picture_view.h"
#include "toolkit/controls/text_box.h"
#include "toolkit/windows/form.h"

namespace trabeon {

class frmOptions : public Form {
  public:
    static constexpr const char* Name = "frmOptions";

    explicit frmOptions(Context& context);

    /// The values of the boxes. Decimal places that are not a whole number give NaN.
    [[nodiscard]] AnalysisSettings Settings() const;

    Frame fmOptions{*this, ""};
    Label lblDivision{fmOptions, "Divide Beam To"};
    TextBox txtDivision{fmOptions, "10"};
    Label lblDivision2{fmOptions, "Sections"};
    Label lblPlaces{fmOptions, "Maximum Bending Moment Correct To"};
    TextBox txtPlaces{fmOptions, "3"};
    Label lblPlaces2{fmOptions, "Decimal Places"};
    Label lblBMD{fmOptions, "&Bending Moment Diagram"};
    Label lblMOption{fmOptions, "Option B"};
    PictureView WebMoment{fmOptions};
    Button cmdChangeM{fmOptions, "Change"};
    Label lblSFD{fmOptions, "&Shear Force Diagram"};
    Label lblSOption{fmOptions, "Option B"};
    PictureView WebShear{fmOptions};
    Button cmdChangeS{fmOptions, "Change"};
    Button cmdOptionsOK{*this, "&Ok"};

  protected:
    void Form_Load() override;

  private:
    void txtDivision_KeyPress(int& keyAscii);
    void cmdChangeM_Click();
    void cmdChangeS_Click();
    void cmdOptionsOK_Click();
    void toggle(Label& option, PictureView& picture, const char* pictureA, const char* pictureB);
    void show(PictureView& picture, const char* file);

    Context& context_;
};

/// Hides all results after a change of an option. Disables the two diagram menus and unloads the
/// forms that show results. The result files stay.
void DisablePlot(Context& context);

}  // namespace trabeon
