// The rows of a file as fields to type.
#pragma once

#include <string>
#include <vector>

#include "core/text/field_reader.h"

namespace trabeon {

using RowFields = std::vector<std::string>;

/// The next `Column` fields.
[[nodiscard]] inline RowFields nextRow(FieldReader& reader, int Column) {
    RowFields row;
    for (int i = 0; i < Column; ++i)
        row.emplace_back(reader.next());
    if (Column <= 0)
        reader.nextLine();
    return row;
}

}  // namespace trabeon
