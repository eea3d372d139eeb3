#include "forms/settings/frmMisc.h"

#include "forms/shared/boxes.h"
#include "forms/shared/status_line.h"

namespace trabeon {

frmMisc::frmMisc(Context& context) : Form("Miscellaneous Properties") {
    placeControls();
    for (auto [box, name, next] :
         {std::tuple<TextBox*, const char*, Control*>{&txtCover, "Cover", &txtLinks},
          {&txtLinks, "The link size", &txthagg},
          {&txthagg, "The aggregate size", &chkrestrict}}) {
        box->GotFocus = [box = box] { box->SelectAll(); };
        acceptNumbers(context, *box, {name, plainNumber, next});
    }
    remarkOnNumbers({&txtCover, &txtLinks, &txthagg});
    cmdOK.Click = [this] { cmdOK_Click(); };
    SetTabOrder({&txtCover, &txtLinks, &txthagg, &chkrestrict, &cmdOK});
}

void frmMisc::placeControls() {
    placeInputs({240, 240, 2100, 450},
                {{lblCover, txtCover, 1200}, {Label3, txtLinks, 1200}, {Label1, txthagg, 1200}});
    // "agg" is the subscript of "h": lower and smaller.
    Label1.Move(Label1.Left(), Label1.Top(), 105, Label1.Height());
    Label2.SetFont("Arial", 7.5, false);
    Label2.Move(Label1.Left() + Label1.Width(), Label1.Top() + 60, 600, Label1.Height());
    txtCover.SetAccessibleName("Cover, mm");
    txtLinks.SetAccessibleName("Assumed link size, mm");
    txthagg.SetAccessibleName("Size of the aggregate, mm");
    chkrestrict.Move(240, 1620, 5400, 315);
    cmdOK.Move(4425, 2100, 1215, 375);
}

MiscProperties frmMisc::Properties() const {
    return {numberIn(txtCover), numberIn(txtLinks), numberIn(txthagg), chkrestrict.Value()};
}

void frmMisc::Form_Load() {
    SetScaleSize(5880, 2595);
}

void frmMisc::cmdOK_Click() {
    Hide();
}

}  // namespace trabeon
