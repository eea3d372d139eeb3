// A whole job in the real windows, without a person: a project is opened, every row file changed,
// the beam analysed and designed, the project saved, a new one begun, the program left.
//
//   window_job FOLDER         does that; "Example.TB" is there, "Job.TB" is saved there
//   window_job FOLDER start   starts and leaves
//
// Each message is printed on a line. Behind a save the flag is printed: 1 while it is not done.
#include <cstdio>
#include <tuple>

#include "core/store/temporary_file.h"
#include "forms/design/frmBeamDimensions.h"
#include "forms/design/frmSteelArea.h"
#include "forms/input/frmJoints.h"
#include "forms/input/frmPoint.h"
#include "forms/input/frmUDL.h"
#include "forms/main/frmTitle.h"
#include "forms/main/frmTrabeon.h"
#include "forms/results/frmAnalysis.h"
#include "toolkit/desktop/desktop.h"
#include "toolkit/windows/application.h"

namespace {

using namespace trabeon;

/// The real desktop, with answers in place of a user.
class Person : public Desktop {
  public:
    explicit Person(std::string folder) : folder_(std::move(folder)) {}
    Answer MsgBox(const std::string& text, int style, const std::string&) override {
        std::printf("%s\n", text.c_str());
        constexpr int yesNoCancel = 51;
        return style == yesNoCancel ? Answer::No : Answer::Ok;
    }
    Answer AskToReplace(const std::string& text) override {
        std::printf("%s\n", text.c_str());
        return Answer::No;
    }
    std::string AskFile(const FileQuestion& question) override {
        return folder_ + (question.saves ? "/Job.TB" : "/Example.TB");
    }
    bool OpenDocument(const std::string&) override { return true; }
    void End() override {}

  private:
    std::string folder_;
};

void changeRows(Forms& forms) {
    forms.Get<frmJoints>().cmdAddJoint.Press();
    auto& point = forms.Get<frmPoint>();
    point.txtPtA.SetText("2");
    point.txtPtLoad.SetText("20");
    point.cmdAdd.Press();
    auto& udl = forms.Get<frmUDL>();
    udl.txtUDLB.SetText("3");
    udl.txtUDLw1.SetText("5");
    udl.txtUDLw2.SetText("5");
    udl.cmdAdd.Press();
    auto& joints = forms.Get<frmJoints>();
    joints.cmdRemove.SetEnabled(true);
    joints.cmdRemove.Press();
}

void save(frmTrabeon& program) {
    program.mnuSave_Click();
    std::printf("flag %d\n", static_cast<int>(program.context().dataChanged));
}

void job(frmTrabeon& program) {
    auto& forms = program.context().forms;
    program.mnuOpen_Click();
    forms.Get<frmAnalysis>().cmdAnalyse.Press();
    changeRows(forms);
    program.context().dataChanged = 1;  // also where no row could be written
    save(program);
    forms.Get<frmAnalysis>().cmdAnalyse.Press();
    auto& dimensions = forms.Get<frmBeamDimensions>();
    dimensions.txtBreadth.SetText("350");
    dimensions.cmdAdd.Press();
    dimensions.cmdDesign.Press();
    std::ignore = forms.Get<frmSteelArea>();
    forms.Get<frmTitle>().txtProject.SetText("Changed");
    save(program);
    program.mnuNew_Click();
}

}  // namespace

int main(int argc, char** argv) {
    prepareSignals();
    Application application(argc, argv);
    const Person person(argv[1]);
    frmTrabeon program(argv[1]);
    if (!program.Start())
        return 1;
    if (argc == 2)
        job(program);
    program.mnuExit_Click();
    return 0;
}
