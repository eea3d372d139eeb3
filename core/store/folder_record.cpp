#include "core/store/folder_record.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <utility>

#include "core/store/working_files.h"
#include "core/text/field_reader.h"

namespace trabeon {
namespace {

using Number = std::optional<std::uint64_t>;

/// The lines of the record, each a label and a number.
constexpr std::array<std::pair<std::string_view, Number FolderRecord::*>, 5> labels{{
    {"unpacked input ", &FolderRecord::unpackedInput},
    {"unpacked dimensions ", &FolderRecord::unpackedDimensions},
    {"table of ", &FolderRecord::table},
    {"stations of ", &FolderRecord::stations},
    {"design of ", &FolderRecord::design},
}};

/// Whether a file has rows or results of the user; the others are for the program alone.
constexpr bool isUsers(std::string_view name) {
    return name != working_file::title && name != working_file::record &&
           name != working_file::unfinishedSet;
}

std::uint64_t mixed(std::uint64_t hash, std::uint64_t word) {
    hash = (hash ^ word) * 0x9E3779B97F4A7C15ULL;
    return hash ^ (hash >> 29U);
}

Number numberAfter(std::string_view label, std::string_view line) {
    std::uint64_t number = 0;
    if (!line.starts_with(label))
        return std::nullopt;
    const auto* end = line.data() + line.size();
    const auto read = std::from_chars(line.data() + label.size(), end, number, 16);
    return read.ec == std::errc() && read.ptr == end ? Number(number) : std::nullopt;
}

std::string hexadecimal(std::uint64_t number) {
    std::array<char, 16> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number, 16);
    return {digits.data(), end.ptr};
}

}  // namespace

std::uint64_t fingerprint(std::string_view text) {
    std::uint64_t hash = mixed(1, text.size());
    while (!text.empty()) {
        std::uint64_t word = 0;
        const auto taken = std::min(sizeof word, text.size());
        std::memcpy(&word, text.data(), taken);
        hash = mixed(hash, word);
        text.remove_prefix(taken);
    }
    return hash;
}

std::uint64_t mixedFingerprint(std::initializer_list<std::uint64_t> fingerprints) {
    std::uint64_t hash = 0;
    for (const auto each : fingerprints)
        hash = mixed(hash, each);
    return hash;
}

std::uint64_t fingerprint(std::initializer_list<std::string_view> texts) {
    std::uint64_t hash = 0;
    for (const auto text : texts)
        hash = mixed(hash, fingerprint(text));
    return hash;
}

FolderRecord readRecord(const std::filesystem::path& folder) {
    return recordOf(readWhole(folder / working_file::record));
}

FolderRecord recordOf(std::string_view text) {
    FolderRecord record;
    FieldReader lines(text);
    while (!lines.atEnd()) {
        const auto line = lines.nextLine();
        for (const auto& [label, number] : labels)
            if (const auto found = numberAfter(label, line))
                record.*number = found;
    }
    return record;
}

std::string textOf(const FolderRecord& record) {
    std::string text;
    for (const auto& [label, number] : labels)
        if (record.*number)
            text += std::string(label) + hexadecimal(*(record.*number)) + "\r\n";
    return text;
}

std::uint64_t inputFingerprint(const std::filesystem::path& folder) {
    const auto text = [&](std::string_view name) { return readWhole(folder / name); };
    return fingerprint({text(working_file::joint), text(working_file::member),
                        text(working_file::point), text(working_file::udl)});
}

Failure holdsOtherRows(const std::filesystem::path& folder) {
    constexpr std::array names{working_file::joint,          working_file::member,
                               working_file::point,          working_file::udl,
                               working_file::beamDimensions, working_file::record};
    const auto texts = readFiles(folder, names);
    if (!texts)
        return texts.refusal();
    const auto& [joints, members, points, udls, dimensions, recorded] = *texts;
    const auto record = recordOf(recorded);
    if (record.unpackedInput == fingerprint({joints, members, points, udls}) &&
        record.unpackedDimensions == fingerprint(dimensions))
        return std::nullopt;
    std::error_code missing;
    for (const auto name : workingFiles)
        if (isUsers(name) && std::filesystem::file_size(folder / name, missing) > 0 && !missing)
            return Refusal{"The folder \"" + folder.string() + "\" contains \"" +
                           std::string(name) +
                           "\", which does not come from a project file or was changed since. Name "
                           "another folder, or save these rows first (trabeon-batch pack) and "
                           "empty it; nothing was changed."};
    return std::nullopt;
}

}  // namespace trabeon
