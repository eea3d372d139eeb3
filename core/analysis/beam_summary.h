// The size of the beam whose rows are in a folder.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

namespace trabeon {

struct BeamSummary {
    std::size_t joints = 0, members = 0;
    std::string length;  // the sum of the members' lengths, six significant figures
};

[[nodiscard]] BeamSummary beamSummary(const std::filesystem::path& folder);

}  // namespace trabeon
