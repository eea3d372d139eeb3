#include "forms/drawing/label_room.h"

#include <algorithm>

namespace trabeon {
namespace {

constexpr double stripWidth = 32;

bool meet(const Box& a, const Box& b) {
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

}  // namespace

LabelRoom::LabelRoom(double width)
    : strips_(static_cast<std::size_t>(std::max(0.0, width) / stripWidth) + 1) {}

std::pair<std::size_t, std::size_t> LabelRoom::stripsOf(const Box& box) const {
    const auto strip = [this](double x) {
        const double last = static_cast<double>(strips_.size() - 1);
        return static_cast<std::size_t>(std::clamp(x / stripWidth, 0.0, last));
    };
    return {strip(box.left), strip(box.right)};
}

bool LabelRoom::isFree(const Box& box) const {
    const auto [first, last] = stripsOf(box);
    for (auto k = first; k <= last; ++k)
        if (std::any_of(strips_[k].begin(), strips_[k].end(),
                        [&](const Box& taken) { return meet(taken, box); }))
            return false;
    return true;
}

void LabelRoom::take(const Box& box) {
    const auto [first, last] = stripsOf(box);
    for (auto k = first; k <= last; ++k)
        strips_[k].push_back(box);
}

}  // namespace trabeon
