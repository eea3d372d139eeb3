// What a working folder records of its files: which rows a project file put there, and which input
// its results were made from.
#pragma once

#include <cstdint>
#include <filesystem>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

#include "core/outcome.h"

namespace trabeon {

/// A number that identifies a text: two texts share one with a chance of one in 2^64.
[[nodiscard]] std::uint64_t fingerprint(std::string_view text);

/// One fingerprint of several, in their order.
[[nodiscard]] std::uint64_t mixedFingerprint(std::initializer_list<std::uint64_t> fingerprints);

/// The same of several texts in their order.
[[nodiscard]] std::uint64_t fingerprint(std::initializer_list<std::string_view> texts);

/// "Record.txt". It changes together with the rows and results.
struct FolderRecord {
    /// Of the four input files, and of the beam dimensions, as a project file put them here. Rows
    /// with other fingerprints were made or changed by hand, and exist nowhere else.
    std::optional<std::uint64_t> unpackedInput, unpackedDimensions;
    /// Of what the balance table, the stations and the design were made from.
    std::optional<std::uint64_t> table, stations, design;
};

/// Of the joints, members and loads in a folder.
[[nodiscard]] std::uint64_t inputFingerprint(const std::filesystem::path& folder);

/// An unreadable or absent record knows nothing.
[[nodiscard]] FolderRecord readRecord(const std::filesystem::path& folder);
[[nodiscard]] FolderRecord recordOf(std::string_view text);
[[nodiscard]] std::string textOf(const FolderRecord& record);

/// Why a project must not be unpacked into a folder: files are in it that no project file put
/// there, or that were changed since. Names the first of them.
[[nodiscard]] Failure holdsOtherRows(const std::filesystem::path& folder);

}  // namespace trabeon
