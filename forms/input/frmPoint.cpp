#include "forms/input/frmPoint.h"

#include "forms/input/load_sketches.h"
#include "forms/shared/keys.h"

namespace trabeon {

frmPoint::frmPoint(Context& context)
    : LoadForm(context,
               {"Point Load",
                "Member",
                "Point load",
                {{"Member", 1235}, {"a", 1058}, {"P", 1058}, {"Description of Load", 2540}},
                1995},
               picPt, txtPtD) {
    placeControls();
    cboMember.Click = [this] { DrawPt(); };
    wireBoxes();
    cmdAdd.Click = [this] { cmdAdd_Click(); };
    SetTabOrder(
        {&cboMember, &txtPtA, &txtPtLoad, &txtPtD, &cmdAdd, &cmdRemove, &cmdReport, &ListView1});
}

void frmPoint::placeControls() {
    picPt.Move(margin, 240, 3135, 1575);
    picPt.SetFont("Arial", 8.25, false);
    picPt.SetAccessibleName("Sketch of the load");
    for (Label* label : {&lblMember, &lblPtA, &lblPtLoad, &lblDescribe})
        label->SetFont("Times New Roman", 9.75, true);
    placeInputs({3450, 240, 2820, 410}, {{lblMember, cboMember, 1500},
                                         {lblPtA, txtPtA, 1500},
                                         {lblPtLoad, txtPtLoad, 1500},
                                         {lblDescribe, txtPtD, 2100}});
    SetSmallestScaleSize(8490, 3300);
}

void frmPoint::wireBoxes() {
    for (TextBox* box : {&txtPtA, &txtPtLoad, &txtPtD}) {
        box->SetKeepsToField(true);
        box->Change = [this] {
            DrawPt();
            context_.dataChanged = 1;
        };
    }
    remarkOnNumbers({&txtPtA, &txtPtLoad});
    for (TextBox* box : {&txtPtA, &txtPtLoad})
        box->GotFocus = [box] { box->SelectAll(); };
    txtPtD.GotFocus = [this] { description_GotFocus(); };
    acceptNumbers(context_, txtPtA, {"a", plainNumber, &txtPtLoad});
    acceptNumbers(context_, txtPtLoad, {"P", signedNumber, &txtPtD});
    txtPtD.KeyPress = [this](int& keyAscii) { txtPtD_KeyPress(keyAscii); };
}

void frmPoint::Form_Load() {
    Move(0, 0, 8600, 4500);
    FillFromFiles();
}

void frmPoint::cmdAdd_Click() {
    if (lacksMember())
        return;
    zeroIfNone(txtPtA);
    if (numberIn(txtPtLoad) != 0) {
        picPt.Cls();
        rows_.Add({memberText(), txtPtA.Text(), txtPtLoad.Text(), txtPtD.Text()});
    } else {
        say(context_, "No load added: P is 0");
    }
    txtPtA.SetFocus();
}

void frmPoint::DrawPt() {
    if (numberIn(txtPtLoad) != 0)
        sketchPointLoad(picPt, {member(), chosenLength()}, {txtPtA.Text(), txtPtLoad.Text()});
}

void frmPoint::txtPtD_KeyPress(int keyAscii) {
    if (keyAscii == enterKey)
        txtPtA.SetFocus();
}

}  // namespace trabeon
