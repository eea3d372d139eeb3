#include "core/design/design_data.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <tuple>

#include "core/store/station_reader.h"
#include "core/text/number_text.h"

namespace trabeon {
namespace {

SectionData sizesOf(const BeamDimensionRow& row) {
    return {.b = leadingNumber(row.b),
            .d = leadingNumber(row.d),
            .effd = leadingNumber(row.effd),
            .fcu = leadingNumber(row.fcu),
            .fy = leadingNumber(row.fy),
            .YM = leadingNumber(row.YM),
            .fyv = leadingNumber(row.fyv),
            .L = leadingNumber(row.L)};
}

}  // namespace

DesignData DesignData::read(std::vector<JointRow> joints, std::size_t NumofMem,
                            const std::vector<BeamDimensionRow>& dimensions,
                            std::string_view stations, std::size_t Divisions) {
    DesignData data;
    data.joints_ = std::move(joints);
    data.NumofMem_ = NumofMem;
    data.sectionsPerMember_ = Divisions + 2;
    data.readDimensions(dimensions);
    data.readStations(stations);
    return data;
}

void DesignData::readDimensions(const std::vector<BeamDimensionRow>& rows) {
    dimensions_.reserve(rows.size());
    for (const auto& row : rows)
        dimensions_.push_back(
            {leadingNumber(row.Member), leadingNumber(row.Section), sizesOf(row)});
    std::stable_sort(dimensions_.begin(), dimensions_.end(),
                     [](const Dimensions& left, const Dimensions& right) {
                         return std::tie(left.Member, left.Section) <
                                std::tie(right.Member, right.Section);
                     });
}

void DesignData::readStations(std::string_view text) {
    StationReader reader(text, sectionsPerMember_);
    stations_.reserve(NumofMem_ * sectionsPerMember_);
    while (stations_.size() < NumofMem_ * sectionsPerMember_ && reader.next()) {
        const auto& [x, moment, shear] = reader.row();
        stations_.push_back({leadingNumber(x), {leadingNumber(moment), leadingNumber(shear)}});
    }
    stationsRead_ = stations_.size();
    stationsFit_ = stationsRead_ == NumofMem_ * sectionsPerMember_ && reader.atEnd();
    stations_.resize(NumofMem_ * sectionsPerMember_);
}

const DesignData::Dimensions* DesignData::find(std::size_t Member, std::size_t Section) const {
    const std::pair wanted(static_cast<double>(Member), static_cast<double>(Section + 1));
    const auto numbers = [](const Dimensions& row) { return std::pair(row.Member, row.Section); };
    const auto first = std::lower_bound(
        dimensions_.begin(), dimensions_.end(), wanted,
        [&](const Dimensions& row, const auto& pair) { return numbers(row) < pair; });
    return first != dimensions_.end() && numbers(*first) == wanted ? &*first : nullptr;
}

std::optional<SectionData> DesignData::GetData(std::size_t Member, std::size_t Section) const {
    const auto* row = find(Member, Section);
    if (row == nullptr)
        return std::nullopt;
    auto data = row->section;
    const auto& [x, forces] = stations_[(Member - 1) * sectionsPerMember_ + Section];
    data.dist = x;
    data.Moment = std::fabs(forces.moment);
    data.Shear = std::fabs(forces.shear);
    data.OriginMoment = forces.moment;
    data.OriginShear = forces.shear;
    return data;
}

MissingDimensions DesignData::missingDimensions() const {
    MissingDimensions missing;
    for (std::size_t Member = 1; Member <= NumofMem_; ++Member)
        for (std::size_t Section = 0; Section < sectionsPerMember_; ++Section)
            if (find(Member, Section) == nullptr && missing.count++ == 0)
                std::tie(missing.Member, missing.Section) = std::pair(Member, Section + 1);
    return missing;
}

Outcome<DesignData> readDesignData(const std::filesystem::path& folder, double Divisions) {
    constexpr std::array files{working_file::joint, working_file::member,
                               working_file::beamDimensions, working_file::stations};
    const auto texts = readFiles(folder, files);
    if (!texts)
        return texts.refusal();
    const auto& [joints, members, dimensions, stations] = *texts;
    return DesignData::read(rowsOf<JointRow>(joints), rowsOf<MemberRow>(members).size(),
                            rowsOf<BeamDimensionRow>(dimensions), stations,
                            static_cast<std::size_t>(Divisions));
}

}  // namespace trabeon
