#include "report/pages.h"

namespace trabeon {

Pages splitIntoPages(int length, const std::function<int(int)>& page) {
    Pages pages;
    for (int first = 0;;) {
        pages.starts.push_back(first);
        const int next = page(first);
        if (next >= length)
            return pages;
        if (next <= first) {
            pages.whole = false;
            return pages;
        }
        first = next;
    }
}

}  // namespace trabeon
