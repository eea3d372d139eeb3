#include "forms/input/frmUDL.h"

#include <algorithm>

#include "forms/input/load_sketches.h"
#include "forms/shared/keys.h"
#include "toolkit/outside/outside.h"

namespace trabeon {

frmUDL::frmUDL(Context& context)
    : LoadForm(context,
               {"Uniformly Distributed Load",
                "&Member",
                "Distributed load",
                {{"Member", 1235},
                 {"a", 882},
                 {"b", 882},
                 {"w1", 882},
                 {"w2", 882},
                 {"Description of Load", 2540}},
                2610},
               picUDL, txtUDLD) {
    placeControls();
    cboMember.Click = [this] { DrawUDL(); };
    cboMember.KeyPress = [this](int& keyAscii) { cboMember_KeyPress(keyAscii); };
    wireBoxes();
    cmdPlus.Click = [this] { cmdPlus_Click(); };
    cmdL.Click = [this] { cmdL_Click(); };
    cmdAdd.Click = [this] { cmdAdd_Click(); };
    SetTabOrder({&cboMember, &txtUdlA, &txtUDLB, &txtUDLw1, &txtUDLw2, &txtUDLD, &cmdAdd,
                 &cmdRemove, &cmdReport, &ListView1, &cmdPlus, &cmdL});
}

void frmUDL::placeControls() {
    picUDL.Move(margin, 120, 3135, 1575);
    picUDL.SetFont("Arial", 8.25, false);
    picUDL.SetAccessibleName("Sketch of the load");
    for (Label* label : {&lblMember, &lbla, &lblb, &lblw1, &lblw2, &lblUDLD})
        label->SetFont("Times New Roman", 9.75, true);
    placeInputs({3390, 120, 3690, 405}, {{lblMember, cboMember, 1275},
                                         {lbla, txtUdlA, 1200},
                                         {lblb, txtUDLB, 1200},
                                         {lblw1, txtUDLw1, 1275},
                                         {lblw2, txtUDLw2, 1275},
                                         {lblUDLD, txtUDLD, 1275}});
    cmdPlus.SetAccessibleName("Start where the last load ends");
    cmdPlus.SetToolTipText("a becomes a + b: the load starts where the last one ended (+)");
    cmdL.SetAccessibleName("Run to the right end");
    cmdL.SetToolTipText("b becomes L - a: the load runs to the right end of the member (L)");
    for (auto [button, box] : {std::pair{&cmdPlus, &txtUdlA}, {&cmdL, &txtUDLB}})
        button->Move(box->Left() + box->Width(), box->Top() + 45, 75, 255);
    SetSmallestScaleSize(8490, 3900);
}

void frmUDL::wireBoxes() {
    remarkOnNumbers({&txtUdlA, &txtUDLB, &txtUDLw1, &txtUDLw2});
    for (TextBox* box : numberBoxes_) {
        box->SetKeepsToField(true);
        box->GotFocus = [box] { box->SelectAll(); };
        box->Change = [this] {
            DrawUDL();
            context_.dataChanged = 1;
        };
    }
    txtUDLD.SetKeepsToField(true);
    txtUDLD.GotFocus = [this] { txtUDLD_GotFocus(); };
    txtUdlA.KeyPress = [this](int& keyAscii) { txtUdlA_KeyPress(keyAscii); };
    txtUDLB.KeyPress = [this](int& keyAscii) { txtUDLB_KeyPress(keyAscii); };
    acceptNumbers(context_, txtUDLw1, {"w1", signedNumber, &txtUDLw2});
    acceptNumbers(context_, txtUDLw2, {"w2", signedNumber, &txtUDLD});
    txtUDLD.KeyPress = [this](int& keyAscii) { txtUDLD_KeyPress(keyAscii); };
}

void frmUDL::Form_Load() {
    Move(0, 0, 8600, 5000);
    FillFromFiles();
}

void frmUDL::cboMember_KeyPress(int& keyAscii) {
    if (keyAscii != 'M' && keyAscii != 'm')
        return;
    txtUdlA.SetFocus();
    keyAscii = 0;  // otherwise the list selects its next entry with this letter
}

void frmUDL::txtUdlA_KeyPress(int& keyAscii) {
    if (keyAscii == '+') {
        setNumber(txtUdlA, numberIn(txtUdlA) + numberIn(txtUDLB));
        txtUDLB.SetFocus();
        keyAscii = 0;
        return;
    }
    filterKeysAndSay(context_, keyAscii, {"a", plainNumber, &txtUDLB});
}

void frmUDL::txtUDLB_KeyPress(int& keyAscii) {
    const bool isRest = keyAscii == 'L' || keyAscii == 'l';
    if (const double L = isRest ? chosenLength() : 0; L > 0) {
        setNumber(txtUDLB, L - numberIn(txtUdlA));
        keyAscii = 0;
        return;
    }
    filterKeysAndSay(context_, keyAscii, {"b", plainNumber, &txtUDLw1});
}

void frmUDL::txtUDLD_KeyPress(int keyAscii) {
    if (keyAscii != enterKey)
        return;
    zeroIfNone(txtUdlA);
    if (numberIn(txtUDLB) == 0)
        txtUDLB.SetFocus();
    zeroIfNone(txtUDLw1);
    zeroIfNone(txtUDLw2);
    if (std::none_of(numberBoxes_.begin(), numberBoxes_.end(),
                     [](const TextBox* box) { return box->Text().empty(); }))
        cmdAdd_Click();
}

void frmUDL::txtUDLD_GotFocus() {
    description_GotFocus();
    context_.dataChanged = 1;
}

void frmUDL::cmdPlus_Click() {
    int key = '+';
    txtUdlA_KeyPress(key);
}

void frmUDL::cmdL_Click() {
    int key = 'L';
    txtUDLB_KeyPress(key);
}

bool frmUDL::breaksSignRule() const {
    const double w1 = numberIn(txtUDLw1);
    const double w2 = numberIn(txtUDLw2);
    return (w1 > 0 && w2 < 0) || (w1 < 0 && w2 > 0);
}

void frmUDL::cmdAdd_Click() {
    if (lacksMember())
        return;
    zeroIfNone(txtUdlA);
    if (numberIn(txtUDLB) == 0) {
        say(context_, "No load added: its width b is 0");
        txtUDLB.SetFocus();
        return;
    }
    zeroIfNone(txtUDLw1);
    zeroIfNone(txtUDLw2);
    if (breaksSignRule()) {
        Outside::Current().MsgBox("w1 and w2 should be of same sign. (+w1 +w2 or -w1 -w2 only)", 0,
                                  "+w1 +w2 or -w1 -w2 only");
        return;
    }
    picUDL.Cls();
    rows_.Add({memberText(), txtUdlA.Text(), txtUDLB.Text(), txtUDLw1.Text(), txtUDLw2.Text(),
               txtUDLD.Text()});
    txtUdlA.SetFocus();
}

void frmUDL::DrawUDL() {
    if (numberIn(txtUDLB) != 0)
        sketchUdl(picUDL, {member(), chosenLength()},
                  {txtUdlA.Text(), txtUDLB.Text(), txtUDLw1.Text(), txtUDLw2.Text()});
}

}  // namespace trabeon
