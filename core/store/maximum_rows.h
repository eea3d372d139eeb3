// Finds the row of a member's maximum among its stations in "BM.txt".
#pragma once

#include <string_view>
#include <vector>

#include "core/store/station_reader.h"

namespace trabeon {

/// The records of "BMMax.txt", one a member.
class MaximumRows {
  public:
    /// The whole text of the file, which must outlive the result. It may be empty or end early;
    /// then the missing members have no maximum.
    [[nodiscard]] static MaximumRows read(std::string_view maxima);

    /// Whether a row of this member, counted from 1, is its maximum: moment and shear are those of
    /// the record, and x is the x of the record in three figures. Two rows with the same texts both
    /// count.
    [[nodiscard]] bool contain(std::size_t member, const StationRow& row) const;

  private:
    MaximumRows() = default;

    std::vector<StationRow> records_;
};

}  // namespace trabeon
