#include "forms/input/frmMembers.h"

#include "forms/shared/keys.h"

namespace trabeon {
namespace {

constexpr int margin = 120;
constexpr int listLeft = 2760;

}  // namespace

frmMembers::frmMembers(Context& context)
    : Form("Members"),
      context_(context),
      rows_(context, ListView1, cmdRemove, &txtMemberD, {"Member ", Numbering::fromOne, "Member"}) {
    placeControls();
    ListView1.SetAccessibleName("Members");
    cmdRemove.SetEnabled(false);

    wireNumberBoxes();
    remarkOnNumbers({&txtYM, &txtMI, &txtLength});
    txtMemberD.GotFocus = [this] { txtMemberD_GotFocus(); };
    txtMemberD.KeyPress = [this](int& keyAscii) { txtMemberD_KeyPress(keyAscii); };
    for (TextBox* box : {&txtYM, &txtMI, &txtLength, &txtMemberD}) {
        box->SetKeepsToField(true);
        box->Change = [this] { context_.dataChanged = 1; };
    }
    cmdAddJoint.Click = [this] { cmdAddJoint_Click(); };
    cmdAddJoint.GotFocus = [this] { cmdRemove.SetEnabled(false); };
    cmdRemove.Click = [this] { cmdRemove_Click(); };
    cmdDiagram.Click = [this] { cmdDiagram_Click(); };
    SetTabOrder({&txtYM, &txtMI, &txtLength, &txtMemberD, &cmdAddJoint, &cmdRemove, &ListView1,
                 &cmdDiagram});
}

void frmMembers::placeControls() {
    int top = 60;
    for (auto [label, box] : {std::pair{&lblYM, &txtYM},
                              {&lblMI, &txtMI},
                              {&lblLength, &txtLength},
                              {&lblMemberD, &txtMemberD}}) {
        label->Move(margin, top, 2520, 240);
        label->SetBuddy(*box);
        box->Move(margin, top + 240, 2520, 345);
        top += 630;
    }
    cmdAddJoint.Move(margin, 2700, 1200, 375);
    cmdRemove.Move(margin + 1320, 2700, 1200, 375);
    cmdDiagram.Move(margin, 3180, 1200, 375);
    SetSmallestScaleSize(listLeft + 1500, 3615);
}

void frmMembers::wireNumberBoxes() {
    for (auto [box, name, next] : {std::tuple{&txtYM, "E", &txtMI},
                                   {&txtMI, "I", &txtLength},
                                   {&txtLength, "L", &txtMemberD}}) {
        box->GotFocus = [this, box = box] {
            box->SelectAll();
            cmdRemove.SetEnabled(false);
        };
        acceptNumbers(context_, *box, {name, plainNumber, next});
    }
}

void frmMembers::Form_Load() {
    Move(0, 0, 8600, 4095);
    rows_.Fill();
    txtMemberD.SetText(noDescription);
    rows_.SelectLast();
}

void frmMembers::Form_Resize() {
    ListView1.Move(listLeft, margin, ScaleWidth() - listLeft - margin, ScaleHeight() - 2 * margin);
}

bool frmMembers::lacksValue() const {
    return numberIn(txtYM) == 0 || numberIn(txtMI) == 0 || numberIn(txtLength) == 0;
}

void frmMembers::cmdAddJoint_Click() {
    if (lacksValue()) {
        say(context_, "No member added: E, I and L must all be numbers above 0");
        txtYM.SetFocus();
        return;
    }
    if (rows_.Add(
            {rows_.NextNumber(), txtYM.Text(), txtMI.Text(), txtLength.Text(), txtMemberD.Text()}))
        txtYM.SetFocus();
}

void frmMembers::cmdRemove_Click() {
    rows_.Remove();
}

void frmMembers::cmdDiagram_Click() {
    context_.forms.Show("frmDiagram");
}

void frmMembers::txtMemberD_GotFocus() {
    selectIfNone(txtMemberD);
    cmdRemove.SetEnabled(false);
}

void frmMembers::txtMemberD_KeyPress(int keyAscii) {
    if (keyAscii == enterKey)
        cmdAddJoint_Click();
}

}  // namespace trabeon
