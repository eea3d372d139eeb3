// Reads the length of one member without the rest of the member file.
#pragma once

#include <cstddef>
#include <filesystem>

namespace trabeon {

/// L of member 1, 2, ... in the user's length unit, as the leading number of its text; 0 if the
/// member file has no such row.
[[nodiscard]] double memberLength(const std::filesystem::path& folder, std::size_t member);

}  // namespace trabeon
