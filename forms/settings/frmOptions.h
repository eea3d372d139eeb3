// The settings that shape the results. Its controls are the only store of them.
#pragma once

#include "core/analysis/analysis.h"
#include "forms/shared/context.h"
#include "toolkit/controls/button.h"
#include "toolkit/controls/frame.h"
#include "toolkit/controls/label.h"
#include "toolkit/controls/text_box.h"
#include "toolkit/controls/web_browser.h"
#include "toolkit/windows/form.h"

namespace trabeon {

class frmOptions : public Form {
  public:
    static constexpr const char* Name = "frmOptions";

    explicit frmOptions(Context& context);

    /// Equal parts of each span as typed; places that are no number are not a number here either.
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
    WebBrowser WebMoment{fmOptions};
    Button cmdChangeM{fmOptions, "Change"};
    Label lblSFD{fmOptions, "&Shear Force Diagram"};
    Label lblSOption{fmOptions, "Option B"};
    WebBrowser WebShear{fmOptions};
    Button cmdChangeS{fmOptions, "Change"};
    Button cmdOptionsOK{*this, "&Ok"};

  protected:
    void Form_Load() override;

  private:
    void txtDivision_KeyPress(int& keyAscii);
    void cmdChangeM_Click();
    void cmdChangeS_Click();
    void cmdOptionsOK_Click();
    void toggle(Label& option, WebBrowser& picture, const char* pictureA, const char* pictureB);
    void show(WebBrowser& picture, const char* file);

    Context& context_;
};

/// Withdraws all results after a change of an option: the two diagram menus go off, and the forms
/// that show results are unloaded. The result files stay.
void DisablePlot(Context& context);

}  // namespace trabeon
