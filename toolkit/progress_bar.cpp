#include "toolkit/progress_bar.h"

#include <QProgressBar>
#include <algorithm>

namespace trabeon {

namespace {

constexpr int StepsPerCent = 10;

}  // namespace

ProgressBar::ProgressBar(Container& parent) : Control(new QProgressBar(parent.Canvas())) {
    auto* bar = static_cast<QProgressBar*>(Widget());
    bar->setRange(0, 100 * StepsPerCent);
    bar->setTextVisible(false);
    bar->setValue(0);
    Control::Resize(ToPixels(2400), ToPixels(255));
}

double ProgressBar::Value() const {
    return value_;
}

void ProgressBar::SetValue(double value) {
    value_ = std::clamp(value, 0.0, 100.0);
    // Repaints at once, and only when the bar grows by a pixel.
    static_cast<QProgressBar*>(Widget())->setValue(static_cast<int>(value_ * StepsPerCent));
}

}  // namespace trabeon
