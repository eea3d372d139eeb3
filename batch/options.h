// The numbers among a command's options.
#pragma once

#include "batch/command_line.h"
#include "core/analysis/analysis.h"
#include "core/design/misc_properties.h"

namespace trabeon {

/// --divisions and --places. Refuses a text that is not a number.
[[nodiscard]] Outcome<AnalysisSettings> settingsOf(const CommandLine& line);

/// --cover, --link, --aggregate and --no-restrict. Refuses a text that is not a number, and a size
/// below 0.
[[nodiscard]] Outcome<MiscProperties> propertiesOf(const CommandLine& line);

}  // namespace trabeon
