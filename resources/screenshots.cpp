// Makes the manual's pictures of windows. Types the first job of the manual into the program, then
// opens the larger example. Saves a picture of each window.
#include <QApplication>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <unordered_map>

#include "forms/check/frmReactions.h"
#include "forms/design/frmBeamDesign.h"
#include "forms/design/frmBeamDimensions.h"
#include "forms/input/frmJoints.h"
#include "forms/input/frmMembers.h"
#include "forms/input/frmPoint.h"
#include "forms/input/frmUDL.h"
#include "forms/main/frmTrabeon.h"
#include "forms/results/frmAnalysis.h"
#include "forms/results/frmContinuousTB.h"
#include "forms/results/frmMoment1.h"
#include "forms/settings/frmMisc.h"
#include "output/frmPrintOptions.h"
#include "output/program/unattended.h"
#include "report/frmDocPreview.h"
#include "report/registration.h"
#include "toolkit/windows/application.h"

namespace trabeon {
namespace {

void settle() {
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
}

/// Types the keys into the control with the focus. '\n' is Enter, '\t' is Tab.
void type(const char* keys) {
    for (; *keys != 0; ++keys) {
        auto* focus = QApplication::focusWidget();
        if (*keys == '\n' || *keys == '\t')
            QTest::keyClick(focus, *keys == '\n' ? Qt::Key_Return : Qt::Key_Tab);
        else
            QTest::keyClick(focus, *keys);
    }
}

/// Reduces the picture to its 256 most frequent colours, which makes a small file.
QImage withFewColours(const QImage& image) {
    std::unordered_map<QRgb, int> uses;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            ++uses[image.pixel(x, y) | 0xff000000];
    QList<QRgb> colours;
    for (const auto& use : uses)
        colours.append(use.first);
    std::sort(colours.begin(), colours.end(), [&](QRgb a, QRgb b) { return uses[a] > uses[b]; });
    colours.resize(std::min<qsizetype>(colours.size(), 256));
    return image.convertToFormat(QImage::Format_Indexed8, colours, Qt::AvoidDither);
}

class Camera {
  public:
    Camera(const std::string& folder, std::string pictures)
        : program_(folder), pictures_(std::move(pictures)) {
        registerReport(program_.context());
        forms().Register<frmPrintOptions>(program_.context());
        started_ = program_.Start();
        window().resize(680, 380);
        window().activateWindow();
        started_ = started_ && QTest::qWaitForWindowActive(&window());
    }

    bool started() const { return started_; }
    Forms& forms() { return program_.context().forms; }
    QWidget& window() { return *program_.window().Widget(); }
    frmTrabeon& program() { return program_; }

    template <class F>
    F& show() {
        auto& form = forms().Get<F>();
        form.Show();
        settle();
        return form;
    }
    void closeAll() {
        forms().UnloadAll();
        settle();
    }

    /// Saves a picture of the whole child window with this caption.
    void take(const char* caption, const char* name) {
        settle();
        for (auto* child : window().findChildren<QMdiSubWindow*>())
            if (child->isVisible() && child->windowTitle() == caption)
                save(child->grab(), name);
    }
    void takeAll(const char* name) {
        settle();
        save(window().grab(), name);
    }
    void takeDialog(const char* name) { save(QApplication::activeModalWidget()->grab(), name); }

  private:
    void save(const QPixmap& picture, const char* name) const {
        const auto file = pictures_ + '/' + name + ".png";
        if (!withFewColours(picture.toImage()).save(file.c_str(), "PNG", 0))
            std::fprintf(stderr, "\"%s\" could not be written.\n", file.c_str());
    }

