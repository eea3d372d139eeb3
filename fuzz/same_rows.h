// Compares two texts of a row file.
#pragma once

#include <algorithm>
#include <string_view>

#include "core/store/rows.h"

namespace trabeon::fuzz {

inline std::string_view withoutBlanks(std::string_view field) {
    field.remove_prefix(std::min(field.find_first_not_of(' '), field.size()));
    field.remove_suffix(field.size() - (field.find_last_not_of(' ') + 1));
    return field;
}

/// True if all fields are equal. Blanks around a field other than a description do not count.
template <class Row>
bool sameRows(std::string_view a, std::string_view b) {
    const auto rowsA = rowsOf<Row>(a);
    const auto rowsB = rowsOf<Row>(b);
    const auto same = [](const Row& rowA, const Row& rowB) {
        for (const auto field : Row::fields)
            if (withoutBlanks(rowA.*field) != withoutBlanks(rowB.*field))
                return false;
        constexpr auto last = Row::fields.back();
        return !Row::described || rowA.*last == rowB.*last;
    };
    return std::equal(rowsA.begin(), rowsA.end(), rowsB.begin(), rowsB.end(), same);
}

}  // namespace trabeon::fuzz
