#include "core/store/dimension_editing.h"

#include <algorithm>
#include <tuple>
#include <vector>

#include "core/store/row_editing.h"
#include "core/text/number_text.h"

namespace trabeon {
namespace {

using Rows = std::vector<BeamDimensionRow>;

/// The rows as a file would give them back after writing.
Rows asRead(const Rows& rows) {
    return rowsOf<BeamDimensionRow>(textOf(rows, Description::quoted));
}

Rows inOrder(const Rows& rows, const BeamExtent& extent) {
    struct Place {
        std::size_t Member, Section, row;
    };
    std::vector<Place> places;
    places.reserve(rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const Place place{wholeNumberUpTo(extent.members, rows[i].Member),
                          wholeNumberUpTo(extent.sections, rows[i].Section), i};
        if (place.Member > 0 && place.Section > 0)
            places.push_back(place);
    }
    std::sort(places.begin(), places.end(), [](const Place& a, const Place& b) {
        return std::tie(a.Member, a.Section, a.row) < std::tie(b.Member, b.Section, b.row);
    });
    Rows ordered;
    ordered.reserve(places.size());
    for (const auto& place : places)
        ordered.push_back(rows[place.row]);
    return ordered;
}

}  // namespace

Status addDimensions(const std::filesystem::path& folder, std::size_t position,
                     BeamDimensionRow row, SectionRange sections, std::optional<BeamExtent> order) {
    auto found = rowsToChange<BeamDimensionRow>(folder);
    if (!found)
        return found.refusal();
    auto& rows = *found;
    auto place = std::min(position, rows.size());
    for (auto section = sections.first; section <= sections.last; ++section) {
        row.Section = generatedText(section);
        rows.insert(rows.begin() + static_cast<std::ptrdiff_t>(place),
                    section == sections.last ? row : asRead({row}).front());
        place = rows.size();
    }
    return rewriteRows(folder, order ? inOrder(asRead(rows), *order) : rows);
}

}  // namespace trabeon
