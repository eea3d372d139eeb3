// Reads "BM.txt" by position: for each member in order a heading, then its stations and, among
// them, its maximum.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "core/text/field_reader.h"

namespace trabeon {

/// A station as the file tells it: the distance from the member's left joint, then moment and
/// shear, sagging positive.
struct StationRow {
    std::string_view x, moment, shear;
};

/// The rows of one member: Divisions + 2, the whole ones of a number with a fraction. None below
/// -1; numbers above 10,000 count as that, which no analysis exceeds.
[[nodiscard]] std::size_t stationRowsOf(double Divisions);

/// Walks over the whole text of the file, which must outlive it and its rows. It ends where the
/// text does, and before the first line that is not the heading or the whole row that should stand
/// there, as when the file was made with other Divisions: what follows would be read askew.
class StationReader {
  public:
    StationReader(std::string_view text, std::size_t rowsPerMember)
        : reader_(text), rowsPerMember_(rowsPerMember) {}

    /// Steps to the next row. False: there is none.
    [[nodiscard]] bool next();

    /// Whether the text ends after the row.
    [[nodiscard]] bool atEnd() const { return reader_.atEnd(); }

    /// Whether the row is the last of its member, and a heading or the end of the text follows. If
    /// a row follows instead, the member has more rows than expected.
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

/// The rows of one member, from 1, as far as the file goes.
[[nodiscard]] std::vector<StationRow> stationRows(std::string_view text, std::size_t rowsPerMember,
                                                  std::size_t member);

}  // namespace trabeon
