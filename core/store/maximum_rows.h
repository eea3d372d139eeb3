// Finds the row of a member's maximum among its stations in "BM.txt".
#pragma once

#include <string_view>
#include <vector>

#include "core/store/station_reader.h"

namespace trabeon {

/// The records of "BMMax.txt", one a member.
class MaximumRows {
  public:
    /// The whole text of the file, which must outlive this. It may be empty or end early: then no
    /// row of the members that are missing is a maximum.
    explicit MaximumRows(std::string_view maxima);

    /// Whether a row of this member, counted from 1, is the record: the same moment and shear, and
    /// its distance when rounded to three figures. So are two rows that read the same.
    [[nodiscard]] bool contain(std::size_t member, const StationRow& row) const;

  private:
    std::vector<StationRow> records_;
};

}  // namespace trabeon
