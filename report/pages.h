// The way through a text page by page, for the count and for the print.
#pragma once

#include <functional>
#include <vector>

namespace trabeon {

struct Pages {
    std::vector<int> starts;  // the position at which each page begins
    bool whole = true;        // false: the last of them has no end, and the rest is left out
};

/// `page` does what there is to do for the page that begins at a position, and gives where the next
/// one begins. The way ends at the text's length, or where it goes no further.
[[nodiscard]] Pages goThroughPages(int length, const std::function<int(int)>& page);

}  // namespace trabeon
