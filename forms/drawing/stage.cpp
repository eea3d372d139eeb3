#include "forms/drawing/stage.h"

#include <algorithm>

#include "core/text/number_text.h"

namespace trabeon {
namespace {

constexpr double edge = 2;  // free at the edges of a picture
constexpr double betweenLabels = 2;
constexpr int figures = 4;

double leftOf(double x, double width, Align align) {
    switch (align) {
        case Align::left:
            return x;
        case Align::right:
            return x - width;
        case Align::middle:
            break;
    }
    return x - width / 2;
}

}  // namespace

bool putLabel(const Stage& stage, const std::string& text, const DrawnPoint& at,
              const LabelStyle& style) {
    const auto size = stage.measure(text, style.bold);
    const double most = std::max(edge, stage.width - edge - size.width);
    const double left = std::clamp(leftOf(at.x, size.width, style.align), edge, most);
    const Box box{left - betweenLabels, at.y, left + size.width + betweenLabels,
                  at.y + size.height};
    if (!stage.labels.isFree(box))
        return false;
    stage.labels.take(box);
    stage.drawing.push_back(TextShape{{left, at.y}, text, style.colour, style.bold});
    return true;
}

std::string shownInPicture(double value) {
    return significantText(value, figures);
}

}  // namespace trabeon
