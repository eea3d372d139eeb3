// Reads "BM.txt" by position. Each member has a heading, then its stations, with its maximum among
// them.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "core/text/field_reader.h"

namespace trabeon {

/// The texts of a row: the distance from the member's left joint, then moment (sagging positive)
/// and shear.
struct StationRow {
    std::string_view x, moment, shear;
};

/// The number of rows of one member: Divisions + 2 without a fraction, at least 0. Divisions above
/// 10,000, the most of an analysis, count as 10,000.
[[nodiscard]] std::size_t stationRowsOf(double Divisions);

/// Walks over the whole text of the file, which must outlive it and its rows. It ends with the
/// text, or before the first line that is not the expected heading or row. That happens if the file
/// was made with other Divisions: the following rows would be read as those of wrong stations.
class StationReader {
  public:
    StationReader(std::string_view text, std::size_t rowsPerMember)
        : reader_(text), rowsPerMember_(rowsPerMember) {}

    /// Goes to the next row. Returns false if there is none.
    [[nodiscard]] bool next();

    /// Whether the text ends after the row.
    [[nodiscard]] bool atEnd() const { return reader_.atEnd(); }

    /// Whether the row is the last one of its member, and a heading or the end of the text follows.
    /// False if the member has more rows than expected.
    [[nodiscard]] bool endsMember() const;

    [[nodiscard]] const StationRow& row() const { return row_; }
    /// The member of the row, from 1, by the place of its block.
    [[nodiscard]] std::size_t member() const { return member_; }
    /// The row's place in its block, from 1.
    [[nodiscard]] std::size_t section() const { return section_; }

  private:
    [[nodiscard]] bool passHeading();
    [[nodiscard]] bool passRow();

    FieldReader reader_;
    std::size_t rowsPerMember_;
    std::size_t member_ = 0;
    std::size_t section_ = 0;
    StationRow row_;
    bool ended_ = false;
};

/// The rows of one member, from 1. Fewer rows if the file ends early.
[[nodiscard]] std::vector<StationRow> stationRows(std::string_view text, std::size_t rowsPerMember,
                                                  std::size_t member);

}  // namespace trabeon
