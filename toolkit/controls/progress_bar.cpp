#include "toolkit/controls/progress_bar.h"

#include <QProgressBar>
#include <algorithm>
#include <cmath>
#include <utility>

namespace trabeon {

namespace {

constexpr int StepsPerCent = 10;
constexpr std::chrono::milliseconds Frame(33);

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
    const bool isMark = value_ == 0 || value_ == 100;
    const auto now = std::chrono::steady_clock::now();
    if (isMark || now - shownAt_ >= Frame) {
        shownAt_ = now;
        ShowValue();
    } else if (!std::exchange(waiting_, true)) {
        QMetaObject::invokeMethod(
            Widget(),
            [this] {
                waiting_ = false;
                ShowValue();
            },
            Qt::QueuedConnection);
    }
}

// The widget repaints at once when the bar grows by a pixel.
void ProgressBar::ShowValue() {
    static_cast<QProgressBar*>(Widget())->setValue(
        static_cast<int>(std::lround(value_ * StepsPerCent)));
}

}  // namespace trabeon