    frmTrabeon program_;
    std::string pictures_;
    bool started_ = false;
};

void enterFirstJob(Camera& camera) {
    auto& joints = camera.show<frmJoints>();
    joints.cmdNextJoint.Press();
    joints.cmdAddJoint.Press();
    joints.cmdNextJoint.Press();
    joints.cmdAddJoint.Press();
    joints.cmdBackJoint.Press();
    joints.cmdAddJoint.Press();
    camera.take("Joints", "first-joints");
    camera.show<frmMembers>();
    type("28\n1200\n6\n\n\n\n\n\n");
    camera.take("Members", "first-members");
    auto& loads = camera.show<frmUDL>();
    loads.cboMember.SetFocus();
    type("M0\nL\n12\n12\n\n");
    loads.cboMember.SetListIndex(1);
    type("\n\n\n\n");
    camera.take("Uniformly Distributed Load", "first-loads");
    type("\n");
}

void runFirstJob(Camera& camera) {
    auto& analysis = camera.show<frmAnalysis>();
    analysis.cmdAnalyse.Press();
    analysis.SetWidth(9600);
    camera.take("Trabeon Analysis", "first-analysis");
    auto& diagram = camera.show<frmContinuousTB>();
    diagram.List1.SetSelected(0, true);
    diagram.List1.SetSelected(1, true);
    camera.take("Continuous Bending Moment Diagram", "first-diagram");
    camera.takeAll("first-main");
    camera.forms().Unload(frmContinuousTB::Name);
    auto& reactions = camera.show<frmReactions>();
    reactions.SetScaleSize(10500, 6600);
    reactions.lvwMembers.SetFocus();
    camera.take("Reactions and Deflections", "window-reactions");
    camera.forms().Unload(frmReactions::Name);
    camera.show<frmMisc>().txthagg.SetText("20");
    camera.take("Miscellaneous Properties", "window-misc");
    camera.forms().Get<frmMisc>().cmdOK.Press();
    auto& sections = camera.show<frmBeamDimensions>();
    sections.cboMember.SetListIndex(0);
    sections.txtBreadth.SetFocus();
    type("225\n400\n350\n30\n460\n200000\n250");
    sections.cmdAdd.Press();
    sections.cboMember.SetListIndex(1);
    sections.cmdAdd.Press();
    camera.take("Beam Dimensions", "first-sections");
    sections.cmdDesign.Press();
    camera.forms().Get<frmBeamDesign>().SetWidth(10500);
    camera.take("Beam Design", "first-design");
    camera.closeAll();
}

void openExample(Camera& camera) {
    camera.program().mnuOpen_Click();
    camera.show<frmAnalysis>().cmdAnalyse.Press();
    camera.take("Trabeon Analysis", "window-analysis");
    camera.show<frmJoints>();
    camera.take("Joints", "window-joints");
    camera.show<frmMembers>();
    camera.take("Members", "window-members");
    camera.forms().Show("frmDiagram");
    camera.take("Joints and Members Diagram", "window-diagram");
    camera.forms().Unload("frmDiagram");
    auto& point = camera.show<frmPoint>();
    point.txtPtA.SetFocus();
    type("2.5\n80");
    camera.take("Point Load", "window-point");
    auto& udl = camera.show<frmUDL>();
    udl.cboMember.SetFocus();
    type("M0\n6\n20\n35");
    camera.take("Uniformly Distributed Load", "window-udl");
    camera.forms().Show("frmOptions");
    camera.take("Plotting Options", "window-options");
}

void takeResults(Camera& camera) {
    camera.show<frmMoment1>().cboMember.SetListIndex(1);
    camera.take("Bending Moment Diagram", "window-moment1");
    auto& diagram = camera.show<frmContinuousTB>();
    for (int i = 0; i < diagram.List1.ListCount(); ++i)
        diagram.List1.SetSelected(i, true);
    camera.take("Continuous Bending Moment Diagram", "window-continuous");
    diagram.cmdReport.Press();
    auto& sections = camera.show<frmBeamDimensions>();
    camera.take("Beam Dimensions", "window-dims");
    sections.cmdDesign.Press();
    camera.take("Beam Design", "window-design");
    camera.forms().Show("frmReport");
    camera.take("Report", "window-report");
    camera.show<frmPrintOptions>();
    camera.take("Printing Options", "window-print");
    QTimer shown;
    QObject::connect(&shown, &QTimer::timeout, [&camera] {
        if (QApplication::activeModalWidget() == nullptr)
            return;
        camera.forms().Get<frmDocPreview>().cmdZoomIn.Press();
        camera.takeDialog("window-preview");
        camera.forms().Unload("frmDocPreview");
    });
    shown.start(100);
    camera.forms().Show("frmDocPreview");
}

int run(const std::string& pictures) {
    const QTemporaryDir folder;
    const auto path = folder.path().toStdString();
    std::filesystem::copy(RESOURCES "/pictures", path);
    Application::SetIcon(path + "/trabeon.png");
    Unattended outside;
    outside.file = EXAMPLES "/five-span-with-cantilever.TB";
    Camera camera(path, pictures);
    if (!camera.started())
        return 1;
    enterFirstJob(camera);
    runFirstJob(camera);
    camera.program().context().dataChanged = 0;
    openExample(camera);
    takeResults(camera);
    return 0;
}

}  // namespace
}  // namespace trabeon

/// Writes to the folder in the first argument, by default to the folder of the manual.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "*.debug=false");
    const trabeon::Application application(argc, argv);
    return trabeon::run(argc > 1 ? argv[1] : RESOURCES "/help");
}
