// trabeon-report: writes the document of a project. Needs no display.
#include <QTemporaryDir>
#include <cstdio>
#include <deque>
#include <exception>

#include "core/analysis/result_files.h"
#include "core/analysis/stray_loads.h"
#include "core/design/design.h"
#include "core/design/shear.h"
#include "core/store/output_file.h"
#include "core/store/replacing_file.h"
#include "core/store/temporary_file.h"
#include "core/store/working_files.h"
#include "forms/main/frmTitle.h"
#include "forms/main/frmTrabeon.h"
#include "forms/settings/frmOptions.h"
#include "output/chart_driver.h"
#include "output/lotus_document.h"
#include "output/lotus_output.h"
#include "output/program/command_line.h"
#include "output/program/unattended.h"
#include "output/save_document.h"
#include "toolkit/windows/application.h"

namespace trabeon {
namespace {

Status analyseProject(const std::filesystem::path& folder, const AnalysisSettings& settings) {
    std::string said = "The beam could not be analysed.";
    AnalysisOutputs outputs;
    outputs.rowsRead = [](const BeamRows& rows) {
        for (const auto& load : strayLoads(rows))
            std::fprintf(stderr, "%s\n", sentenceOf(load).c_str());
    };
    outputs.message = [&](const Message& message) { said = message.text; };
    if (!analyseFolder(folder, settings, outputs))
        return Refusal{said};
    return {};
}

/// Does nothing for a project without beam dimensions.
Status designProject(const std::filesystem::path& folder, double Divisions) {
    if (readWhole(folder / working_file::beamDimensions).empty())
        return {};
    const auto design = designFolder(folder, Divisions, {});
    if (!design)
        return design.refusal();
    if (design->ShearFailed)
        std::fprintf(stderr, "%s\n", std::string(shearFailureSentence).c_str());
    return {};
}

void prepare(frmTrabeon& program, const ProjectTitle& title, const AnalysisSettings& settings) {
    program.window().Show();
    auto& forms = program.context().forms;
    forms.Get<frmTitle>().SetTitle(title);
    auto& options = forms.Get<frmOptions>();
    options.txtDivision.SetText(std::to_string(static_cast<int>(settings.Divisions)));
}

Status makeReport(const ReportCommand& command, const std::filesystem::path& folder) {
    if (auto objection = checkDocumentFile(command.out, command.file))
        return objection;
    const auto opened = unpackProject(command.file, folder);
    if (!opened)
        return opened.refusal();
    if (auto status = analyseProject(folder, command.settings); status.failed())
        return status;
    if (auto status = designProject(folder, command.settings.Divisions); status.failed())
        return status;
    frmTrabeon program(folder);
    prepare(program, opened->title, command.settings);
    LotusDocument objWord;
    {
        ChartDriver charts(program.context());
        const OutputSource source{folder, opened->title,
                                  static_cast<int>(command.settings.Divisions), charts};
        LotusOutput writer(source, objWord);
        const auto end = writeProject(source, command.kinds, writer);
        if (!end)
            return end.refusal();
    }
    return writeDocument(objWord.document(), command.out);
}

/// Shows errors of Qt only. Its warnings about a machine without a display do not help the user.
void showErrorsOnly(QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type == QtCriticalMsg || type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", text.toStdString().c_str());
}

constexpr auto screenFile = "screen.json";

/// The temporary working folder. Removed at the end of the run, also after a signal.
class WorkFolder {
  public:
    WorkFolder() {
        for (const auto name : workingFiles)
            removedAtSignal_.emplace_back(path() / name);
        removedAtSignal_.emplace_back(path() / screenFile);
        removedAtSignal_.emplace_back(path());
    }

    [[nodiscard]] const QTemporaryDir& folder() const { return folder_; }
    [[nodiscard]] std::filesystem::path path() const { return folder_.path().toStdString(); }

  private:
    std::deque<RemovedAtSignal> removedAtSignal_;  // must outlive the folder
    QTemporaryDir folder_;
};

/// A screen in memory. On it, a maximised window has the proportions of the page.
void makeScreen(const QString& file) {
    constexpr auto screen = R"({"screens":[{"name":"report","x":0,"y":0,"width":1024,"height":640,)"
                            R"("logicalDpi":96,"logicalBaseDpi":96,"dpr":1}]})";
    static_cast<void>(replaceFile(file.toStdString(), screen));
    qputenv("QT_QPA_PLATFORM", ("offscreen:configfile=" + file).toUtf8());
}

int run(const ReportCommand& command, int& argc, char** argv) {
    const WorkFolder work;
    if (!work.folder().isValid()) {
        std::fprintf(stderr,
                     "A temporary folder could not be created (%s). Free space, then try again.\n",
                     work.folder().errorString().toStdString().c_str());
        return 1;
    }
    makeScreen(work.folder().filePath(screenFile));
    qInstallMessageHandler(showErrorsOnly);
    const Application application(argc, argv);
    const Unattended outside;
    const auto status = makeReport(command, work.path());
    if (status.done())
        return 0;
    std::fprintf(stderr, "%s\n", status.refusal().sentence.c_str());
    return 1;
}

}  // namespace
}  // namespace trabeon

int main(int argc, char** argv) try {
    using namespace trabeon;
    prepareSignals();
    const auto command = readReportCommand({argv + 1, argv + argc});
    if (!command) {
        std::fprintf(stderr, "trabeon-report: %s\n", command.refusal().sentence.c_str());
        return 2;
    }
    if (command->help) {
        std::fputs(reportHelp().c_str(), stdout);
        return 0;
    }
    return run(*command, argc, argv);
} catch (const std::exception& error) {
    std::fprintf(stderr, "The document could not be made (%s).\n", error.what());
    return 1;
}
