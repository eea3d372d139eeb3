#include "forms/input/frmJoints.h"

#include <algorithm>

#include "core/rules/joint_types.h"

namespace trabeon {
namespace {

constexpr int margin = 120;
constexpr int listLeft = 3360;

}  // namespace

frmJoints::frmJoints(Context& context)
    : Form("Joints"),
      context_(context),
      rows_(context, ListView1, cmdRemove, &txtDescription,
            {"Joint ", Numbering::fromOne, "Joint"}) {
    placeControls();
    txtDescription.SetKeepsToField(true);
    WebJoint.SetAccessibleName("Picture of the joint type");
    ListView1.SetAccessibleName("Joints");
    cmdRemove.SetEnabled(false);

    cmdNextJoint.Click = [this] { cmdNextJoint_Click(); };
    cmdBackJoint.Click = [this] { cmdBackJoint_Click(); };
    cmdAddJoint.Click = [this] { cmdAddJoint_Click(); };
    cmdRemove.Click = [this] { cmdRemove_Click(); };
    txtDescription.GotFocus = [this] { txtDescription_GotFocus(); };
    for (Control* control :
         std::initializer_list<Control*>{&cmdAddJoint, &cmdNextJoint, &cmdBackJoint, &WebJoint})
        control->GotFocus = [this] { cmdRemove.SetEnabled(false); };
    SetTabOrder(
        {&cmdBackJoint, &cmdNextJoint, &txtDescription, &cmdAddJoint, &cmdRemove, &ListView1});
}

void frmJoints::placeControls() {
    Frame1.Move(margin, 60, 3120, 2310);
    lblJoint.Move(150, 105, 2820, 255);
    WebJoint.Move(150, 390, 2820, 1380);
    cmdBackJoint.Move(150, 1845, 1350, 375);
    cmdNextJoint.Move(1620, 1845, 1350, 375);
    lblDescription.Move(margin, 2445, 3120, 255);
    lblDescription.SetBuddy(txtDescription);
    txtDescription.Move(margin, 2700, 3120, 345);
    cmdAddJoint.Move(margin, 3165, 1500, 375);
    cmdRemove.Move(margin + 1620, 3165, 1500, 375);
    SetSmallestScaleSize(listLeft + 1500, 3600);
}

void frmJoints::Form_Load() {
    Move(0, 0, 7650, 4095);
    showType();
    rows_.Fill();
    txtDescription.SetText(noDescription);
    rows_.SelectLast();
}

void frmJoints::Form_Resize() {
    ListView1.Move(listLeft, margin, ScaleWidth() - listLeft - margin, ScaleHeight() - 2 * margin);
}

void frmJoints::cmdNextJoint_Click() {
    step(1);
}

void frmJoints::cmdBackJoint_Click() {
    step(jointNames.size() - 1);
}

/// Selects another joint type. After the last type comes the first.
void frmJoints::step(std::size_t forward) {
    const auto* const now = std::find(jointNames.begin(), jointNames.end(), lblJoint.Caption());
    const auto position = static_cast<std::size_t>(now - jointNames.begin());
    lblJoint.SetCaption(std::string(jointNames[(position + forward) % jointNames.size()]));
    showType();
}

void frmJoints::showType() {
    WebJoint.Navigate((context_.folder / (lblJoint.Caption() + ".gif")).string());
}

void frmJoints::cmdAddJoint_Click() {
    rows_.Add({rows_.NextNumber(), lblJoint.Caption(), txtDescription.Text()});
}

void frmJoints::cmdRemove_Click() {
    rows_.Remove();
}

void frmJoints::txtDescription_GotFocus() {
    selectIfNone(txtDescription);
    cmdRemove.SetEnabled(false);
    context_.dataChanged = 1;
}

}  // namespace trabeon
