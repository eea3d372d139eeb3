// What a design reads: the sizes of the sections, and the stations of the analysis. Each file is
// read once for the whole run.
#pragma once

#include <filesystem>
#include <optional>
#include <string_view>
#include <vector>

#include "core/analysis/span_results.h"
#include "core/design/section_data.h"
#include "core/outcome.h"
#include "core/store/rows.h"

namespace trabeon {

/// The sections without a dimension row: how many there are, and the first one, which counts
/// from 1.
struct MissingDimensions {
    std::size_t count = 0, Member = 0, Section = 0;
};

/// Members count from 1. The sections of a member are the Divisions + 2 rows of its block in the
/// station file. They count from 0 here, and from 1 in the dimension rows.
class DesignData {
  public:
    /// `stations` is the text of "BM.txt". It is read by position: a heading and Divisions + 2 rows
    /// for each member. What is missing reads as 0.
    [[nodiscard]] static DesignData read(std::vector<JointRow> joints, std::size_t NumofMem,
                                         const std::vector<BeamDimensionRow>& dimensions,
                                         std::string_view stations, std::size_t Divisions);

    /// The data of a section; nothing for a section without a dimension row. Of several rows of a
    /// section the first counts.
    [[nodiscard]] std::optional<SectionData> GetData(std::size_t Member, std::size_t Section) const;

    [[nodiscard]] const std::vector<JointRow>& joints() const { return joints_; }
    [[nodiscard]] std::size_t NumofMem() const { return NumofMem_; }
    [[nodiscard]] std::size_t sectionsPerMember() const { return sectionsPerMember_; }

    /// Whether the station file goes as far as this section.
    [[nodiscard]] bool hasStation(std::size_t Member, std::size_t Section) const {
        return (Member - 1) * sectionsPerMember_ + Section < stationsRead_;
    }
    /// Whether the station file has exactly the expected blocks and rows.
    [[nodiscard]] bool stationsFit() const { return stationsFit_; }
    [[nodiscard]] MissingDimensions missingDimensions() const;

  private:
    DesignData() = default;

    /// A dimension row as numbers; the section has no forces yet.
    struct Dimensions {
        double Member, Section;
        SectionData section;
    };

    void readDimensions(const std::vector<BeamDimensionRow>& rows);
    void readStations(std::string_view text);
    [[nodiscard]] const Dimensions* find(std::size_t Member, std::size_t Section) const;

    std::vector<JointRow> joints_;
    std::size_t NumofMem_ = 0;
    std::size_t sectionsPerMember_ = 0;
    std::vector<Dimensions> dimensions_;  // by member and section, then in file order
    std::vector<Station> stations_;
    std::size_t stationsRead_ = 0;
    bool stationsFit_ = false;
};

/// From the working files of a folder. Divisions is a whole number from 1 to 10,000. Refuses files
/// that cannot be read; missing ones are empty.
[[nodiscard]] Outcome<DesignData> readDesignData(const std::filesystem::path& folder,
                                                 double Divisions);

}  // namespace trabeon
