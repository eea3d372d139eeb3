#include "core/analysis/maximum_search.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "core/text/number_masks.h"

namespace trabeon {
namespace {

int signOf(double shear) {
    return (shear > 0) - (shear < 0);
}

const Station& largerEnd(const Station& left, const Station& right) {
    const auto size = [](const Station& end) {
        return std::fabs(threeFiguresNumber(end.forces.moment));
    };
    return size(right) >= size(left) ? right : left;
}

}  // namespace

Station searchMaximum(const LoadedBeam& loaded, std::size_t span, std::span<const Station> stations,
                      double CorrectTo) {
    const int sign = signOf(stations.front().forces.shear);
    const auto changed =
        std::find_if(stations.begin(), stations.end(),
                     [&](const Station& station) { return signOf(station.forces.shear) != sign; });
    if (changed == stations.end())
        return largerEnd(stations.front(), stations.back());
    double left = std::prev(changed)->x;
    double right = changed->x;
    auto current = stations.front().forces;
    while (signOf(current.shear) != 0 && right - left > CorrectTo) {
        const double middle = left + (right - left) / 2;
        if (middle <= left || middle >= right)
            break;
        current = FindMxSx(loaded, span, middle);
        (signOf(current.shear) == sign ? left : right) = middle;
    }
    return {left, current};
}

}  // namespace trabeon
