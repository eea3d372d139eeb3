// How the beam in the working folder answers its loads, from the rows as they are now.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "core/analysis/analysis.h"
#include "core/response/beam_response.h"

namespace trabeon {

struct BeamAnswer {
    RelaxedBeam relaxed;
    BeamResponse response;
    std::vector<std::string> jointTypes;  // as in the rows
};

/// Analyses the rows in memory and writes nothing. Refuses a structure that breaks a rule, a value
/// that cannot be calculated, a load that leaves its member, and rows that were taken away.
[[nodiscard]] Outcome<BeamAnswer> answerOf(const std::filesystem::path& folder);

}  // namespace trabeon
