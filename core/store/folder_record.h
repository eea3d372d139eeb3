// The record of a working folder: which rows came from a project file, and which input the results
// were made from.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <initializer_list>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "core/outcome.h"

namespace trabeon {

/// A number that identifies a text: two texts share one with a chance of one in 2^64.
[[nodiscard]] std::uint64_t fingerprint(std::string_view text);

/// One fingerprint from several; their order counts.
[[nodiscard]] std::uint64_t mixedFingerprint(std::initializer_list<std::uint64_t> fingerprints);

/// One fingerprint of several texts; their order counts.
[[nodiscard]] std::uint64_t fingerprint(std::initializer_list<std::string_view> texts);

/// The content of "Record.txt". It is written together with the rows and results.
struct FolderRecord {
    /// Of the four input files, and of the beam dimensions, as they were unpacked from a project
    /// file. Rows with other fingerprints were entered or changed here, and exist nowhere else.
    std::optional<std::uint64_t> unpackedInput, unpackedDimensions;
    /// Of the input from which the balance table, the stations and the design were made.
    std::optional<std::uint64_t> table, stations, design;
};

/// What the results depend on: the joint types, E, I and L, and the loads in the order of their
/// members. Descriptions, the spelling of a number and rows without a load make no difference.
class InputFingerprint {
  public:
    void addJoint(std::string_view type);
    void addMember(double E, double I, double L);
    /// A load that is not 0, on a member from 1: a and P, or a, b, w1 and w2.
    void addLoad(std::size_t member, std::span<const double> numbers);
    [[nodiscard]] std::uint64_t value() const { return hash_; }

  private:
    std::uint64_t hash_ = 0;
};

/// Of the texts of the four input files, and of those in a folder.
[[nodiscard]] std::uint64_t inputFingerprint(const std::array<std::string_view, 4>& inputTexts);
[[nodiscard]] std::uint64_t inputFingerprint(const std::filesystem::path& folder);

/// A number that changes when a file of the results' input, the stations or the record is written,
/// from the files' places and times on the disk. Only to save reading them again within one run.
[[nodiscard]] std::uint64_t filesState(const std::filesystem::path& folder);

/// The rows of a folder are in a project file now. Silent: without the record they are protected
/// more than necessary.
void recordRowsAsPacked(const std::filesystem::path& folder);

/// The record of a folder; empty if it is absent or cannot be read.
[[nodiscard]] FolderRecord readRecord(const std::filesystem::path& folder);
[[nodiscard]] FolderRecord recordOf(std::string_view text);
[[nodiscard]] std::string textOf(const FolderRecord& record);

/// Refuses a folder that has files which did not come from a project file, or which were changed
/// since: unpacking a project would destroy them. Names the first of these files.
[[nodiscard]] Objection checkRowsAreSaved(const std::filesystem::path& folder);

}  // namespace trabeon
