#include "forms/settings/frmOptions.h"

#include <cmath>
#include <limits>

#include "core/text/number_text.h"
#include "forms/shared/boxes.h"
#include "forms/shared/status_line.h"

namespace trabeon {
namespace {

constexpr int minDivisions = 10;

}  // namespace

frmOptions::frmOptions(Context& context) : Form("Plotting Options"), context_(context) {
    fmOptions.Move(120, 60, 7860, 3900);
    lblDivision.Move(240, 315, 3180, 255);
    txtDivision.Move(3480, 255, 900, 345);
    lblDivision2.Move(4500, 315, 1500, 255);
    lblPlaces.Move(240, 780, 3180, 255);
    txtPlaces.Move(3480, 720, 900, 345);
    lblPlaces2.Move(4500, 780, 1500, 255);
    int left = 240;
    for (auto [heading, option, picture, change] :
         {std::tuple{&lblBMD, &lblMOption, &WebMoment, &cmdChangeM},
          {&lblSFD, &lblSOption, &WebShear, &cmdChangeS}}) {
        heading->Move(left, 1290, 2400, 255);
        heading->SetBuddy(*change);
        option->Move(left + 2700, 1290, 900, 255);
        picture->Move(left, 1590, 3600, 1770);
        change->Move(left + 2385, 3420, 1215, 375);
        left += 3780;
    }
    lblDivision.SetBuddy(txtDivision);
    lblPlaces.SetBuddy(txtPlaces);
    cmdChangeM.SetAccessibleName("Change the side of the bending moment diagram");
    cmdChangeS.SetAccessibleName("Change the side of the shear force diagram");
    cmdOptionsOK.Move(6765, 4080, 1215, 375);

    txtDivision.Change = [this] { DisablePlot(context_); };
    txtPlaces.Change = [this] { DisablePlot(context_); };
    for (auto* box : {&txtDivision, &txtPlaces})
        box->GotFocus = [box] { box->SelectAll(); };
    remarkOnNumbers({&txtDivision});
    txtDivision.KeyPress = [this](int& keyAscii) { txtDivision_KeyPress(keyAscii); };
    cmdChangeM.Click = [this] { cmdChangeM_Click(); };
    cmdChangeS.Click = [this] { cmdChangeS_Click(); };
    cmdOptionsOK.Click = [this] { cmdOptionsOK_Click(); };
    SetTabOrder({&txtDivision, &txtPlaces, &cmdChangeM, &cmdChangeS, &cmdOptionsOK});
}

AnalysisSettings frmOptions::Settings() const {
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    return {leadingNumber(txtDivision.Text()), numberOfWholeText(txtPlaces.Text()).value_or(none)};
}

void frmOptions::Form_Load() {
    SetScaleSize(8100, 4575);
    show(WebMoment, "BMBot.gif");
    show(WebShear, "STop.gif");
}

void frmOptions::txtDivision_KeyPress(int& keyAscii) {
    filterKeysAndSay(context_, keyAscii, {"The number of sections", plainNumber});
}

void frmOptions::cmdChangeM_Click() {
    toggle(lblMOption, WebMoment, "BMTop.gif", "BMBot.gif");
}

void frmOptions::cmdChangeS_Click() {
    toggle(lblSOption, WebShear, "SBot.gif", "STop.gif");
}

void frmOptions::toggle(Label& option, PictureView& picture, const char* pictureA,
                        const char* pictureB) {
    DisablePlot(context_);
    const bool toB = option.Caption() == "Option A";
    option.SetCaption(toB ? "Option B" : "Option A");
    show(picture, toB ? pictureB : pictureA);
}

void frmOptions::cmdOptionsOK_Click() {
    const double divisions = std::floor(leadingNumber(txtDivision.Text()));
    if (divisions < minDivisions)
        txtDivision.SetText(std::to_string(minDivisions));
    else if (divisions != leadingNumber(txtDivision.Text()))
        txtDivision.SetText(bareNumber(divisions));
    Hide();
}

void frmOptions::show(PictureView& picture, const char* file) {
    picture.Navigate((context_.folder / file).string());
}

void DisablePlot(Context& context) {
    context.mnuContinuous.SetEnabled(false);
    context.mnuSingle.SetEnabled(false);
    for (const auto* form : {"frmShear1", "frmMoment1", "frmContinuousTB", "frmContinuousS",
                             "frmBMData", "frmSData", "frmAnalysis"})
        context.forms.Unload(form);
}

}  // namespace trabeon
