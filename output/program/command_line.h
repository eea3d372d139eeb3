// The command line of trabeon-report.
#pragma once

#include <string>
#include <vector>

#include "core/analysis/analysis.h"
#include "core/outcome.h"
#include "output/output_kinds.h"

namespace trabeon {

struct ReportCommand {
    std::string file, out;
    AnalysisSettings settings;
    OutputKinds kinds;
    bool help = false;
};

[[nodiscard]] std::string reportHelp();

/// Reads the arguments after the program's name. The refusal is one line that says what is wrong.
[[nodiscard]] Outcome<ReportCommand> readReportCommand(const std::vector<std::string>& words);

}  // namespace trabeon
