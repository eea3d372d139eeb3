// Splits a text into pages, for the page count and for the print.
#pragma once

#include <functional>
#include <vector>

namespace trabeon {

struct Pages {
    std::vector<int> starts;  // the text position where each page begins, from 0
    bool whole = true;        // false if the layout of the last page found no end
};

/// Calls `page` for each page with the position of its first character. `page` returns the position
/// of the next page. Stops at `length`, or when a page does not advance.
[[nodiscard]] Pages splitIntoPages(int length, const std::function<int(int)>& page);

}  // namespace trabeon
