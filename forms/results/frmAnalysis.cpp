#include "forms/results/frmAnalysis.h"

#include <algorithm>
#include <chrono>

#include "core/analysis/result_files.h"
#include "core/analysis/stray_loads.h"
#include "forms/settings/frmOptions.h"
#include "forms/shared/messages.h"
#include "forms/shared/status_line.h"
#include "toolkit/outside/outside.h"
#include "toolkit/windows/wait_cursor.h"

namespace trabeon {
namespace {

constexpr Colour grey = 0xC0C0C0;

/// Moves a progress bar at most every 33 ms, and always at 0, 50 and 100.
class PacedProgress {
  public:
    explicit PacedProgress(ProgressBar& bar) : bar_(bar) {}

    void operator()(double percent) {
        const auto now = std::chrono::steady_clock::now();
        const bool mark = percent == 0 || percent == 50 || percent == 100;
        if (!mark && now - last_ < std::chrono::milliseconds(33))
            return;
        last_ = now;
        bar_.SetValue(percent);
    }

  private:
    ProgressBar& bar_;
    std::chrono::steady_clock::time_point last_;
};

std::string andMore(std::size_t loads) {
    return loads == 1 ? "" : " (and " + std::to_string(loads - 1) + " more)";
}

}  // namespace

frmAnalysis::frmAnalysis(Context& context) : Form("Trabeon Analysis"), context_(context) {
    cmdAnalyse.Click = [this] { cmdAnalyse_Click(); };
    txtTBResults.SetFont("Terminal", 9, true);
    txtTBResults.SetBackColor(grey);
    txtTBResults.SetAccessibleName("Balance table");
    PBAnalysis.SetAccessibleName("Progress of the analysis");
    SetTabOrder({&cmdAnalyse, &txtTBResults});
}

void frmAnalysis::Form_Load() {
    Move(0, 0, 4755, 4020);
}

void frmAnalysis::Form_Resize() {
    txtTBResults.Move(100, 600, ScaleWidth() - 200, ScaleHeight() - 600);
    cmdAnalyse.Move(50, 10, cmdAnalyse.Width(), cmdAnalyse.Height());
    const int left = cmdAnalyse.Width() + 350;
    PBAnalysis.Move(left, 50, std::max(0, Width() - left - 300), PBAnalysis.Height());
}

void frmAnalysis::ShowTable() {
    txtTBResults.SetText(readWhole(context_.folder / working_file::balanceTable));
}

void frmAnalysis::cmdAnalyse_Click() {
    context_.mnuContinuous.SetEnabled(true);
    context_.mnuSingle.SetEnabled(true);
    auto& options = context_.forms.Get<frmOptions>();
    const auto settings = options.Settings();
    options.Hide();
    if (const auto objection = missing(context_.folder, inputFiles)) {
        warn(objection->sentence);
        return;
    }
    const WaitCursor wait;
    AnalysisOutputs outputs;
    outputs.message = [](const Message& message) {
        if (message.kind == MessageKind::structure)
            Outside::Current().MsgBox(message.text, 48, "Joint Error");
        else
            warn(message.text);
    };
    outputs.progress = PacedProgress(PBAnalysis);
    std::vector<StrayLoad> stray;
    outputs.rowsRead = [&](const BeamRows& rows) { stray = strayLoads(rows); };
    const auto analysis = analyseFolder(context_.folder, settings, outputs);
    if (!analysis)
        return;
    context_.refillLoads(*analysis);
    ShowTable();
    showSummary(context_);
    say(context_, stray.empty() ? "Analysed"
                                : "Analysed. " + sentenceOf(stray.front()) + andMore(stray.size()));
}

}  // namespace trabeon
