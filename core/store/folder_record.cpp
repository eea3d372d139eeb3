#include "core/store/folder_record.h"

#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstring>
#include <utility>
#include <vector>

#include "core/store/replacing_file.h"
#include "core/store/rows.h"
#include "core/store/working_files.h"
#include "core/text/field_reader.h"
#include "core/text/number_text.h"

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

/// The files that the user's rows are in.
constexpr std::array rowFiles{working_file::joint, working_file::member, working_file::point,
                              working_file::udl, working_file::beamDimensions};

std::uint64_t bits(double value) {
    return std::bit_cast<std::uint64_t>(value + 0.0);  // -0 counts as 0
}

/// The loads of a file as numbers, in the order of their members; without rows that the analysis
/// drops.
template <class Row>
void addLoads(InputFingerprint& input, std::string_view text, std::size_t members) {
    struct Load {
        double member;
        std::vector<double> numbers;
    };
    constexpr auto described = Row::fields.size() - 1;
    std::vector<Load> loads;
    for (const auto& row : rowsOf<Row>(text)) {
        Load load{leadingNumber(row.*Row::fields[0]), {}};
        for (std::size_t i = 1; i < described; ++i)
            load.numbers.push_back(leadingNumber(row.*Row::fields[i]));
        const bool onMember = load.member >= 1 && load.member <= static_cast<double>(members) &&
                              load.member == std::floor(load.member);
        const auto firstIntensity = load.numbers.begin() + (described == 3 ? 1 : 2);
        if (onMember && std::any_of(firstIntensity, load.numbers.end(),
                                    [](double intensity) { return intensity != 0; }))
            loads.push_back(std::move(load));
    }
    std::stable_sort(loads.begin(), loads.end(), [](const Load& left, const Load& right) {
        return left.member < right.member;
    });
    for (const auto& load : loads)
        input.addLoad(static_cast<std::size_t>(load.member), load.numbers);
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

void InputFingerprint::addJoint(std::string_view type) {
    hash_ = mixed(hash_, fingerprint(type));
}

void InputFingerprint::addMember(double E, double I, double L) {
    for (const double value : {E, I, L})
        hash_ = mixed(hash_, bits(value));
}

void InputFingerprint::addLoad(std::size_t member, std::span<const double> numbers) {
    hash_ = mixed(hash_, (member << 8U) + numbers.size());
    for (const double value : numbers)
        hash_ = mixed(hash_, bits(value));
}

std::uint64_t inputFingerprint(const std::array<std::string_view, 4>& inputTexts) {
    InputFingerprint input;
    for (const auto& joint : rowsOf<JointRow>(inputTexts[0]))
        input.addJoint(joint.type);
    const auto members = rowsOf<MemberRow>(inputTexts[1]);
    for (const auto& member : members)
        input.addMember(leadingNumber(member.E), leadingNumber(member.I), leadingNumber(member.L));
    addLoads<PointRow>(input, inputTexts[2], members.size());
    addLoads<UdlRow>(input, inputTexts[3], members.size());
    return input.value();
}

std::uint64_t inputFingerprint(const std::filesystem::path& folder) {
    const auto joints = readWhole(folder / working_file::joint);
    const auto members = readWhole(folder / working_file::member);
    const auto points = readWhole(folder / working_file::point);
    const auto udls = readWhole(folder / working_file::udl);
    return inputFingerprint({joints, members, points, udls});
}

std::uint64_t filesState(const std::filesystem::path& folder) {
    std::uint64_t hash = 0;
    for (const auto name : {working_file::joint, working_file::member, working_file::point,
                            working_file::udl, working_file::stations, working_file::record}) {
        struct stat status {};
        if (::stat((folder / name).c_str(), &status) != 0)
            status = {};
        for (const auto number : {status.st_ino, static_cast<ino_t>(status.st_size),
                                  static_cast<ino_t>(status.st_mtim.tv_sec),
                                  static_cast<ino_t>(status.st_mtim.tv_nsec)})
            hash = mixed(hash, number);
    }
    return hash;
}

void recordRowsAsPacked(const std::filesystem::path& folder) {
    const auto texts = readFiles(folder, rowFiles);
    if (!texts)
        return;
    const auto& [joints, members, points, udls, dimensions] = *texts;
    auto record = readRecord(folder);
    record.unpackedInput = fingerprint({joints, members, points, udls});
    record.unpackedDimensions = fingerprint(dimensions);
    static_cast<void>(replaceFile(folder / working_file::record, textOf(record)));
}

Objection checkRowsAreSaved(const std::filesystem::path& folder) {
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
    std::string changed;
    for (std::size_t i = 0; i < rowFiles.size(); ++i)
        if (!(*texts)[i].empty())
            changed += (changed.empty() ? "" : ", ") + std::string(rowFiles[i]);
    if (changed.empty())
        return std::nullopt;
    return Refusal{"The folder \"" + folder.string() + "\" contains rows (" + changed +
                   ") that are not from a project file or have changed since. Choose another "
                   "folder, or save these rows first (trabeon-batch pack); nothing was changed."};
}

}  // namespace trabeon
