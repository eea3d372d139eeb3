// What a working folder records of its rows: whether a project file put them there.
#pragma once

#include <cstdint>
#include <filesystem>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

#include "core/outcome.h"

namespace trabeon {

/// A number that stands for a text: another text has another one, but for one chance in 2^64.
[[nodiscard]] std::uint64_t fingerprint(std::string_view text);

/// The same of several texts in their order.
[[nodiscard]] std::uint64_t fingerprint(std::initializer_list<std::string_view> texts);

/// "Record.txt": what a folder knows of its own rows. It changes together with them.
struct FolderRecord {
    /// Of the four input files, and of the beam dimensions, as a project file put them here. Rows
    /// with other fingerprints were made or changed by hand, and exist nowhere else.
    std::optional<std::uint64_t> unpackedInput, unpackedDimensions;
};

/// An unreadable or absent record knows nothing.
[[nodiscard]] FolderRecord readRecord(const std::filesystem::path& folder);
[[nodiscard]] std::string textOf(const FolderRecord& record);

/// Why a project must not be unpacked into a folder: files are in it that no project file put
/// there, or that were changed since. Names the first of them.
[[nodiscard]] Failure holdsOtherRows(const std::filesystem::path& folder);

}  // namespace trabeon
