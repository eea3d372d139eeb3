// Whether results belong to the beam and the settings that are there now.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>

namespace trabeon {

/// absent: there are no results. unrecorded: it is not known what they were made from, for example
/// because another program wrote them. outdated: the rows or the settings have changed since.
enum class ResultState { absent, unrecorded, outdated, current };

inline constexpr std::string_view analyseAgain =
    "Of another beam or an earlier state: analyse again";
inline constexpr std::string_view noResults = "Not analysed yet: analyse first";
inline constexpr std::string_view designAgain = "Of another beam or an earlier state: design again";

/// The fingerprint of what stations are made from: the four input files, and Divisions.
[[nodiscard]] std::uint64_t stationsFingerprint(std::uint64_t input, double Divisions);

/// The state of the results in a file. `recorded` is the fingerprint of what they were made from,
/// `now` the fingerprint of what is there now.
[[nodiscard]] ResultState resultState(const std::filesystem::path& file,
                                      const std::optional<std::uint64_t>& recorded,
                                      std::uint64_t now);

/// The state of "TB.txt", and of "BM.txt" with these Divisions.
[[nodiscard]] ResultState tableState(const std::filesystem::path& folder);
[[nodiscard]] ResultState stationsState(const std::filesystem::path& folder, double Divisions);

/// What to show next to results; nothing if they are current. `outdated` is the remark on results
/// that are outdated or unrecorded.
[[nodiscard]] std::string_view remarkOn(ResultState state,
                                        std::string_view outdated = analyseAgain);

}  // namespace trabeon
