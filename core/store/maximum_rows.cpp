#include "core/store/maximum_rows.h"

#include <cmath>

#include "core/text/number_masks.h"
#include "core/text/number_text.h"

namespace trabeon {

MaximumRows MaximumRows::read(std::string_view maxima) {
    MaximumRows rows;
    StationReader reader(maxima, 1);
    while (reader.next())
        rows.records_.push_back(reader.row());
    return rows;
}

bool MaximumRows::contain(std::size_t member, const StationRow& row) const {
    if (member < 1 || member > records_.size())
        return false;
    const auto& [x, moment, shear] = records_[member - 1];
    if (moment != row.moment || shear != row.shear)
        return false;
    const double distance = leadingNumber(x);
    return std::isfinite(distance) && threeFigures(distance) == row.x;
}

}  // namespace trabeon
