// Measures the start of the program with windows and the steps of a user's work. Needs no display.
#include <sys/resource.h>
#include <QAbstractItemView>
#include <QApplication>
#include <QMainWindow>
#include <QMouseEvent>
#include <QTimer>

#include <chrono>
#include <cstdio>
#include <string_view>

#include "forms/design/frmBeamDimensions.h"
#include "forms/main/frmTrabeon.h"
#include "forms/results/frmAnalysis.h"
#include "forms/results/frmContinuousTB.h"
#include "output/frmPrintOptions.h"
#include "output/program/unattended.h"
#include "report/frmDocPreview.h"
#include "report/frmReport.h"
#include "report/registration.h"
#include "toolkit/windows/application.h"

namespace trabeon {
namespace {

/// Processes all pending events, with painting.
void settle() {
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// Prints the milliseconds of a step up to its last paint.
template <class Step>
void measure(const char* name, const Step& step) {
    const auto start = std::chrono::steady_clock::now();
    step();
    settle();
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    std::printf("%s %.3f\n", name, time.count());
}

/// The same for a step that runs several times: prints the average.
template <class Step>
void measureEach(const char* name, int times, const Step& step) {
    const auto start = std::chrono::steady_clock::now();
    for (int k = 0; k < times; ++k) {
        step(k);
        settle();
    }
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    std::printf("%s %.3f\n", name, time.count() / times);
}

/// Measures a mouse move over a part of the curve. Measures drawing the whole chart for comparison.
void readOff(Graph& chart) {
    QWidget& widget = *chart.Widget();
    const QPointF middle = widget.rect().center();
    for (int notch = 0; notch < 10; ++notch) {
        QWheelEvent wheel(middle, widget.mapToGlobal(middle), {}, {0, 120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&widget, &wheel);
    }
    settle();
    measureEach("replot", 10, [&](int) { chart.SetNote(chart.Note()); });
    measureEach("move", 50, [&](int k) {
        const QPointF at = middle + QPointF(2 * k - 50, 0);
        QMouseEvent move(QEvent::MouseMove, at, widget.mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                         Qt::NoModifier);
        QApplication::sendEvent(&widget, &move);
    });
}

struct Program {
    explicit Program(const std::string& folder) : main(folder) {
        registerReport(main.context());
        forms.Register<frmPrintOptions>(main.context());
        if (!main.Start())
            std::exit(1);
        settle();
    }
    frmTrabeon main;
    Forms& forms = main.context().forms;
};

/// The preview blocks the program until it closes, so its steps start at its first paint.
void preview(Program& program) {
    const auto start = std::chrono::steady_clock::now();
    QTimer::singleShot(0, [&] {
        settle();
        const std::chrono::duration<double, std::milli> time =
            std::chrono::steady_clock::now() - start;
        std::printf("preview %.3f\n", time.count());
        auto& form = program.forms.Get<frmDocPreview>();
        measure("page", [&] { form.cmdNextPage.Press(); });
        measure("last", [&] { form.cboPageno.SetListIndex(form.cboPageno.ListCount() - 1); });
        form.cmdClose.Press();
    });
    program.forms.Get<frmReport>().mnufilepreview.Choose();
}

/// Adds a section to the member in the middle, which keeps its other sections.
void addSection(frmBeamDimensions& form) {
    form.optVary.Choose();
    form.cboMember.SetListIndex(form.cboMember.ListCount() / 2);
    form.cboSection.SetListIndex(0);
    form.cmdAdd.Press();
}

void work(const std::string& folder, const std::string& project, Unattended& answers) {
    Program program(folder);
    auto& forms = program.forms;
    answers.file = project;
    measure("open", [&] { program.main.mnuOpen_Click(); });
    auto& analysis = forms.Get<frmAnalysis>();
    measure("analyse", [&] { analysis.cmdAnalyse.Press(); });
    measure("again", [&] { analysis.cmdAnalyse.Press(); });
    auto& diagram = forms.Get<frmContinuousTB>();
    settle();
    auto* members = static_cast<QAbstractItemView*>(diagram.List1.Widget());
    measure("plot", [&] { members->selectAll(); });
    readOff(diagram.GraphCMoment);
    auto& sections = forms.Get<frmBeamDimensions>();
    settle();
    measure("design", [&] { sections.cmdDesign.Press(); });
    measure("section", [&] { addSection(sections); });
    measure("report", [&] {
        for (int k = 0; k < 60; ++k)
            diagram.cmdReport.Press();
    });
    preview(program);
    answers.file = folder + "/report.rtf";
    measure("rtf", [&] { forms.Get<frmReport>().mnuSave.Choose(); });
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("peak %.1f\n", static_cast<double>(usage.ru_maxrss) / 1024);
}

}  // namespace
}  // namespace trabeon

/// `window`: shows an empty main window and ends after its first paint. `start DIR`: the same with
/// the program in a working folder. `work DIR FILE.TB`: opens a project and runs the steps of the
/// work. It prints one line per step, name and milliseconds, and at the end the peak memory in MiB.
int main(int argc, char** argv) {
    using namespace trabeon;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const std::string_view command = argc > 1 ? argv[1] : "";
    const Application application(argc, argv);
    Unattended answers;
    if (command == "window") {
        QMainWindow window;
        window.show();
        settle();
    } else if (command == "start" && argc == 3) {
        const Program program(argv[2]);
    } else if (command == "work" && argc == 4) {
        work(argv[2], argv[3], answers);
    } else {
        std::fputs("Usage: bench-desktop window | start DIR | work DIR FILE.TB\n", stderr);
        return 2;
    }
}
