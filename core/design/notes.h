// The words of a section's note.
#pragma once

#include <string_view>

namespace trabeon::note {

inline constexpr std::string_view shearOK = "Shear OK";
inline constexpr std::string_view shearFailed = "Shear Failed!";
inline constexpr std::string_view deflectionOK = " Def. OK";
inline constexpr std::string_view deflectionFailed = " Def. Failed!";
inline constexpr std::string_view manualCalculation = "Please Provide Manual Calculation";
inline constexpr std::string_view noData = "No Data";

/// Whether a note holds one of these words.
[[nodiscard]] inline bool contains(std::string_view DefNote, std::string_view words) {
    return DefNote.find(words) != DefNote.npos;
}

}  // namespace trabeon::note
