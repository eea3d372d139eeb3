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

LabelSpan spanOf(const Stage& stage, const std::string& text, double x, const LabelStyle& style) {
    const double width = stage.measure(text, style.bold).width;
    const double most = std::max(edge, stage.width - edge - width);
    const double left = std::clamp(leftOf(x, width, style.align), edge, most);
    return {left, left + width};
}

bool putLabel(const Stage& stage, const std::string& text, const DrawnPoint& at,
              const LabelStyle& style) {
    const auto [left, right] = spanOf(stage, text, at.x, style);
    const Box box{left - betweenLabels, at.y, right + betweenLabels, at.y + stage.textHeight()};
    const bool inside = box.top >= 0 && box.bottom <= stage.height && right <= stage.width;
    if (!inside || !stage.labels.isFree(box))
        return false;
    stage.labels.take(box);
    stage.drawing.push_back(TextShape{{left, at.y}, text, style.colour, style.bold});
    return true;
}

std::string shownInPicture(double value) {
    return significantText(value, figures);
}

}  // namespace trabeon
