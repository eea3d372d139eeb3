#include "toolkit/controls/scroll_bar.h"

#include <QScrollBar>

namespace trabeon {

namespace {

QScrollBar& Inner(const Control& control) {
    return *static_cast<QScrollBar*>(control.Widget());
}

}  // namespace

ScrollBar::ScrollBar(Container& parent, Direction direction)
    : Control(new QScrollBar(direction == Direction::Vertical ? Qt::Vertical : Qt::Horizontal,
                             parent.Canvas())) {
    QObject::connect(&Inner(*this), &QScrollBar::valueChanged, [this] {
        if (Change)
            Change();
    });
}

void ScrollBar::SetRange(int min, int max) {
    Inner(*this).setRange(min, max);
}

void ScrollBar::SetSteps(int smallChange, int largeChange) {
    Inner(*this).setSingleStep(smallChange);
    Inner(*this).setPageStep(largeChange);
}

int ScrollBar::Value() const {
    return Inner(*this).value();
}

void ScrollBar::SetValue(int value) {
    Inner(*this).setValue(value);
}

}  // namespace trabeon
