#include "forms/main/frmTitle.h"

#include <utility>

#include "forms/shared/status_line.h"

namespace trabeon {

frmTitle::frmTitle(Context& context)
    : Form("Title", FormBorder::FixedToolWindow), context_(context) {
    int top = 180;
    for (auto [label, box] : {std::pair{&lblProject, &txtProject},
                              {&lblDesigner, &txtDesigner},
                              {&lblBeamName, &txtBeamName}}) {
        label->Move(180, top + 45, 1215, 255);
        label->SetBuddy(*box);
        box->Move(1440, top, 3780, 345);
        box->SetKeepsToField(true);
        box->Change = [this] { txt_Change(); };
        box->GotFocus = [box = box] { box->SelectAll(); };
        top += 465;
    }
    cmdOK.Move(4005, top + 60, 1215, 375);
    cmdOK.Click = [this] { cmdOK_Click(); };
    SetTabOrder({&txtProject, &txtDesigner, &txtBeamName, &cmdOK});
}

void frmTitle::Form_Load() {
    SetScaleSize(5400, 2190);
}

void frmTitle::ClosedByUser() {
    const auto title = Title();
    if (title == ProjectTitle())
        return;
    offerRestore(context_, "The title", [&context = context_, title] {
        context.forms.Get<frmTitle>().SetTitle(title);
        say(context, "The title is back");
    });
}

ProjectTitle frmTitle::Title() const {
    return {txtProject.Text(), txtDesigner.Text(), txtBeamName.Text()};
}

void frmTitle::SetTitle(const ProjectTitle& title) {
    txtProject.SetText(title.project);
    txtDesigner.SetText(title.designer);
    txtBeamName.SetText(title.beamName);
}

void frmTitle::cmdOK_Click() {
    Hide();
}

void frmTitle::txt_Change() {
    context_.dataChanged = 1;
    keepTitle(context_.folder, Title());
}

}  // namespace trabeon
